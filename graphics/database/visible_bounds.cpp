#include "database/visible_bounds.h"

#include <span>
#include <string_view>
#include <vector>

#include "attributes/option_family.h"
#include "database/reference.h"
#include "traversal/attribute_path.h"

namespace graphics {

namespace {

constexpr std::string_view kLines[] = {"lines"};
constexpr std::string_view kMarkers[] = {"markers"};
constexpr std::string_view kText[] = {"text"};
constexpr std::string_view kImages[] = {"images"};
constexpr std::string_view kCuttingPlanes[] = {"cutting planes"};
constexpr std::string_view kLights[] = {"lights"};
// A surface shows while any of its faces, edges or vertices does.
constexpr std::string_view kSurfaces[] = {"faces", "edges", "vertices"};

// The visibility options of which one must be on for `type` to be drawn;
// none for reference geometry, which draws whatever it refers to.
std::span<const std::string_view> VisibilityOptionsOf(GeometryType type) {
  switch (type) {
    case GeometryType::kLine:
    case GeometryType::kPolyline:
    case GeometryType::kCircularArc:
    case GeometryType::kEllipticalArc:
    case GeometryType::kNurbsCurve:
      return kLines;
    case GeometryType::kMarker:
      return kMarkers;
    case GeometryType::kText:
      return kText;
    case GeometryType::kImage:
      return kImages;
    case GeometryType::kCuttingPlane:
      return kCuttingPlanes;
    case GeometryType::kAreaLight:
    case GeometryType::kDistantLight:
    case GeometryType::kLocalLight:
    case GeometryType::kSpotLight:
      return kLights;
    case GeometryType::kReference:
      return {};
    case GeometryType::kCircle:
    case GeometryType::kCircularChord:
    case GeometryType::kCircularWedge:
    case GeometryType::kCylinder:
    case GeometryType::kEllipse:
    case GeometryType::kGrid:
    case GeometryType::kMesh:
    case GeometryType::kNurbsSurface:
    case GeometryType::kPolyCylinder:
    case GeometryType::kPolygon:
    case GeometryType::kShell:
    case GeometryType::kSphere:
      return kSurfaces;
  }
  return {};
}

bool Visible(const AttributePath& path, GeometryType type) {
  const std::span<const std::string_view> options = VisibilityOptionsOf(type);
  if (options.empty()) return true;
  const OptionFamily& family = *FamilyOf(AttributeKind::kVisibility);
  for (std::string_view option : options) {
    if (path.NetOptionValue(family, option).value == "on") return true;
  }
  return false;
}

// Walks the subtree the way drawing would, remembering the includes taken
// so each segment's attributes are read along the path that reached it.
class VisibleWalk {
 public:
  explicit VisibleWalk(const Database& database) : database_(database) {}

  Bounds ContentsOf(const Segment& segment) {
    const AttributePath path = PathTo(segment);
    Bounds bounds;
    for (const Geometry& item : segment.geometry()) {
      if (Visible(path, item.type())) bounds.Include(item.ComputeBounds());
    }
    for (const Reference& include : segment.includes()) {
      includes_taken_.push_back(include.key());
      bounds.Include(Placed(include.target()));
      includes_taken_.pop_back();
    }
    for (const Segment& child : segment.children()) bounds.Include(Placed(child));
    return bounds;
  }

 private:
  Bounds Placed(const Segment& segment) {
    const auto* matrix = segment.attributes().Find<ModellingMatrix>();
    return matrix ? ContentsOf(segment).Transformed(matrix->matrix) : ContentsOf(segment);
  }

  // The key path of `segment`: itself, then the includes taken, innermost
  // first; each include hops from its target to its owner.
  AttributePath PathTo(const Segment& segment) const {
    std::vector<long long> keys{segment.key()};
    keys.insert(keys.end(), includes_taken_.rbegin(), includes_taken_.rend());
    auto path = AttributePath::FromKeys(database_, keys);
    // The keys are live and join up, but a program's local key is found
    // only from its own owner; then the owners alone decide, as if the
    // segment had not been reached through includes.
    return path.ok() ? std::move(path.value()) : AttributePath::Of(segment);
  }

  const Database& database_;
  std::vector<long long> includes_taken_;
};

}  // namespace

Bounds VisibleContentBounds(const Database& database, const Segment& top) {
  return VisibleWalk(database).ContentsOf(top);
}

Bounds VisibleItemBounds(const Geometry& item) {
  if (item.owner() == nullptr || !Visible(AttributePath::Of(*item.owner()), item.type())) return Bounds();
  return item.ComputeBounds();
}

}  // namespace graphics
