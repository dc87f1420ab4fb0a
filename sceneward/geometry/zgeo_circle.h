#pragma once
// ZGeoCircle: a circle or circular arc in space, held both as centre, unit
// normal (`up`) and diameter, and as three points on the curve. For an arc
// the points are its start, a point between and its end; for a full circle
// the first three of GetFourPointsOnCircle.
//
// The sense of an arc follows `up`: three points running counter-clockwise
// seen from +Z give up = -Z, and GetTotalAngle measures with that normal.
#include <vector>

#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/geometry/zgeo_plane.h"
#include "sceneward/geometry/zgeo_point.h"

class ZGeoCircle {
 public:
  // Centre zero, up +Z, diameter 0, complete, the three points zero.
  ZGeoCircle() = default;
  // A full circle; the float is the diameter. Up is +Z.
  ZGeoCircle(ZGeoPoint const& center, float diameter);
  // A full circle; `up` is normalised.
  ZGeoCircle(ZGeoPoint const& center, ZGeoPoint const& up, float diameter);
  // See SetFromThreePoints.
  ZGeoCircle(ZGeoPoint const& a, ZGeoPoint const& b, ZGeoPoint const& c, bool complete);

  // The circle through three points: `up` is (a - b) x (c - b) normalised,
  // the centre is where two chord bisectors meet. For collinear points the
  // bisectors don't meet and the centre keeps its former value.
  void SetFromThreePoints(ZGeoPoint const& a, ZGeoPoint const& b, ZGeoPoint const& c, bool complete);

  ZGeoPoint GetCenter() const { return center; }
  void SetCenter(ZGeoPoint const& c) { center = c; }
  float GetDiameter() const { return diameter; }
  void SetDiameter(float d) { diameter = d; }
  float GetRadius() const { return diameter * 0.5f; }
  void SetRadius(float r) { diameter = r * 2; }
  ZGeoPoint GetUpVector() const { return up; }
  // Normalises `u`.
  void SetUpVector(ZGeoPoint const& u) { up = u.Direction(); }
  bool IsCompleteCircle() const { return complete; }
  void GetThreePoints(ZGeoPoint& a, ZGeoPoint& b, ZGeoPoint& c) const;
  ZGeoPlane GetPlane() const { return ZGeoPlane(center, up); }
  // Flattens the centre and the three points to z = 0; `up` is kept.
  void ClearZCoord();
  // The circle through the three points scaled about the world origin.
  ZGeoCircle Scale(float s) const;
  // Centre and up equal at 2000 units in the last place, and the same
  // diameter exactly. The three points and `complete` aren't compared.
  bool Equals(ZGeoCircle const& o) const;

  // `p` projected on the circle's plane and pushed out to the circle. A
  // point on the axis gives the centre.
  ZGeoPoint ClosestPointOnCircle(ZGeoPoint const& p) const;
  // The unit tangent up x (q - centre) at the point q nearest to `p`.
  ZGeoPoint GetTangentAtPoint(ZGeoPoint const& p) const;
  // 2 pi for a full circle; for an arc the angle from the first point
  // through the second to the third.
  float GetTotalAngle() const;
  float GetPerimeterLength() const;
  // The first point for a full circle. For an arc, the point half the total
  // angle away from the first point, on the side opposite to the one the
  // arc takes from there (unless `up` was turned round with SetUpVector).
  ZGeoPoint GetMidPoint() const;
  // Four points a quarter turn apart, starting from a direction chosen from
  // `up` alone.
  void GetFourPointsOnCircle(ZGeoPoint& p1, ZGeoPoint& p2, ZGeoPoint& p3, ZGeoPoint& p4) const;

  // Where the infinite line crosses the full circle, in the XY plane only:
  // 0 unless `up` is along Z and both the centre and the line's end point
  // have z exactly 0. Returns the count, 2, 1 (a tangent, p1 == p2) or 0;
  // the points have the centre's z.
  int GetIntersectionWithLine(ZGeoLine const& l, ZGeoPoint& p1, ZGeoPoint& p2) const;
  // As GetIntersectionWithLine, keeping only points within the segment; a
  // single one is in `p1`.
  int GetIntersectionWithLineSegment(ZGeoLine const& l, ZGeoPoint& p1, ZGeoPoint& p2) const;

  // Recognises a circle, or with `allowArc` an open arc, in a tessellated
  // list of at least 3 points: all within `planeTol` of one plane, and every
  // distance to the recognised centre within `radiusTol` times the radius.
  // Centre and radius are the most frequent (or median) values of many
  // estimates, so a few stray points don't move them. On false the centre,
  // up and diameter may already have been overwritten.
  bool MakeFromPointVec(std::vector<ZGeoPoint> const& pts, bool allowArc, float planeTol, float radiusTol);

 private:
  // The line through the midpoint of a and b, perpendicular to both the
  // chord and `up`: in the circle's plane it runs through the centre.
  static ZGeoLine ChordBisector(ZGeoPoint const& a, ZGeoPoint const& b, ZGeoPoint const& up);
  void SetThreePointsOnFullCircle();

  ZGeoPoint center;
  ZGeoPoint up{0, 0, 1};
  float diameter = 0;
  bool complete = true;
  ZGeoPoint first;
  ZGeoPoint second;
  ZGeoPoint third;
};
