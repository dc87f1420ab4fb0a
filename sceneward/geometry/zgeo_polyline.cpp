#include "sceneward/geometry/zgeo_polyline.h"

#include <cstddef>

namespace {

constexpr int kUlps = ZGeoPoint::kDefaultUlps;
// How far a point may lie from the plane of a planar polyline.
constexpr float kPlanarTolerance = 0.001f;

// Runs `compute` only while `state` is unknown, and keeps its answer.
template <typename Compute>
bool CachedAnswer(int& state, Compute&& compute) {
  if (state < 0) state = compute() ? 1 : 0;
  return state == 1;
}

}  // namespace

void ZGeoPolyline::ClearCache() {
  planeState_ = kUnknown;
  circleState_ = kUnknown;
  lineState_ = kUnknown;
}

void ZGeoPolyline::SetNumberOfPoints(int n) {
  points_.resize(n > 0 ? static_cast<std::size_t>(n) : 0);
  ClearCache();
}

void ZGeoPolyline::SetPoint(int i, ZGeoPoint const& p) {
  if (i < 0 || static_cast<std::size_t>(i) >= points_.size()) return;
  points_[i] = p;
  ClearCache();
}

ZGeoPoint ZGeoPolyline::GetPoint(int i) const {
  if (i < 0 || static_cast<std::size_t>(i) >= points_.size()) return ZGeoPoint();
  return points_[i];
}

void ZGeoPolyline::AppendPoint(ZGeoPoint p) {
  points_.push_back(p);
  ClearCache();
}

bool ZGeoPolyline::FitToLine(ZGeoLine& out, float tol) {
  if (!CachedAnswer(lineState_, [&] { return FitToLineActual(line_, tol); })) return false;
  out = line_;
  return true;
}

bool ZGeoPolyline::FitToLineActual(ZGeoLine& line, float tol) const {
  if (points_.size() < 2) return false;
  line = ZGeoLine(points_.front(), points_.back());
  const ZGeoPoint ref = points_[1] - points_[0];
  for (std::size_t i = 2; i < points_.size(); ++i) {
    if (!ref.IsParallelTo(points_[i] - points_[i - 1], tol)) return false;
  }
  return true;
}

bool ZGeoPolyline::FitToCircle(ZGeoCircle& out, int minPoints, float planeTol, float radiusTol, bool allowArc) {
  const bool fits = CachedAnswer(
      circleState_, [&] { return FitToCircleActual(circle_, minPoints, planeTol, radiusTol, allowArc); });
  if (!fits) return false;
  out = circle_;
  return true;
}

bool ZGeoPolyline::FitToCircleActual(ZGeoCircle& circle, int minPoints, float planeTol, float radiusTol,
                                     bool allowArc) const {
  std::size_t distinct = points_.size();
  if (distinct > 0 && points_.front().Equals(points_.back(), kUlps)) --distinct;
  if (distinct < static_cast<std::size_t>(minPoints > 0 ? minPoints : 0)) return false;
  return circle.MakeFromPointVec(points_, allowArc, planeTol, radiusTol);
}

bool ZGeoPolyline::IsPlanar() {
  return CachedAnswer(planeState_, [&] { return GetPlaneActual(plane_); });
}

bool ZGeoPolyline::GetPlane(ZGeoPlane& out) {
  if (!IsPlanar()) return false;
  out = plane_;
  return true;
}

bool ZGeoPolyline::GetPlaneActual(ZGeoPlane& plane) const {
  const std::size_t n = points_.size();
  if (n < 3) return false;
  ZGeoPoint const& a = points_[0];
  std::size_t b = 1;
  while (b < n && points_[b].Equals(a, kUlps)) ++b;
  if (b == n) return false;
  const ZGeoLine ab(a, points_[b]);
  std::size_t c = b + 1;
  while (c < n && ab.IsColinearWith(points_[c], kUlps)) ++c;
  if (c == n) return false;
  plane.SetFromThreePoints(a, points_[b], points_[c]);
  for (std::size_t i = c + 1; i + 1 < n; ++i) {
    if (!plane.IsPointOnPlane(points_[i], kPlanarTolerance)) return false;
  }
  return true;
}

void ZGeoPolyline::RemoveRedundantPoints() {
  for (std::size_t i = 0; i + 1 < points_.size(); ++i) {
    if (points_[i].Equals(points_[i + 1], kUlps)) points_.erase(points_.begin() + (i + 1));
  }
}

void ZGeoPolyline::SimplifyLinearGroups() {
  if (points_.size() < 3) return;
  const bool closed = points_.front().Equals(points_.back(), kUlps);
  std::size_t i = 0;
  while (i < points_.size() && points_.size() >= 3) {
    const std::size_t count = points_.size();
    const std::size_t mid = (i + 1) % count;
    const std::size_t far = (i + 2) % count;
    if (ZGeoLine(points_[i], points_[far]).IsColinearWith(points_[mid], kUlps)) {
      points_.erase(points_.begin() + mid);
    } else {
      ++i;
    }
  }
  // Removing straight runs across the seam can take the closing point.
  if (closed && !points_.front().Equals(points_.back(), kUlps)) points_.push_back(points_.front());
}

ZGeoPoint ZGeoPolyline::FindClosestPoint(ZGeoPoint const& p) const {
  if (points_.empty()) return p;
  ZGeoPoint best = points_[0];
  float bestDistance = best.DistanceTo(p);
  for (std::size_t i = 1; i < points_.size(); ++i) {
    const ZGeoPoint c = ZGeoLine(points_[i - 1], points_[i]).SegmentClosestPointOnLine(p);
    const float distance = c.DistanceTo(p);
    if (!(distance >= bestDistance)) {
      best = c;
      bestDistance = distance;
    }
  }
  return best;
}

float ZGeoPolyline::Length() const {
  float total = 0;
  for (std::size_t i = 1; i < points_.size(); ++i) total += points_[i].DistanceTo(points_[i - 1]);
  return total;
}
