#pragma once
// The two process-wide translation tables between type names and type bits,
// filled on the first entity's construction and never changed after that.
#include <array>
#include <cstddef>
#include <list>
#include <unordered_map>
#include <vector>

#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_entity.h"

namespace sceneward::scene {

struct EntityTypeName {
  ZDbEntityType type;
  char const* name;
};

// Every kind of database object, in ascending bit order. The poly cylinder
// is "poly cylinder" here, though its class calls itself "polycylinder".
inline constexpr std::array<EntityTypeName, 25> kEntityTypeNames = {{
    {kEntitySegment, "segment"},
    {kEntityInclude, "include"},
    {kEntityStyle, "style"},
    {kEntityText, "text"},
    {kEntityMarker, "marker"},
    {kEntityCircle, "circle"},
    {kEntityCircularArc, "circular arc"},
    {kEntityCircularChord, "circular chord"},
    {kEntityCircularWedge, "circular wedge"},
    {kEntityEllipse, "ellipse"},
    {kEntityEllipticalArc, "elliptical arc"},
    {kEntityLine, "line"},
    {kEntityPolyline, "polyline"},
    {kEntityNurbsCurve, "nurbs curve"},
    {kEntityPolygon, "polygon"},
    {kEntityMesh, "mesh"},
    {kEntityShell, "shell"},
    {kEntityCuttingPlane, "cutting plane"},
    {kEntityDistantLight, "distant light"},
    {kEntityImage, "image"},
    {kEntityLocalLight, "local light"},
    {kEntitySpotLight, "spot light"},
    {kEntityPolyCylinder, "poly cylinder"},
    {kEntityReference, "reference"},
    {kEntityGrid, "grid"},
}};

// A hash table from name to type whose hash is not taken from the
// characters but from the address of the key's narrow text, masked to the
// bucket count; names in one bucket are told apart by ZString::Compare. A
// new entry goes into the bucket of the address of the key it was asked
// for; when the table grows, each entry moves to the bucket of the address
// of its stored key. So a name is found only when the address of the text
// asked for happens to select the bucket of the equal stored name. The
// names are translated this way on purpose: nothing may rely on a name
// being recognised.
class AddressHashedTypeTable {
 public:
  bool IsEmpty() const { return size_ == 0; }
  // The type stored for `name` in the bucket that `name`'s address selects;
  // adds `name` with type 0 there first if it is not in that bucket.
  ZDbEntityType& FindOrAdd(ZString const& name);

 private:
  struct Entry {
    ZString name;
    ZDbEntityType type;
  };
  using Bucket = std::list<Entry>;  // nodes keep their address when spliced

  static std::size_t BucketIndex(ZString const& key, std::size_t bucketCount);
  // Doubles the bucket count and rebuckets every entry by its stored key.
  void Grow();

  std::vector<Bucket> buckets_ = std::vector<Bucket>(8);
  std::size_t size_ = 0;
};

// The process-wide tables. TypeToTypeNameMap hashes the type itself.
AddressHashedTypeTable& TypeNameToTypeMap();
std::unordered_map<int, ZString>& TypeToTypeNameMap();

}  // namespace sceneward::scene
