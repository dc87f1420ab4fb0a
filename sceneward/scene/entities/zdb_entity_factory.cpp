// The factory registry, with the two operations built on it. The registry
// lives in this file, next to the operations that every search reaches, so
// that the linker keeps its load-time initialiser.
#include "sceneward/scene/entities/zdb_entity_factory.h"

#include <map>
#include <memory>

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_en_circle.h"
#include "sceneward/scene/entities/zdb_en_circular_arc.h"
#include "sceneward/scene/entities/zdb_en_circular_chord.h"
#include "sceneward/scene/entities/zdb_en_circular_wedge.h"
#include "sceneward/scene/entities/zdb_en_distant_light.h"
#include "sceneward/scene/entities/zdb_en_ellipse.h"
#include "sceneward/scene/entities/zdb_en_elliptical_arc.h"
#include "sceneward/scene/entities/zdb_en_image.h"
#include "sceneward/scene/entities/zdb_en_include.h"
#include "sceneward/scene/entities/zdb_en_line.h"
#include "sceneward/scene/entities/zdb_en_local_light.h"
#include "sceneward/scene/entities/zdb_en_marker.h"
#include "sceneward/scene/entities/zdb_en_mesh.h"
#include "sceneward/scene/entities/zdb_en_nurbs_curve.h"
#include "sceneward/scene/entities/zdb_en_polygon.h"
#include "sceneward/scene/entities/zdb_en_polyline.h"
#include "sceneward/scene/entities/zdb_en_segment.h"
#include "sceneward/scene/entities/zdb_en_shell.h"
#include "sceneward/scene/entities/zdb_en_spot_light.h"
#include "sceneward/scene/entities/zdb_en_style.h"
#include "sceneward/scene/entities/zdb_en_text.h"

namespace {

// One fieldless factory per handle class. Its type is read from a
// temporary handle, its name is the class's own.
#define SW_ENTITY_FACTORY(Class)                                           \
  class Class##Factory : public ZDbEntityFactory {                          \
   public:                                                                  \
    ZDbEntityType GetTypeID() override { return Class(-1).GetType(); }      \
    ZString GetTypeName() override { return Class::GetTypeName(); }         \
    ZDbEntity* CreateEntity(long long id) override { return new Class(id); } \
  };

SW_ENTITY_FACTORY(ZDbEnSegment)
SW_ENTITY_FACTORY(ZDbEnCircle)
SW_ENTITY_FACTORY(ZDbEnCircularArc)
SW_ENTITY_FACTORY(ZDbEnCircularChord)
SW_ENTITY_FACTORY(ZDbEnCircularWedge)
SW_ENTITY_FACTORY(ZDbEnDistantLight)
SW_ENTITY_FACTORY(ZDbEnEllipse)
SW_ENTITY_FACTORY(ZDbEnEllipticalArc)
SW_ENTITY_FACTORY(ZDbEnImage)
SW_ENTITY_FACTORY(ZDbEnInclude)
SW_ENTITY_FACTORY(ZDbEnLine)
SW_ENTITY_FACTORY(ZDbEnLocalLight)
SW_ENTITY_FACTORY(ZDbEnMarker)
SW_ENTITY_FACTORY(ZDbEnMesh)
SW_ENTITY_FACTORY(ZDbEnNURBSCurve)
SW_ENTITY_FACTORY(ZDbEnPolygon)
SW_ENTITY_FACTORY(ZDbEnPolyline)
SW_ENTITY_FACTORY(ZDbEnShell)
SW_ENTITY_FACTORY(ZDbEnSpotLight)
SW_ENTITY_FACTORY(ZDbEnStyle)
SW_ENTITY_FACTORY(ZDbEnText)

#undef SW_ENTITY_FACTORY

struct ByZStringCompare {
  bool operator()(ZString const& a, ZString const& b) const { return a.Compare(b) < 0; }
};

using FactoryMap = std::map<ZString, std::unique_ptr<ZDbEntityFactory>, ByZStringCompare>;

// A second factory under one name replaces the first.
void Register(FactoryMap& map, std::unique_ptr<ZDbEntityFactory> factory) {
  ZString name = factory->GetTypeName();
  map[name] = std::move(factory);
}

FactoryMap BuildRegistry() {
  FactoryMap map;
  // Segment first, then the others in alphabetical order of their names.
  Register(map, std::make_unique<ZDbEnSegmentFactory>());
  Register(map, std::make_unique<ZDbEnCircleFactory>());
  Register(map, std::make_unique<ZDbEnCircularArcFactory>());
  Register(map, std::make_unique<ZDbEnCircularChordFactory>());
  Register(map, std::make_unique<ZDbEnCircularWedgeFactory>());
  Register(map, std::make_unique<ZDbEnDistantLightFactory>());
  Register(map, std::make_unique<ZDbEnEllipseFactory>());
  Register(map, std::make_unique<ZDbEnEllipticalArcFactory>());
  Register(map, std::make_unique<ZDbEnImageFactory>());
  Register(map, std::make_unique<ZDbEnIncludeFactory>());
  Register(map, std::make_unique<ZDbEnLineFactory>());
  Register(map, std::make_unique<ZDbEnLocalLightFactory>());
  Register(map, std::make_unique<ZDbEnMarkerFactory>());
  Register(map, std::make_unique<ZDbEnMeshFactory>());
  Register(map, std::make_unique<ZDbEnNURBSCurveFactory>());
  Register(map, std::make_unique<ZDbEnPolygonFactory>());
  Register(map, std::make_unique<ZDbEnPolylineFactory>());
  Register(map, std::make_unique<ZDbEnShellFactory>());
  Register(map, std::make_unique<ZDbEnSpotLightFactory>());
  Register(map, std::make_unique<ZDbEnStyleFactory>());
  Register(map, std::make_unique<ZDbEnTextFactory>());
  return map;
}

FactoryMap& Registry() {
  static FactoryMap registry = BuildRegistry();
  return registry;
}

// Built when the library is loaded, before any entity can exist.
[[maybe_unused]] FactoryMap const& loadTimeRegistry = Registry();

}  // namespace

ZDbEntityFactory* ZDbEntityFactoryMap::Find(ZString const& typeName) {
  FactoryMap const& registry = Registry();
  auto found = registry.find(typeName);
  return found == registry.end() ? nullptr : found->second.get();
}

ZDbEntity* ZDbEntityFactoryMap::CreateEntityFromID(long long id) {
  ZString word;
  CurrentManager()->HC_Show_Key_Type(id, word);
  ZDbEntityFactory* factory = Find(word);
  return factory ? factory->CreateEntity(id) : new ZDbEntity(id, "");
}

ZString ZDbEntityFactoryMap::SearchTypesFromMask(int mask) {
  if (mask == -1) return "geometry,segment";
  if (mask == -2) return "geometry";
  ZString types;
  for (auto const& [name, factory] : Registry()) {
    if ((factory->GetTypeID() & mask) == 0) continue;
    types += factory->GetTypeName();
    types += ",";
  }
  types.TrimRight(",");
  return types;
}
