#include "sceneward/scene/entities/zdb_en_marker.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnMarker::ZDbEnMarker(ZDbEnSegment const& parent, ZGeoPoint const& point) : ZDbEnMarker(-1) {
  InsertIntoSegment(
      parent, [&] { SetID(CurrentManager()->HC_Insert_Marker(point.x, point.y, point.z), ""); });
}

ZGeoPoint ZDbEnMarker::GetPoint() const {
  ZGeoPoint point;
  if (IsValid()) CurrentManager()->HC_Show_Marker(GetID(), &point.x, &point.y, &point.z);
  return point;
}
