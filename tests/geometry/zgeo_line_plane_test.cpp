// ZGeoLine and ZGeoPlane: closest points and intersections, checked on
// fixed cases and against a double-precision reference on random lines.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/geometry/zgeo_plane.h"

namespace {

constexpr float kPi = std::numbers::pi_v<float>;

void ExpectNear(ZGeoPoint const& expected, ZGeoPoint const& actual, float tolerance) {
  EXPECT_NEAR(expected.x, actual.x, tolerance);
  EXPECT_NEAR(expected.y, actual.y, tolerance);
  EXPECT_NEAR(expected.z, actual.z, tolerance);
}

struct Vec {
  double x, y, z;
};
Vec ToVec(ZGeoPoint const& p) { return {p.x, p.y, p.z}; }
Vec operator-(Vec a, Vec b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
double Dot(Vec a, Vec b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

// The shortest distance between two infinite lines, by minimising over the
// two line parameters in double precision.
double LineGapReference(ZGeoLine const& a, ZGeoLine const& b) {
  const Vec u = ToVec(a.end) - ToVec(a.start), v = ToVec(b.end) - ToVec(b.start);
  const Vec w = ToVec(a.start) - ToVec(b.start);
  const double uu = Dot(u, u), uv = Dot(u, v), vv = Dot(v, v), uw = Dot(u, w), vw = Dot(v, w);
  const double den = uu * vv - uv * uv;
  const double s = (uv * vw - vv * uw) / den, t = (uu * vw - uv * uw) / den;
  const Vec gap = {w.x + s * u.x - t * v.x, w.y + s * u.y - t * v.y, w.z + s * u.z - t * v.z};
  return std::sqrt(Dot(gap, gap));
}

TEST(ZGeoLineClosestPoints, InfiniteLinesGoBeyondTheEndsAndSegmentsStop) {
  const ZGeoLine l(ZGeoPoint(0, 0, 0), ZGeoPoint(2, 0, 0));
  ExpectNear(ZGeoPoint(5, 0, 0), l.ClosestPointOnLine(ZGeoPoint(5, 3, 0)), 0);
  ExpectNear(ZGeoPoint(2, 0, 0), l.SegmentClosestPointOnLine(ZGeoPoint(5, 3, 0)), 0);
  ExpectNear(ZGeoPoint(0, 0, 0), l.SegmentClosestPointOnLine(ZGeoPoint(-5, 3, 0)), 0);

  const ZGeoLine point(ZGeoPoint(1, 1, 1), ZGeoPoint(1, 1, 1));
  ExpectNear(ZGeoPoint(1, 1, 1), point.SegmentClosestPointOnLine(ZGeoPoint(9, 9, 9)), 0);
  EXPECT_TRUE(l.IsColinearWith(ZGeoPoint(7, 0, 0), 2000));
  EXPECT_FALSE(l.IsColinearWith(ZGeoPoint(7, 0.01f, 0), 2000));
}

TEST(ZGeoLineClosestPoints, ParallelLinesAnswerFromTheStart) {
  const ZGeoLine a(ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0));
  const ZGeoLine b(ZGeoPoint(0, 1, 0), ZGeoPoint(1, 1, 0));
  ZGeoPoint onA, onB, out(9, 9, 9);
  a.ClosestPointToLine(b, onA, onB);
  ExpectNear(ZGeoPoint(0, 0, 0), onA, 0);
  ExpectNear(ZGeoPoint(0, 1, 0), onB, 0);
  EXPECT_FALSE(a.FindIntersection(b, out, 0.5f));
  ExpectNear(ZGeoPoint(9, 9, 9), out, 0);
  // Coincident lines meet at this line's start.
  EXPECT_TRUE(a.FindIntersection(ZGeoLine(ZGeoPoint(5, 0, 0), ZGeoPoint(7, 0, 0)), out, 0.001f));
  ExpectNear(ZGeoPoint(0, 0, 0), out, 0);
}

TEST(ZGeoLineClosestPoints, CrossingAndSkewLines) {
  const ZGeoLine a(ZGeoPoint(0, 0, 0), ZGeoPoint(2, 0, 0));
  ZGeoPoint out;
  EXPECT_TRUE(a.FindIntersection(ZGeoLine(ZGeoPoint(1, -1, 0), ZGeoPoint(1, 1, 0)), out, 0.001f));
  ExpectNear(ZGeoPoint(1, 0, 0), out, 1e-6f);
  // Skew at distance 1: a tolerance of exactly 1 still meets, halfway.
  const ZGeoLine skew(ZGeoPoint(1, -1, 1), ZGeoPoint(1, 1, 1));
  EXPECT_TRUE(a.FindIntersection(skew, out, 1));
  ExpectNear(ZGeoPoint(1, 0, 0.5f), out, 1e-6f);
  EXPECT_FALSE(a.FindIntersection(skew, out, 0.99f));
}

TEST(ZGeoLineClosestPoints, RandomSkewLinesMatchTheReferenceGap) {
  std::mt19937 rng(21);
  std::uniform_real_distribution<float> coordinate(-10, 10);
  int checked = 0;
  for (int trial = 0; trial < 200; ++trial) {
    const ZGeoLine a(ZGeoPoint(coordinate(rng), coordinate(rng), coordinate(rng)),
                     ZGeoPoint(coordinate(rng), coordinate(rng), coordinate(rng)));
    const ZGeoLine b(ZGeoPoint(coordinate(rng), coordinate(rng), coordinate(rng)),
                     ZGeoPoint(coordinate(rng), coordinate(rng), coordinate(rng)));
    // Nearly parallel lines are ill-conditioned in single precision.
    if (a.IsParallelTo(b, 0.05f) || a.Length() < 1 || b.Length() < 1) continue;
    ++checked;
    ZGeoPoint onA, onB;
    a.ClosestPointToLine(b, onA, onB);
    const double gap = LineGapReference(a, b);
    EXPECT_NEAR(onA.DistanceTo(onB), gap, 1e-3 * (1 + gap));
    EXPECT_NEAR(a.DistanceToPoint(onA), 0, 1e-3f);
    EXPECT_NEAR(b.DistanceToPoint(onB), 0, 1e-3f);
  }
  EXPECT_GT(checked, 100);
}

TEST(ZGeoLineClosestPoints, SegmentsClampToTheirEnds) {
  const ZGeoLine a(ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0));
  ZGeoPoint onA, onB;
  // The infinite lines cross at (3, 0, 0), beyond a's end.
  a.SegmentClosestPointToSegment(ZGeoLine(ZGeoPoint(3, -1, 0), ZGeoPoint(3, 1, 0)), onA, onB);
  ExpectNear(ZGeoPoint(1, 0, 0), onA, 1e-6f);
  ExpectNear(ZGeoPoint(3, 0, 0), onB, 1e-6f);
  // Parallel and overlapping: an end of the other projecting on this one.
  a.SegmentClosestPointToSegment(ZGeoLine(ZGeoPoint(0.5f, 2, 0), ZGeoPoint(4, 2, 0)), onA, onB);
  ExpectNear(ZGeoPoint(0.5f, 0, 0), onA, 1e-6f);
  ExpectNear(ZGeoPoint(0.5f, 2, 0), onB, 1e-6f);
  // Parallel and apart: the nearest ends.
  a.SegmentClosestPointToSegment(ZGeoLine(ZGeoPoint(3, 2, 0), ZGeoPoint(4, 2, 0)), onA, onB);
  ExpectNear(ZGeoPoint(1, 0, 0), onA, 1e-6f);
  ExpectNear(ZGeoPoint(3, 2, 0), onB, 1e-6f);
}

TEST(ZGeoLineRelations, AnglesAndCoplanarity) {
  const ZGeoLine a(ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0));
  const ZGeoLine reversed(ZGeoPoint(1, 0, 0), ZGeoPoint(0, 0, 0));
  EXPECT_NEAR(a.AngleToLine(reversed), 0, 1e-6f);
  EXPECT_FALSE(a == reversed);
  EXPECT_TRUE(a == ZGeoLine(ZGeoPoint(0, 0, 0), ZGeoPoint(1.0001f, 0, 0)));
  // Segments sharing their start and pointing apart open a straight angle.
  EXPECT_FLOAT_EQ(a.AngleToLineSegment(ZGeoLine(ZGeoPoint(0, 0, 0), ZGeoPoint(-1, 0, 0))), kPi);
  // Meeting end to start at a right angle.
  EXPECT_FLOAT_EQ(a.AngleToLineSegment(ZGeoLine(ZGeoPoint(1, 0, 0), ZGeoPoint(1, 1, 0))), kPi / 2);
  // A crossing folds to at most a quarter turn, like the infinite lines.
  EXPECT_NEAR(a.AngleToLineSegment(ZGeoLine(ZGeoPoint(0.5f, -1, 0), ZGeoPoint(0.4f, 1, 0))),
              a.AngleToLine(ZGeoLine(ZGeoPoint(0.5f, -1, 0), ZGeoPoint(0.4f, 1, 0))), 1e-6f);

  EXPECT_TRUE(a.IsCoPlanarWith(ZGeoLine(ZGeoPoint(3, 1, 0), ZGeoPoint(5, 2, 0))));
  EXPECT_FALSE(a.IsCoPlanarWith(ZGeoLine(ZGeoPoint(3, 1, 0), ZGeoPoint(5, 2, 1))));
  // A shared point spans no plane.
  EXPECT_FALSE(a.IsCoPlanarWith(ZGeoLine(ZGeoPoint(0, 0, 0), ZGeoPoint(0, 1, 0))));
}

TEST(ZGeoPlane, DistancesAreSignedAndEquivalenceIgnoresTheNormalsSense) {
  ZGeoPlane plane(ZGeoPoint(0, 0, 1), ZGeoPoint(0, 0, 5));
  EXPECT_FLOAT_EQ(plane.DistanceToPoint(ZGeoPoint(7, 7, -1)), -2);
  EXPECT_TRUE(plane.IsEquivalentTo(ZGeoPlane(ZGeoPoint(5, 5, 1.0005f), ZGeoPoint(0, 0, -1))));
  EXPECT_FALSE(plane.IsEquivalentTo(ZGeoPlane(ZGeoPoint(5, 5, 1.01f), ZGeoPoint(0, 0, -1))));
  plane.SetNormalVec(ZGeoPoint(0, 0, 2));
  EXPECT_FLOAT_EQ(plane.DistanceToPoint(ZGeoPoint(7, 7, 3)), 4);
  ZGeoPlane collinear;
  collinear.SetFromThreePoints(ZGeoPoint(0, 0, 0), ZGeoPoint(1, 1, 1), ZGeoPoint(2, 2, 2));
  EXPECT_EQ(collinear.GetNormalVec().Length(), 0);
}

TEST(ZGeoPlane, LineIntersectionIsUnclampedAndRefusesParallelLines) {
  const ZGeoPlane plane(ZGeoPoint(0, 0, 10), ZGeoPoint(0, 0, 1));
  ZGeoPoint out(9, 9, 9);
  EXPECT_FALSE(plane.FindIntersection(ZGeoLine(ZGeoPoint(0, 0, 0), ZGeoPoint(1, 0, 0)), out));
  ExpectNear(ZGeoPoint(9, 9, 9), out, 0);
  EXPECT_TRUE(plane.FindIntersection(ZGeoLine(ZGeoPoint(0, 0, 0), ZGeoPoint(1, 1, 1)), out));
  ExpectNear(ZGeoPoint(10, 10, 10), out, 1e-5f);
}

TEST(ZGeoPlane, TwoAxesCompleteAPerpendicularTriple) {
  ZGeoPoint axis1, axis2;
  const ZGeoPoint normal = ZGeoPoint(1, 2, 3).Direction();
  ZGeoPlane(ZGeoPoint(), normal).GetTwoAxesOnPlane(axis1, axis2);
  // Unit and perpendicular, with axis1 x axis2 = -normal.
  ExpectNear(-normal, axis1.Cross(axis2), 1e-6f);
  // A normal along X can't take X as its seed: axis2 comes from Y.
  ZGeoPlane(ZGeoPoint(), ZGeoPoint(1, 0, 0)).GetTwoAxesOnPlane(axis1, axis2);
  ExpectNear(ZGeoPoint(0, 0, 1), axis2, 1e-6f);
}

}  // namespace
