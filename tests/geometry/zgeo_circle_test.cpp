// ZGeoCircle, ZGeoEllipse and ZGeoHole: circles through points, arcs,
// crossings with lines, and the recognition of circles in noisy point lists,
// checked against the circles that made them.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "sceneward/geometry/sample_statistics.h"
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/geometry/zgeo_ellipse.h"
#include "sceneward/geometry/zgeo_hole.h"

namespace {

constexpr double kPi = std::numbers::pi;

void ExpectNear(ZGeoPoint const& expected, ZGeoPoint const& actual, float tolerance) {
  EXPECT_NEAR(expected.x, actual.x, tolerance);
  EXPECT_NEAR(expected.y, actual.y, tolerance);
  EXPECT_NEAR(expected.z, actual.z, tolerance);
}

// `n` points of a circle from angle `from` to `to`, counter-clockwise about
// e1 x e2, with relative radial noise `noise` drawn from `rng`.
std::vector<ZGeoPoint> PointsOnCircle(int n, ZGeoPoint const& c, double r, double from, double to,
                                      ZGeoPoint const& e1 = ZGeoPoint(1, 0, 0),
                                      ZGeoPoint const& e2 = ZGeoPoint(0, 1, 0), double noise = 0,
                                      std::mt19937* rng = nullptr) {
  std::normal_distribution<double> jitter(0, noise);
  std::vector<ZGeoPoint> points;
  for (int i = 0; i < n; ++i) {
    const double a = from + (to - from) * i / (n - 1);
    const double radial = r * (1 + (rng ? jitter(*rng) : 0));
    const double u = radial * std::cos(a), v = radial * std::sin(a);
    points.emplace_back(float(c.x + u * e1.x + v * e2.x), float(c.y + u * e1.y + v * e2.y),
                        float(c.z + u * e1.z + v * e2.z));
  }
  return points;
}

TEST(ZGeoCircleConstruction, FullCirclesAndThreePoints) {
  const ZGeoCircle c(ZGeoPoint(1, 2, 3), 10.0f);
  EXPECT_EQ(c.GetRadius(), 5);
  ZGeoPoint p[4];
  c.GetFourPointsOnCircle(p[0], p[1], p[2], p[3]);
  for (ZGeoPoint const& q : p) {
    EXPECT_NEAR(q.DistanceTo(c.GetCenter()), 5, 1e-5f);
    EXPECT_NEAR((q - c.GetCenter()).Dot(c.GetUpVector()), 0, 1e-5f);
  }
  // Counter-clockwise seen from +Z gives a normal facing down.
  const ZGeoCircle arc(ZGeoPoint(3, 0, 0), ZGeoPoint(0, 3, 0), ZGeoPoint(-3, 0, 0), false);
  ExpectNear(ZGeoPoint(0, 0, -1), arc.GetUpVector(), 1e-6f);
  ExpectNear(ZGeoPoint(0, 0, 0), arc.GetCenter(), 1e-5f);
  // Collinear points keep the former centre.
  ZGeoCircle stale(ZGeoPoint(7, 7, 7), 1);
  stale.SetFromThreePoints(ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0), ZGeoPoint(2, 0, 0), true);
  ExpectNear(ZGeoPoint(7, 7, 7), stale.GetCenter(), 0);
}

TEST(ZGeoCircleConstruction, RandomTriplesGiveTheirCircumcircle) {
  std::mt19937 rng(17);
  std::uniform_real_distribution<float> coordinate(-10, 10);
  for (int trial = 0; trial < 100; ++trial) {
    const ZGeoPoint c(coordinate(rng), coordinate(rng), coordinate(rng));
    const ZGeoPoint e1 = ZGeoPoint(coordinate(rng), coordinate(rng), coordinate(rng)).Direction();
    const ZGeoPoint e2 = e1.Cross(ZGeoPoint(0.3f, -0.2f, 0.9f)).Direction();
    const double r = 1 + std::fabs(coordinate(rng));
    const std::vector<ZGeoPoint> p = PointsOnCircle(3, c, r, trial, trial + 4, e1, e2);
    const ZGeoCircle circle(p[0], p[1], p[2], true);
    ExpectNear(c, circle.GetCenter(), 1e-3f * float(r));
    EXPECT_NEAR(circle.GetRadius(), r, 1e-3 * r);
  }
}

TEST(ZGeoCircleArcs, AngleLengthMidPointAndClosestPoints) {
  const float s = std::sqrt(0.5f);
  const ZGeoCircle quarter(ZGeoPoint(1, 0, 0), ZGeoPoint(s, s, 0), ZGeoPoint(0, 1, 0), false);
  EXPECT_NEAR(quarter.GetTotalAngle(), kPi / 2, 1e-5);
  EXPECT_NEAR(quarter.GetPerimeterLength(), kPi / 2, 1e-5);
  // Half the angle away, on the side the arc doesn't take.
  ExpectNear(ZGeoPoint(s, -s, 0), quarter.GetMidPoint(), 1e-5f);
  const ZGeoCircle major(ZGeoPoint(1, 0, 0), ZGeoPoint(-1, 0, 0), ZGeoPoint(0, -1, 0), false);
  EXPECT_NEAR(major.GetTotalAngle(), 1.5 * kPi, 1e-5);
  EXPECT_FLOAT_EQ(ZGeoCircle(ZGeoPoint(), 2).GetPerimeterLength(), float(2 * kPi));

  const ZGeoCircle c(ZGeoPoint(1, 1, 0), 4);
  ExpectNear(ZGeoPoint(3, 1, 0), c.ClosestPointOnCircle(ZGeoPoint(9, 1, 5)), 1e-6f);
  ExpectNear(ZGeoPoint(1, 1, 0), c.ClosestPointOnCircle(ZGeoPoint(1, 1, 5)), 0);
  ExpectNear(ZGeoPoint(0, 1, 0), c.GetTangentAtPoint(ZGeoPoint(9, 1, 0)), 1e-6f);
  ExpectNear(ZGeoPoint(2, 2, 0), c.Scale(2).GetCenter(), 1e-5f);  // about the origin
}

TEST(ZGeoCircleLines, InfiniteLinesInThePlane) {
  const ZGeoCircle c(ZGeoPoint(), 2);
  ZGeoPoint p1, p2;
  EXPECT_EQ(c.GetIntersectionWithLine(ZGeoLine(ZGeoPoint(-2, 0, 0), ZGeoPoint(2, 0, 0)), p1, p2), 2);
  EXPECT_NEAR(p1.x, -p2.x, 1e-6f);
  EXPECT_EQ(c.GetIntersectionWithLine(ZGeoLine(ZGeoPoint(-2, 1, 0), ZGeoPoint(2, 1, 0)), p1, p2), 1);
  ExpectNear(ZGeoPoint(0, 1, 0), p1, 1e-6f);
  EXPECT_EQ(c.GetIntersectionWithLine(ZGeoLine(ZGeoPoint(-2, 2, 0), ZGeoPoint(2, 2, 0)), p1, p2), 0);
  EXPECT_EQ(c.GetIntersectionWithLine(ZGeoLine(ZGeoPoint(-2, 0, 0), ZGeoPoint(2, 0, 1)), p1, p2), 0);

  std::mt19937 rng(23);
  std::uniform_real_distribution<float> coordinate(-10, 10);
  for (int trial = 0; trial < 200; ++trial) {
    const ZGeoCircle circle(ZGeoPoint(coordinate(rng), coordinate(rng), 0), 2 + std::fabs(coordinate(rng)));
    const ZGeoLine l(ZGeoPoint(coordinate(rng), coordinate(rng), 0), ZGeoPoint(coordinate(rng), coordinate(rng), 0));
    ZGeoPoint p[2];
    const int n = circle.GetIntersectionWithLine(l, p[0], p[1]);
    EXPECT_EQ(n == 0, l.DistanceToPoint(circle.GetCenter()) > circle.GetRadius()) << trial;
    for (int i = 0; i < n; ++i) {
      EXPECT_NEAR(p[i].DistanceTo(circle.GetCenter()), circle.GetRadius(), 1e-3f * circle.GetRadius());
      EXPECT_NEAR(l.DistanceToPoint(p[i]), 0, 1e-3f);
    }
  }
}

TEST(ZGeoCircleLines, SegmentsKeepOnlyTheirOwnPointsFirst) {
  const ZGeoCircle c(ZGeoPoint(), 2);
  ZGeoPoint p1, p2;
  EXPECT_EQ(c.GetIntersectionWithLineSegment(ZGeoLine(ZGeoPoint(0, 0, 0), ZGeoPoint(2, 0, 0)), p1, p2), 1);
  ExpectNear(ZGeoPoint(1, 0, 0), p1, 1e-6f);
  EXPECT_EQ(c.GetIntersectionWithLineSegment(ZGeoLine(ZGeoPoint(0, 0, 0), ZGeoPoint(-2, 0, 0)), p1, p2), 1);
  ExpectNear(ZGeoPoint(-1, 0, 0), p1, 1e-6f);
  EXPECT_EQ(c.GetIntersectionWithLineSegment(ZGeoLine(ZGeoPoint(-0.5f, 0, 0), ZGeoPoint(0.5f, 0, 0)), p1, p2), 0);
}

TEST(ZGeoCircleRecognition, FullCirclesArcsAndRejects) {
  ZGeoCircle c;
  EXPECT_FALSE(c.MakeFromPointVec({ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0)}, true, 0.01f, 0.01f));
  std::vector<ZGeoPoint> eight = PointsOnCircle(9, ZGeoPoint(), 3, 0, 2 * kPi);
  eight.pop_back();
  ASSERT_TRUE(c.MakeFromPointVec(eight, false, 0.01f, 0.01f));
  EXPECT_TRUE(c.IsCompleteCircle());
  EXPECT_NEAR(c.GetRadius(), 3, 1e-5f);

  const std::vector<ZGeoPoint> half = PointsOnCircle(9, ZGeoPoint(), 3, 0, kPi);
  ASSERT_TRUE(c.MakeFromPointVec(half, true, 0.01f, 0.01f));
  EXPECT_FALSE(c.IsCompleteCircle());
  ZGeoPoint a, b, d;
  c.GetThreePoints(a, b, d);
  EXPECT_TRUE(a.Equals(half[0], 0) && b.Equals(half[4], 0) && d.Equals(half[8], 0));
  // Closed lists are full circles even where arcs are allowed.
  ASSERT_TRUE(c.MakeFromPointVec(PointsOnCircle(13, ZGeoPoint(), 3, 0, 2 * kPi), true, 0.01f, 0.01f));
  EXPECT_TRUE(c.IsCompleteCircle());

  const std::vector<ZGeoPoint> square = {ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0), ZGeoPoint(2, 0, 0),
                                         ZGeoPoint(2, 1, 0), ZGeoPoint(2, 2, 0), ZGeoPoint(1, 2, 0),
                                         ZGeoPoint(0, 2, 0), ZGeoPoint(0, 1, 0)};
  EXPECT_FALSE(c.MakeFromPointVec(square, false, 0.01f, 0.01f));
  std::vector<ZGeoPoint> bent = PointsOnCircle(12, ZGeoPoint(), 3, 0, 2 * kPi);
  bent[5].z = 0.5f;
  EXPECT_FALSE(c.MakeFromPointVec(bent, false, 0.01f, 0.01f));
}

TEST(ZGeoCircleRecognition, NoisyTessellationsGiveBackTheirCircle) {
  std::mt19937 rng(31);
  std::uniform_real_distribution<float> coordinate(-50, 50);
  for (int trial = 0; trial < 50; ++trial) {
    const ZGeoPoint centre(coordinate(rng), coordinate(rng), coordinate(rng));
    const ZGeoPoint e1 = ZGeoPoint(coordinate(rng), coordinate(rng), coordinate(rng)).Direction();
    const ZGeoPoint e2 = e1.Cross(ZGeoPoint(coordinate(rng), coordinate(rng), coordinate(rng))).Direction();
    const double r = 1 + std::fabs(coordinate(rng)) / 5;
    const int n = 24 + trial;
    std::vector<ZGeoPoint> points = PointsOnCircle(n + 1, centre, r, 0, 2 * kPi, e1, e2, 1e-4, &rng);
    points.pop_back();
    ZGeoCircle c;
    ASSERT_TRUE(c.MakeFromPointVec(points, false, 0.01f * float(r), 0.01f)) << trial;
    ExpectNear(centre, c.GetCenter(), float(2e-3 * r));
    EXPECT_NEAR(c.GetRadius(), r, 2e-3 * r);
    EXPECT_NEAR(std::fabs(c.GetUpVector().Dot(e1.Cross(e2))), 1, 1e-4f);
  }
}

TEST(ZGeoCircleRecognition, ModeWinsOnlyWithEnoughRepeats) {
  using sceneward::geometry::SortAndTakeModeOrMedian;
  std::vector<float> values = {3, 2, 1, 2, 1};
  EXPECT_EQ(SortAndTakeModeOrMedian(values, 2), 1);  // a tie goes to the smaller
  EXPECT_EQ(SortAndTakeModeOrMedian(values, 4), 2);  // the median
  std::vector<float> even = {4, 1, 3, 2};
  EXPECT_EQ(SortAndTakeModeOrMedian(even, 4), 3);  // the upper median, not averaged
}

TEST(ZGeoEllipse, FromCirclesAndBackToCircles) {
  const ZGeoCircle c(ZGeoPoint(1, 2, 3), ZGeoPoint(0, 0, 1), 4);
  const ZGeoEllipse e(c);
  EXPECT_NEAR(e.GetMinor().DistanceTo(c.GetCenter()), 2, 1e-5f);
  EXPECT_NEAR((e.GetMajor() - e.GetCenter()).Dot(e.GetMinor() - e.GetCenter()), 0, 1e-5f);
  ZGeoCircle back;
  ASSERT_TRUE(e.GetAsCircle(back, 2000));
  ExpectNear(c.GetCenter(), back.GetCenter(), 1e-5f);
  EXPECT_NEAR(back.GetDiameter(), 4, 1e-5f);
  const ZGeoEllipse oval(ZGeoPoint(), ZGeoPoint(2, 0, 0), ZGeoPoint(0, 1, 0), 0, 0.99999f);
  EXPECT_FALSE(oval.IsCompleteEllipse());
  EXPECT_FALSE(oval.GetAsCircle(back, 2000));
}

TEST(ZGeoHole, NormalRimsAndClosestPoints) {
  const ZGeoHole h(ZGeoPoint(0, 0, 0), ZGeoPoint(0, 0, 1), 2);
  ExpectNear(ZGeoPoint(0, 0, -1), h.GetNormal(), 0);
  ExpectNear(h.GetNormal(), h.GetEndCircle().GetUpVector(), 0);
  ExpectNear(ZGeoPoint(1, 0, 0), h.ClosestPointOnHole(ZGeoPoint(1.5f, 0, -0.1f)), 1e-6f);
  // Beside the middle of the barrel the axis is nearer than either rim.
  ExpectNear(ZGeoPoint(0, 0, 0.5f), h.ClosestPointOnHole(ZGeoPoint(0.6f, 0, 0.5f)), 1e-6f);
}

}  // namespace
