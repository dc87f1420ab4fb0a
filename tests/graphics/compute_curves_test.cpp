// Polylines computed from stored curves: they lie on the curve, stay within
// the largest distance asked for, and the size call agrees with the fill.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

struct P {
  float x, y, z;
};

double Distance(P a, P b) { return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z); }
P Middle(P a, P b) { return {(a.x + b.x) / 2, (a.y + b.y) / 2, (a.z + b.z) / 2}; }

// The polyline, after checking that the size call gives the same count.
std::vector<P> Polyline(long long key, const char* options) {
  int size = -1;
  HC_Compute_Pline_From_Crv_Size(key, options, &size);
  std::vector<P> points(static_cast<size_t>(std::max(size, 0)));
  int count = -1;
  EXPECT_TRUE(HC_Compute_Polyline_From_Curve(key, options, &count, points.data()));
  EXPECT_EQ(count, size);
  return points;
}

class CurvePolylines : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    HC_Open_Segment("/curves");
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }
};

// A circle of radius 2 round (1, 1, 0) in the XY plane.
constexpr P kCenter{1, 1, 0};
constexpr P kOnCircle[] = {{3, 1, 0}, {1, 3, 0}, {-1, 1, 0}};
constexpr double kRadius = 2;

TEST_F(CurvePolylines, CircleClosesOnItselfWithinTheDeviation) {
  const long long circle = HC_Insert_Circle(&kOnCircle[0], &kOnCircle[1], &kOnCircle[2]);
  for (double deviation : {0.1, 0.01, 0.001}) {
    const std::string options = "maximum deviation = " + std::to_string(deviation);
    const std::vector<P> points = Polyline(circle, options.c_str());
    ASSERT_GE(points.size(), 9u);
    EXPECT_EQ(Distance(points.front(), points.back()), 0);
    EXPECT_NEAR(Distance(points.front(), kOnCircle[0]), 0, 1e-5);
    for (size_t i = 0; i + 1 < points.size(); ++i) {
      EXPECT_NEAR(Distance(points[i], kCenter), kRadius, 1e-5);
      EXPECT_LE(kRadius - Distance(Middle(points[i], points[i + 1]), kCenter), deviation * 1.0001);
    }
  }
  EXPECT_LT(Polyline(circle, "maximum deviation = 0.1").size(), Polyline(circle, "maximum deviation=0.001").size());
  // The coarsest outline: eight pieces.
  EXPECT_EQ(Polyline(circle, "no maximum deviation").size(), 9u);
  EXPECT_EQ(Polyline(circle, "").size(), Polyline(circle, "maximum deviation").size());
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(CurvePolylines, ArcsRunFromTheirFirstPointThroughTheSecondToTheThird) {
  // Clockwise from (1, 3) over (3, 1) to (1, -1): the right half.
  const P top{1, 3, 0}, right{3, 1, 0}, bottom{1, -1, 0};
  const long long arc = HC_Insert_Circular_Arc(&top, &right, &bottom);
  const std::vector<P> points = Polyline(arc, "maximum deviation = 0.001");
  EXPECT_NEAR(Distance(points.front(), top), 0, 1e-5);
  EXPECT_NEAR(Distance(points.back(), bottom), 0, 1e-5);
  for (const P& p : points) {
    EXPECT_NEAR(Distance(p, kCenter), kRadius, 1e-5);
    EXPECT_GE(p.x, kCenter.x - 1e-5);
  }

  const long long chord = HC_Insert_Circular_Chord(&top, &right, &bottom);
  const std::vector<P> closed = Polyline(chord, "maximum deviation = 0.001");
  EXPECT_EQ(closed.size(), points.size() + 1);
  EXPECT_EQ(Distance(closed.front(), closed.back()), 0);

  const long long wedge = HC_Insert_Circular_Wedge(&top, &right, &bottom);
  const std::vector<P> slice = Polyline(wedge, "maximum deviation = 0.001");
  ASSERT_EQ(slice.size(), points.size() + 2);
  EXPECT_NEAR(Distance(slice[slice.size() - 2], kCenter), 0, 1e-5);
  EXPECT_EQ(Distance(slice.front(), slice.back()), 0);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(CurvePolylines, EllipsesFollowTheirAxesAndArcsTheirParameterRange) {
  const P center{0, 0, 1}, major{4, 0, 1}, minor{0, 1, 1};
  const auto on_ellipse = [](const P& p) { return (p.x / 4) * (p.x / 4) + p.y * p.y; };
  const long long ellipse = HC_Insert_Ellipse(&center, &major, &minor);
  const std::vector<P> whole = Polyline(ellipse, "maximum deviation = 0.01");
  EXPECT_EQ(Distance(whole.front(), whole.back()), 0);
  for (const P& p : whole) {
    EXPECT_NEAR(on_ellipse(p), 1, 1e-5);
    EXPECT_EQ(p.z, 1);
  }
  // A quarter of the way round to half-way: the upper left quadrant.
  const long long arc = HC_Insert_Elliptical_Arc(&center, &major, &minor, 0.25, 0.5);
  const std::vector<P> quadrant = Polyline(arc, "maximum deviation = 0.01");
  EXPECT_NEAR(Distance(quadrant.front(), minor), 0, 1e-5);
  EXPECT_NEAR(Distance(quadrant.back(), P{-4, 0, 1}), 0, 1e-5);
  for (const P& p : quadrant) {
    EXPECT_NEAR(on_ellipse(p), 1, 1e-5);
    EXPECT_LE(p.x, 1e-5);
    EXPECT_GE(p.y, -1e-5);
  }
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(CurvePolylines, NurbsCurvesFollowTheirRationalShape) {
  // A quarter of the unit circle as a rational quadratic.
  const P control[] = {{1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
  const float weights[] = {1, static_cast<float>(std::numbers::sqrt2 / 2), 1};
  const float knots[] = {0, 0, 0, 1, 1, 1};
  const long long quarter = HC_Insert_NURBS_Curve(2, 3, control, weights, knots, 0, 1);
  const std::vector<P> points = Polyline(quarter, "maximum deviation = 0.0001");
  EXPECT_GT(points.size(), 10u);
  EXPECT_NEAR(Distance(points.front(), control[0]), 0, 1e-6);
  EXPECT_NEAR(Distance(points.back(), control[2]), 0, 1e-6);
  for (size_t i = 0; i + 1 < points.size(); ++i) {
    EXPECT_NEAR(Distance(points[i], {0, 0, 0}), 1, 1e-5);
    EXPECT_LE(1 - Distance(Middle(points[i], points[i + 1]), {0, 0, 0}), 1.1e-4);
  }

  // Degree 1 without a deviation is the control polygon itself; a part of
  // the range starts and ends inside it.
  const P zigzag[] = {{0, 0, 0}, {1, 1, 0}, {2, 0, 0}, {3, 1, 0}};
  const long long line = HC_Insert_NURBS_Curve(1, 4, zigzag, nullptr, nullptr, 0, 1);
  const std::vector<P> polygon = Polyline(line, "no maximum deviation");
  ASSERT_EQ(polygon.size(), 4u);
  for (size_t i = 0; i < 4; ++i) EXPECT_NEAR(Distance(polygon[i], zigzag[i]), 0, 1e-6);
  const long long middle = HC_Insert_NURBS_Curve(1, 4, zigzag, nullptr, nullptr, 0.5, 0.5);
  const std::vector<P> one = Polyline(middle, "");
  ASSERT_EQ(one.size(), 1u);
  EXPECT_NEAR(Distance(one[0], {1.5f, 0.5f, 0}), 0, 1e-6);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(CurvePolylines, FailuresReportAndGiveNoPoints) {
  const long long circle = HC_Insert_Circle(&kOnCircle[0], &kOnCircle[1], &kOnCircle[2]);
  const long long polyline = HC_Insert_Polyline(3, kOnCircle);
  struct Case {
    long long key;
    const char* options;
    int category;
  };
  const Case cases[] = {
      {circle, "maximum segments = 4", 23},          // unknown option
      {circle, "maximum deviation = 0", 24},         // not positive
      {circle, "maximum deviation = fine", 24},      // not a number
      {circle, "maximum deviation = (", 23},         // malformed list
      {circle, nullptr, 24},                         // null options
      {polyline, "", 20},                            // not a curve
      {12345, "", 20},                               // no such key
  };
  for (const Case& c : cases) {
    int size = -1;
    HC_Compute_Pline_From_Crv_Size(c.key, c.options, &size);
    EXPECT_EQ(size, 0);
    P point{7, 7, 7};
    int count = -1;
    EXPECT_FALSE(HC_Compute_Polyline_From_Curve(c.key, c.options, &count, &point));
    EXPECT_EQ(count, 0);
    EXPECT_EQ(point.x, 7);
    const auto reports = TakeReports();
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].category, c.category) << reports[0].message;
  }
}

}  // namespace
