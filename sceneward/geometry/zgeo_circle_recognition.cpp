// Recognition of circles and arcs in tessellated point lists.
#include <cmath>
#include <cstddef>
#include <vector>

#include "sceneward/geometry/sample_statistics.h"
#include "sceneward/geometry/zgeo_circle.h"

namespace {

// How close two bisectors must come to give a centre estimate.
constexpr float kBisectorTolerance = 0.01f;
// A centre coordinate or radius must occur this often, exactly, to be taken
// as the most frequent value rather than the median.
constexpr int kModeMinCount = 4;

using sceneward::geometry::SortAndTakeModeOrMedian;

}  // namespace

bool ZGeoCircle::MakeFromPointVec(std::vector<ZGeoPoint> const& pts, bool allowArc, float planeTol, float radiusTol) {
  const std::size_t n = pts.size();
  if (n < 3) return false;
  ZGeoPlane plane;
  plane.SetFromThreePoints(pts[0], pts[n / 3], pts[n * 2 / 3]);
  for (std::size_t i = 1; i < n; ++i) {
    if (!plane.IsPointOnPlane(pts[i], planeTol)) return false;
  }
  up = plane.GetNormalVec();
  if (up.IsZero(planeTol)) return false;

  // Bisectors of chords between points half the list apart: on a
  // tessellated circle these chords are long, so their bisectors are well
  // conditioned. Each pair of neighbouring bisectors estimates the centre.
  const std::size_t m = (n + 1) / 2;
  std::vector<ZGeoLine> bisectors;
  bisectors.reserve(m);
  for (std::size_t k = 0; k < m; ++k) bisectors.push_back(ChordBisector(pts[k], pts[(m + k) % n], up));
  std::vector<float> xs, ys, zs;
  for (std::size_t i = 0; i < m; i += 2) {
    ZGeoPoint estimate;
    if (!bisectors[i].FindIntersection(bisectors[(i + 1) % m], estimate, kBisectorTolerance)) return false;
    xs.push_back(estimate.x);
    ys.push_back(estimate.y);
    zs.push_back(estimate.z);
  }
  center = ZGeoPoint(SortAndTakeModeOrMedian(xs, kModeMinCount), SortAndTakeModeOrMedian(ys, kModeMinCount),
                     SortAndTakeModeOrMedian(zs, kModeMinCount));

  std::vector<float> distances;
  distances.reserve(n);
  for (ZGeoPoint const& p : pts) distances.push_back(center.DistanceTo(p));
  const float r = SortAndTakeModeOrMedian(distances, kModeMinCount);
  diameter = 2 * r;
  const float limit = r * radiusTol;
  if (std::fabs(distances.front() - r) > limit || std::fabs(distances.back() - r) > limit) return false;

  if (allowArc && !pts[0].Equals(pts[n - 1], ZGeoPoint::kDefaultUlps)) {
    first = pts[0];
    second = pts[n >> 1];
    third = pts[n - 1];
    complete = false;
    return true;
  }
  SetThreePointsOnFullCircle();
  complete = true;
  return true;
}
