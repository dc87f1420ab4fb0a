#pragma once
// ZGeoPlane: a point on the plane and its normal. The constructors and
// SetFromThreePoints normalise the normal; SetNormalVec stores it raw, and a
// non-unit normal then scales DistanceToPoint.
#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/geometry/zgeo_point.h"

class ZGeoPlane {
 public:
  // Origin (0, 0, 0), normal +Z.
  ZGeoPlane() = default;
  ZGeoPlane(ZGeoPoint const& o, ZGeoPoint const& n) : origin(o), normal(n.Direction()) {}

  ZGeoPoint GetOrigin() const { return origin; }
  void SetOrigin(ZGeoPoint const& p) { origin = p; }
  ZGeoPoint GetNormalVec() const { return normal; }
  void SetNormalVec(ZGeoPoint const& n) { normal = n; }

  // Origin `a`, normal (b - a) x (c - a) normalised: zero for collinear
  // points.
  void SetFromThreePoints(ZGeoPoint const& a, ZGeoPoint const& b, ZGeoPoint const& c);
  // Two unit vectors that with the normal make a perpendicular triple.
  // `axis2` is normal x (1, 0, 0), or normal x (0, 1, 0) when the normal is
  // along X; `axis1` is normal x axis2.
  void GetTwoAxesOnPlane(ZGeoPoint& axis1, ZGeoPoint& axis2) const;
  // Flattens the origin to z = 0; the normal is kept.
  void ClearZCoord() { origin.z = 0; }

  // Signed: positive on the side the normal points to.
  float DistanceToPoint(ZGeoPoint const& p) const { return (p - origin).Dot(normal); }
  bool IsPointOnPlane(ZGeoPoint const& p, float tol) const;
  ZGeoPoint ProjectPointOnPlane(ZGeoPoint const& p) const { return p - normal * DistanceToPoint(p); }
  // Parallel normals (either sense) and `o`'s origin within 0.001 of this
  // plane.
  bool IsEquivalentTo(ZGeoPlane const& o) const;
  bool IsParallelTo(ZGeoLine const& l) const;
  bool IsParallelTo(ZGeoPlane const& o) const;
  // Where the infinite line meets the plane; false, with `out` untouched,
  // when they are parallel.
  bool FindIntersection(ZGeoLine const& l, ZGeoPoint& out) const;
  // a x + b y + c z + d = 0.
  void GetAsCoefficients(float& a, float& b, float& c, float& d) const;

  ZGeoPoint origin;
  ZGeoPoint normal{0, 0, 1};
};
