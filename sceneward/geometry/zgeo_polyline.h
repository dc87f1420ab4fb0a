#pragma once
// ZGeoPolyline: an ordered list of points that can also say what shape it
// is: planar, a straight line, a circle. The recognition is costly, so each
// answer is cached until the points change through SetNumberOfPoints,
// SetPoint or AppendPoint. Later calls return the cached answer whatever
// tolerances they pass. Writing through GetPointBuffer,
// RemoveRedundantPoints and SimplifyLinearGroups leave the caches as they
// are; callers that edit the points that way and then ask again start from
// a fresh polyline.
#include <cstddef>
#include <vector>

#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/geometry/zgeo_plane.h"
#include "sceneward/geometry/zgeo_point.h"

class ZGeoPolyline {
 public:
  ZGeoPolyline() = default;

  // Resizes; new points are (0, 0, 0). A negative count empties the list.
  void SetNumberOfPoints(int n);
  std::size_t GetNumberOfPoints() const { return points_.size(); }
  // The points' storage, for reading or filling in place; may be null when
  // there are none.
  ZGeoPoint* GetPointBuffer() { return points_.data(); }
  ZGeoPoint const* GetPointBuffer() const { return points_.data(); }
  // Ignored when `i` is out of range.
  void SetPoint(int i, ZGeoPoint const& p);
  // (0, 0, 0) when `i` is out of range.
  ZGeoPoint GetPoint(int i) const;
  void AppendPoint(ZGeoPoint p);

  // Whether every step runs parallel to the first one, within `tol` on
  // 1 - |cos|; if so, `out` is the line from the first to the last point.
  // Fewer than two points: false.
  bool FitToLine(ZGeoLine& out, float tol);
  // Whether the points make a circle (or with `allowArc` an open arc) as
  // ZGeoCircle::MakeFromPointVec recognises it, given at least `minPoints`
  // distinct points (a closing point that repeats the first isn't counted).
  bool FitToCircle(ZGeoCircle& out, int minPoints, float planeTol, float radiusTol, bool allowArc);
  // Whether all points lie within 0.001 of the plane of the first three
  // points that span one. The last point isn't tested: a closed polyline
  // repeats the first there. Fewer than three distinct, non-collinear
  // points: false.
  bool IsPlanar();
  // IsPlanar, and if so the plane into `out`.
  bool GetPlane(ZGeoPlane& out);

  // Drops a point equal to its predecessor, then moves past the survivor:
  // of three equal points in a row, two remain.
  void RemoveRedundantPoints();
  // Removes the middle points of straight runs, treating the list as a
  // cycle. A closed polyline stays closed.
  void SimplifyLinearGroups();
  // The nearest point on any segment; the first point for a single point,
  // and `p` itself for an empty polyline. The first minimum wins.
  ZGeoPoint FindClosestPoint(ZGeoPoint const& p) const;
  // The sum of the segment lengths; 0 below two points.
  float Length() const;

 private:
  enum State { kUnknown = -1, kNo = 0, kYes = 1 };

  void ClearCache();
  bool FitToLineActual(ZGeoLine& line, float tol) const;
  bool FitToCircleActual(ZGeoCircle& circle, int minPoints, float planeTol, float radiusTol, bool allowArc) const;
  bool GetPlaneActual(ZGeoPlane& plane) const;

  std::vector<ZGeoPoint> points_;
  int planeState_ = kUnknown;
  ZGeoPlane plane_;
  int circleState_ = kUnknown;
  ZGeoCircle circle_;
  int lineState_ = kUnknown;
  ZGeoLine line_;
};
