#include "sceneward/scene/entities/zdb_en_poly_cylinder.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

// The key of the new object is dropped on purpose: callers get an invalid
// handle and find the object, if they need it, by searching the segment.
ZDbEnPolyCylinder::ZDbEnPolyCylinder(ZDbEnSegment const& parent, ZGeoPolyline const& polyline,
                                     std::vector<float> const& radii, char const* capping)
    : ZDbEnPolyCylinder(-1) {
  InsertIntoSegment(parent, [&] {
    CurrentManager()->HC_Insert_PolyCylinder(static_cast<int>(polyline.GetNumberOfPoints()),
                                             polyline.GetPointBuffer(),
                                             static_cast<int>(radii.size()), radii.data(), capping);
  });
}
