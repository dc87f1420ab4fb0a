#pragma once
// ZGeoLine: a directed pair of points, used both as the finite segment
// between them and as the infinite line through them. Operations named
// Segment... stop at the ends; the others don't. Nothing is cached.
#include "sceneward/geometry/zgeo_point.h"

class ZGeoLine {
 public:
  ZGeoLine() = default;
  ZGeoLine(ZGeoPoint const& s, ZGeoPoint const& e) : start(s), end(e) {}

  ZGeoPoint GetStart() const { return start; }
  void SetStart(ZGeoPoint const& p) { start = p; }
  ZGeoPoint GetEnd() const { return end; }
  void SetEnd(ZGeoPoint const& p) { end = p; }
  // Flattens both ends to z = 0.
  void ClearZCoord();

  // The unit direction from start to end; zero for a degenerate line.
  ZGeoPoint Direction() const { return Delta().Direction(); }
  ZGeoPoint Delta() const { return end - start; }
  float Length() const { return Delta().Length(); }
  float Length2() const { return Delta().Length2(); }
  ZGeoPoint MidPoint() const { return (end + start) * 0.5f; }
  // Delta() x v, not normalised.
  ZGeoPoint GetPerpendicularVector(ZGeoPoint const& v) const { return Delta().Cross(v); }

  // Both ends equal at 2000 units in the last place; a reversed line differs.
  bool operator==(ZGeoLine const& o) const;
  bool IsParallelTo(ZGeoLine const& o, float tol) const { return Delta().IsParallelTo(o.Delta(), tol); }
  bool IsPerpendicularTo(ZGeoLine const& o, float tol) const { return Delta().IsPerpendicularTo(o.Delta(), tol); }
  // Whether both ends of `o` lie in one plane through this line. Lines that
  // share a point count as not coplanar: that point spans no plane.
  bool IsCoPlanarWith(ZGeoLine const& o) const;
  // Whether the single point `p` lies on the infinite line.
  bool IsColinearWith(ZGeoPoint const& p, int ulps) const;

  // The foot of `p` on the infinite line; `start` for a degenerate line.
  ZGeoPoint ClosestPointOnLine(ZGeoPoint const& p) const;
  float DistanceToPoint(ZGeoPoint const& p) const { return ClosestPointOnLine(p).DistanceTo(p); }
  float DistanceToPoint2(ZGeoPoint const& p) const { return (ClosestPointOnLine(p) - p).Length2(); }
  // The nearest point of the segment; `start` for a degenerate segment.
  ZGeoPoint SegmentClosestPointOnLine(ZGeoPoint const& p) const;
  float SegmentDistanceToPoint(ZGeoPoint const& p) const { return SegmentClosestPointOnLine(p).DistanceTo(p); }
  float SegmentDistanceToPoint2(ZGeoPoint const& p) const { return (SegmentClosestPointOnLine(p) - p).Length2(); }

  // The nearest pair of points of the two infinite lines. For parallel lines
  // `onThis` is `start`. A degenerate line may give infinities.
  void ClosestPointToLine(ZGeoLine const& o, ZGeoPoint& onThis, ZGeoPoint& onOther) const;
  // The nearest pair of points of the two segments, found by clamping the
  // infinite lines' answer once to each segment in turn.
  void SegmentClosestPointToSegment(ZGeoLine const& o, ZGeoPoint& onThis, ZGeoPoint& onOther) const;
  // Whether the infinite lines come within `tol` of each other; if so `out`
  // is the midpoint of their nearest points, and otherwise untouched.
  // Coincident lines meet at `start`; a degenerate line meets nothing.
  bool FindIntersection(ZGeoLine const& o, ZGeoPoint& out, float tol) const;
  // The angle between the lines, without sense of direction: 0 to pi/2.
  float AngleToLine(ZGeoLine const& o) const;
  // For segments that meet only at end points, the angle between the two
  // rays leaving the meeting point (0 to pi); otherwise AngleToLine.
  float AngleToLineSegment(ZGeoLine const& o) const;

  ZGeoPoint start;
  ZGeoPoint end;
};
