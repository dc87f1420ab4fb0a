// ZGeoPolyline: the cached shape answers, the point editing and the
// nearest point. Also the plain NURBS curve record.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "sceneward/geometry/zgeo_nurbs_curve.h"
#include "sceneward/geometry/zgeo_polyline.h"

namespace {

ZGeoPolyline MakePolyline(std::vector<ZGeoPoint> const& points) {
  ZGeoPolyline p;
  for (ZGeoPoint const& point : points) p.AppendPoint(point);
  return p;
}

std::vector<ZGeoPoint> PointsOf(ZGeoPolyline const& p) {
  return std::vector<ZGeoPoint>(p.GetPointBuffer(), p.GetPointBuffer() + p.GetNumberOfPoints());
}

void ExpectPoints(std::vector<ZGeoPoint> const& expected, ZGeoPolyline const& p) {
  const std::vector<ZGeoPoint> actual = PointsOf(p);
  ASSERT_EQ(expected.size(), actual.size());
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_TRUE(expected[i].Equals(actual[i], 0)) << i;
}

TEST(ZGeoPolylinePoints, OutOfRangeIndicesLengthAndClosestPoint) {
  ZGeoPolyline p;
  p.SetNumberOfPoints(2);
  p.SetPoint(2, ZGeoPoint(9, 9, 9));
  p.SetPoint(-1, ZGeoPoint(9, 9, 9));
  ExpectPoints({ZGeoPoint(), ZGeoPoint()}, p);
  EXPECT_TRUE(p.GetPoint(-1).Equals(ZGeoPoint(), 0));
  EXPECT_EQ(MakePolyline({ZGeoPoint(5, 5, 5)}).Length(), 0);
  const ZGeoPolyline corner = MakePolyline({ZGeoPoint(0, 0, 0), ZGeoPoint(3, 0, 0), ZGeoPoint(3, 4, 0)});
  EXPECT_FLOAT_EQ(corner.Length(), 7);
  EXPECT_TRUE(corner.FindClosestPoint(ZGeoPoint(4, 2, 0)).Equals(ZGeoPoint(3, 2, 0), 0));
  EXPECT_TRUE(ZGeoPolyline().FindClosestPoint(ZGeoPoint(1, 2, 3)).Equals(ZGeoPoint(1, 2, 3), 0));
}

TEST(ZGeoPolylinePoints, FindClosestPointMatchesABruteForceSearch) {
  std::mt19937 rng(41);
  std::uniform_real_distribution<float> coordinate(-10, 10);
  ZGeoPolyline p;
  for (int i = 0; i < 30; ++i) p.AppendPoint(ZGeoPoint(coordinate(rng), coordinate(rng), coordinate(rng)));
  for (int trial = 0; trial < 20; ++trial) {
    const ZGeoPoint q(coordinate(rng), coordinate(rng), coordinate(rng));
    // Sample every segment densely in double precision.
    double best = 1e30;
    for (int i = 1; i < 30; ++i) {
      const ZGeoPoint a = p.GetPoint(i - 1), b = p.GetPoint(i);
      for (int k = 0; k <= 2000; ++k) {
        const double t = k / 2000.0;
        const double dx = a.x + t * (b.x - a.x) - q.x, dy = a.y + t * (b.y - a.y) - q.y,
                     dz = a.z + t * (b.z - a.z) - q.z;
        best = std::min(best, std::sqrt(dx * dx + dy * dy + dz * dz));
      }
    }
    const float found = p.FindClosestPoint(q).DistanceTo(q);
    EXPECT_LE(found, best + 1e-4);
    EXPECT_GE(found, best - 0.02);
  }
}

TEST(ZGeoPolylineShape, PlanarityNeedsThreeSpanningPointsAndSkipsTheLast) {
  EXPECT_FALSE(MakePolyline({ZGeoPoint(1, 1, 1), ZGeoPoint(1, 1, 1)}).IsPlanar());
  EXPECT_FALSE(MakePolyline({ZGeoPoint(0, 0, 0), ZGeoPoint(1, 1, 1), ZGeoPoint(2, 2, 2)}).IsPlanar());
  const ZGeoPoint square[] = {ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0), ZGeoPoint(1, 1, 0), ZGeoPoint(0, 1, 0)};
  const ZGeoPoint off(0.5f, 0.5f, 1);
  ZGeoPolyline offLast = MakePolyline({square[0], square[1], square[2], square[3], off});
  EXPECT_TRUE(offLast.IsPlanar());
  ZGeoPlane plane;
  ASSERT_TRUE(offLast.GetPlane(plane));
  EXPECT_NEAR(std::fabs(plane.GetNormalVec().z), 1, 1e-6f);
  EXPECT_FALSE(MakePolyline({square[0], square[1], square[2], off, square[3]}).IsPlanar());
  // Repeated and collinear leading points are skipped to find the plane.
  EXPECT_TRUE(MakePolyline({square[0], square[0], ZGeoPoint(0.5f, 0, 0), square[1], square[2], square[3]})
                  .IsPlanar());
}

TEST(ZGeoPolylineShape, AnswersAreCachedUntilThePointsChange) {
  ZGeoPolyline p = MakePolyline({ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0), ZGeoPoint(2, 0.01f, 0)});
  ZGeoLine line;
  EXPECT_FALSE(p.FitToLine(line, 0.00001f));
  EXPECT_FALSE(p.FitToLine(line, 0.01f));  // the first answer stands
  p.AppendPoint(ZGeoPoint(3, 0.02f, 0));
  ASSERT_TRUE(p.FitToLine(line, 0.01f));
  EXPECT_TRUE(line.GetEnd().Equals(ZGeoPoint(3, 0.02f, 0), 0));

  ZGeoPolyline collinear = MakePolyline({ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0), ZGeoPoint(2, 0, 0)});
  EXPECT_FALSE(collinear.IsPlanar());
  collinear.SetPoint(2, ZGeoPoint(2, 1, 0));
  EXPECT_TRUE(collinear.IsPlanar());
  // Writing through the buffer doesn't clear the answer.
  collinear.GetPointBuffer()[2] = ZGeoPoint(2, 0, 0);
  EXPECT_TRUE(collinear.IsPlanar());
  EXPECT_FALSE(MakePolyline({ZGeoPoint(1, 1, 1)}).IsPlanar());
}

TEST(ZGeoPolylineShape, CirclesNeedEnoughDistinctPoints) {
  ZGeoPolyline closed;
  for (int i = 0; i <= 8; ++i) {
    const double a = 2 * std::numbers::pi * i / 8;
    closed.AppendPoint(ZGeoPoint(float(2 * std::cos(a)), float(2 * std::sin(a)), 0));
  }
  ZGeoCircle c;
  ZGeoPolyline copy = closed;
  // Nine points, of which the last repeats the first: eight distinct.
  EXPECT_FALSE(copy.FitToCircle(c, 9, 0.01f, 0.01f, true));
  ASSERT_TRUE(closed.FitToCircle(c, 8, 0.01f, 0.01f, true));
  EXPECT_TRUE(c.IsCompleteCircle());
  EXPECT_NEAR(c.GetRadius(), 2, 1e-5f);
}

TEST(ZGeoPolylineEditing, RedundantPointsGoOneAtATime) {
  const ZGeoPoint p(1, 1, 1), q(2, 2, 2);
  ZGeoPolyline line = MakePolyline({p, p, p, q});
  line.RemoveRedundantPoints();
  ExpectPoints({p, p, q}, line);
}

TEST(ZGeoPolylineEditing, StraightRunsLoseTheirMiddlePoints) {
  ZGeoPolyline open = MakePolyline({ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0), ZGeoPoint(2, 0, 0), ZGeoPoint(2, 2, 0)});
  open.SimplifyLinearGroups();
  ExpectPoints({ZGeoPoint(0, 0, 0), ZGeoPoint(2, 0, 0), ZGeoPoint(2, 2, 0)}, open);

  ZGeoPolyline closed = MakePolyline({ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0), ZGeoPoint(2, 0, 0), ZGeoPoint(2, 2, 0),
                                      ZGeoPoint(0, 2, 0), ZGeoPoint(0, 0, 0)});
  closed.SimplifyLinearGroups();
  const std::vector<ZGeoPoint> points = PointsOf(closed);
  ASSERT_GE(points.size(), 4u);
  EXPECT_TRUE(points.front().Equals(points.back(), 2000));
  for (ZGeoPoint const& point : points) EXPECT_FALSE(point.Equals(ZGeoPoint(1, 0, 0), 2000));
}

TEST(ZGeoNURBSCurve, CopiesAreIndependent) {
  EXPECT_EQ(ZGeoNURBSCurve().GetDegree(), 1);
  const ZGeoNURBSCurve curve(2, {ZGeoPoint(), ZGeoPoint(1, 1, 0), ZGeoPoint(2, 0, 0)}, {1, 0.5f, 1}, {0, 0, 0, 1, 1, 1});
  ZGeoNURBSCurve copy = curve;
  copy.SetDegree(3);
  EXPECT_EQ(curve.GetDegree(), 2);
  EXPECT_EQ(copy.GetKnots().size(), 6u);
}

}  // namespace
