#include "sceneward/scene/entities/zdb_circle_calls.h"

#include "sceneward/frame/thread_registry.h"

long long InsertThroughThreePoints(ZThreePointInsert insert, ZGeoCircle const& circle) {
  ZGeoPoint p[3];
  circle.GetThreePoints(p[0], p[1], p[2]);
  return (CurrentManager()->*insert)(&p[0], &p[1], &p[2]);
}

ZGeoCircle ShowThroughThreePoints(ZThreePointShow show, long long key, bool complete) {
  if (key == -1) return ZGeoCircle();
  ZGeoPoint p[3];
  (CurrentManager()->*show)(key, &p[0], &p[1], &p[2]);
  return ZGeoCircle(p[0], p[1], p[2], complete);
}
