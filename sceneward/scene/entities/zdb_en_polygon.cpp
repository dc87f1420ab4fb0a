#include "sceneward/scene/entities/zdb_en_polygon.h"

#include <cstddef>

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnPolygon::ZDbEnPolygon(ZDbEnSegment const& parent, std::vector<ZGeoPoint> const& points)
    : ZDbEnPolygon(-1) {
  InsertIntoSegment(parent, [&] {
    SetID(CurrentManager()->HC_Insert_Polygon(static_cast<int>(points.size()), points.data()), "");
  });
}

// The points land in the vector's storage only; its size is the caller's.
void ZDbEnPolygon::Get(std::vector<ZGeoPoint>& points) const {
  if (!IsValid()) return;
  int count = 0;
  CurrentManager()->HC_Show_Polygon_Count(GetID(), &count);
  if (count > 0 && static_cast<std::size_t>(count) > points.capacity()) points.reserve(count);
  CurrentManager()->HC_Show_Polygon(GetID(), &count, points.data());
}
