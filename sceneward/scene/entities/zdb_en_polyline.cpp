#include "sceneward/scene/entities/zdb_en_polyline.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnPolyline::ZDbEnPolyline(ZDbEnSegment const& parent, ZGeoPolyline const& polyline)
    : ZDbEnPolyline(-1) {
  InsertIntoSegment(parent, [&] {
    SetID(CurrentManager()->HC_Insert_Polyline(static_cast<int>(polyline.GetNumberOfPoints()),
                                               polyline.GetPointBuffer()),
          "");
  });
}

int ZDbEnPolyline::GetNumberOfPoints() const {
  int count = 0;
  CurrentManager()->HC_Show_Polyline_Count(GetID(), &count);
  return count;
}

void ZDbEnPolyline::GetPolyline(ZGeoPolyline& polyline) const {
  if (!IsValid()) return;
  int count = GetNumberOfPoints();
  polyline.SetNumberOfPoints(count);
  CurrentManager()->HC_Show_Polyline(GetID(), &count, polyline.GetPointBuffer());
}

ZGeoLine ZDbEnPolyline::GetPolylineSegment(int index) const {
  ZGeoPoint ends[2];
  if (IsValid()) CurrentManager()->HC_Show_Partial_Polyline(GetID(), index, 2, ends);
  return ZGeoLine(ends[0], ends[1]);
}
