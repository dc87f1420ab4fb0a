#include "sceneward/geometry/zgeo_hole.h"

ZGeoPoint ZGeoHole::ClosestPointOnHole(ZGeoPoint const& p) const {
  const ZGeoPoint s = GetStartCircle().ClosestPointOnCircle(p);
  const ZGeoPoint e = GetEndCircle().ClosestPointOnCircle(p);
  const ZGeoPoint m = GetAxis().SegmentClosestPointOnLine(p);
  const float ds = (s - p).Length2();
  const float de = (e - p).Length2();
  const float dm = (m - p).Length2();
  if (ds < de && ds < dm) return s;
  return de >= dm ? m : e;
}
