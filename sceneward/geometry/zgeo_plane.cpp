#include "sceneward/geometry/zgeo_plane.h"

#include <cmath>

namespace {

constexpr float kDirectionTolerance = ZGeoPoint::kDefaultDirectionTolerance;
// How far one plane's origin may lie from another equivalent plane.
constexpr float kEquivalentPlaneDistance = 0.001f;

}  // namespace

void ZGeoPlane::SetFromThreePoints(ZGeoPoint const& a, ZGeoPoint const& b, ZGeoPoint const& c) {
  origin = a;
  normal = (b - a).Cross(c - a).Direction();
}

void ZGeoPlane::GetTwoAxesOnPlane(ZGeoPoint& axis1, ZGeoPoint& axis2) const {
  ZGeoPoint seed(1, 0, 0);
  if (seed.IsParallelTo(normal, kDirectionTolerance)) seed = ZGeoPoint(0, 1, 0);
  axis2 = normal.Cross(seed).Direction();
  axis1 = normal.Cross(axis2).Direction();
}

bool ZGeoPlane::IsPointOnPlane(ZGeoPoint const& p, float tol) const { return tol >= std::fabs(DistanceToPoint(p)); }

bool ZGeoPlane::IsEquivalentTo(ZGeoPlane const& o) const {
  return IsParallelTo(o) && IsPointOnPlane(o.origin, kEquivalentPlaneDistance);
}

bool ZGeoPlane::IsParallelTo(ZGeoLine const& l) const {
  return normal.IsPerpendicularTo(l.Direction(), kDirectionTolerance);
}

bool ZGeoPlane::IsParallelTo(ZGeoPlane const& o) const { return normal.IsParallelTo(o.normal, kDirectionTolerance); }

bool ZGeoPlane::FindIntersection(ZGeoLine const& l, ZGeoPoint& out) const {
  if (IsParallelTo(l)) return false;
  const ZGeoPoint v = l.Delta();
  const float t = (origin - l.start).Dot(normal) / v.Dot(normal);
  out = l.start + v * t;
  return true;
}

void ZGeoPlane::GetAsCoefficients(float& a, float& b, float& c, float& d) const {
  a = normal.x;
  b = normal.y;
  c = normal.z;
  d = -normal.Dot(origin);
}
