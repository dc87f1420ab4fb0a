// Markers, polylines, polygons, ink, and the curved kinds: each goes in,
// comes back out, and is edited or moved as published.
#include <array>
#include <cmath>
#include <vector>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

struct P {
  float x, y, z;
  bool operator==(const P&) const = default;
};

class PointGeometry : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    HC_Open_Segment("/geometry");
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }
};

TEST_F(PointGeometry, MarkerAndPolylineRoundTrip) {
  const long long marker = HC_Insert_Marker(1, 2, 3);
  P m{};
  HC_Show_Marker(marker, &m.x, &m.y, &m.z);
  EXPECT_EQ(m, (P{1, 2, 3}));

  const std::vector<P> points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 0, 0}};
  const long long line = HC_Insert_Polyline(4, points.data());
  int count = 0;
  HC_Show_Polyline_Count(line, &count);
  ASSERT_EQ(count, 4);  // a polyline keeps its closing point
  std::vector<P> shown(4);
  HC_Show_Polyline(line, &count, shown.data());
  EXPECT_EQ(shown, points);
  P second[2];
  HC_Show_Partial_Polyline(line, 1, 2, second);
  EXPECT_EQ(second[0], points[1]);
  EXPECT_EQ(second[1], points[2]);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(PointGeometry, NegativePolylineCountMeansSeparatePieces) {
  const P pieces[4] = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 1, 0}};
  const long long key = HC_Insert_Polyline(-4, pieces);
  int count = 0;
  HC_Show_Polyline_Count(key, &count);
  EXPECT_EQ(count, -4);
  EXPECT_EQ(HC_Insert_Polyline(-3, pieces), -1);  // odd pieces cannot pair up
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(PointGeometry, PolygonDropsAClosingPointEqualToTheFirst) {
  const P square[5] = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 0, 0}};
  const long long key = HC_Insert_Polygon(5, square);
  int count = 0;
  HC_Show_Polygon_Count(key, &count);
  EXPECT_EQ(count, 4);
  EXPECT_EQ(HC_Insert_Polygon(0, square), -1);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(PointGeometry, EditPolylineDeletesThenInsertsAndMinusOneIsTheEnd) {
  const P points[3] = {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}};
  const long long key = HC_Insert_Polyline(3, points);
  const P extra[2] = {{5, 5, 5}, {6, 6, 6}};
  HC_Edit_Polyline(key, 1, 1, 2, extra);
  HC_Edit_Polyline(key, -1, 0, 1, extra);
  int count = 0;
  std::vector<P> shown(5);
  HC_Show_Polyline(key, &count, shown.data());
  EXPECT_EQ(shown, (std::vector<P>{{0, 0, 0}, {5, 5, 5}, {6, 6, 6}, {2, 0, 0}, {5, 5, 5}}));
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(PointGeometry, PartialShowAndEditOutsideTheItemChangeNothing) {
  const P points[2] = {{0, 0, 0}, {1, 0, 0}};
  const long long key = HC_Insert_Polyline(2, points);
  P out[2] = {{7, 7, 7}, {7, 7, 7}};
  HC_Show_Partial_Polyline(key, 1, 2, out);
  EXPECT_EQ(out[0], (P{7, 7, 7}));
  HC_Edit_Polyline(key, 0, 3, 0, nullptr);
  int count = 0;
  HC_Show_Polyline_Count(key, &count);
  EXPECT_EQ(count, 2);
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 2u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryRange);
  EXPECT_EQ(reports[1].routine, "HC_Edit_Polyline");
}

TEST_F(PointGeometry, InkExtendsOnePolylineUntilRestarted) {
  const long long first = HC_Insert_Ink(0, 0, 0);
  EXPECT_EQ(HC_Insert_Ink(1, 0, 0), first);
  HC_Close_Segment();
  HC_Open_Segment("/geometry");
  EXPECT_EQ(HC_Insert_Ink(2, 0, 0), first);  // across a close and reopen
  int count = 0;
  HC_Show_Polyline_Count(first, &count);
  EXPECT_EQ(count, 3);
  HC_Restart_Ink();
  HC_Restart_Ink();
  const long long second = HC_Insert_Ink(9, 9, 9);
  EXPECT_NE(second, first);
  HC_Delete_By_Key(second);
  EXPECT_NE(HC_Insert_Ink(8, 8, 8), second);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(PointGeometry, CircularKindsKeepTheirPointsAndRefuseCollinearOnes) {
  const P a{1, 0, 0}, b{0, 1, 0}, c{-1, 0, 0};
  const long long keys[] = {HC_Insert_Circle(&a, &b, &c), HC_Insert_Circular_Arc(&a, &b, &c),
                            HC_Insert_Circular_Chord(&a, &b, &c), HC_Insert_Circular_Wedge(&a, &b, &c)};
  const char* words[] = {"circle", "circular arc", "circular chord", "circular wedge"};
  for (int i = 0; i < 4; ++i) {
    char type[64];
    HC_Show_Key_Type(keys[i], type);
    EXPECT_STREQ(type, words[i]);
  }
  P p1{}, p2{}, p3{};
  HC_Show_Circular_Wedge(keys[3], &p1, &p2, &p3);
  EXPECT_EQ(p2, b);
  double d[3] = {};
  HC_DShow_Circular_Arc(keys[1], d, nullptr, nullptr);
  EXPECT_EQ(d[0], 1.0);
  const P on_line{2, 0, 0};
  EXPECT_EQ(HC_Insert_Circular_Arc(&a, &c, &on_line), -1);
  EXPECT_EQ(HC_Insert_Circle(&a, &a, &b), -1);
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 2u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryGeometry);
}

TEST_F(PointGeometry, CircleByRadiusGivesThreePointsOnThatCircle) {
  const P center{1, 2, 3}, normal{0, 0, 2};
  const long long key = HC_Insert_Circle_By_Radius(&center, 2, &normal);
  std::array<P, 3> p{};
  HC_Show_Circle(key, &p[0], &p[1], &p[2]);
  for (const P& q : p) {
    EXPECT_FLOAT_EQ(std::hypot(q.x - 1, q.y - 2), 2.0f);
    EXPECT_FLOAT_EQ(q.z, 3.0f);
  }
  EXPECT_EQ(HC_Insert_Circle_By_Radius(&center, 0, &normal), -1);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(PointGeometry, EllipticalArcKeepsAxesAndParameters) {
  const P center{0, 0, 0}, major{2, 0, 0}, minor{0, 1, 0};
  const long long key = HC_Insert_Elliptical_Arc(&center, &major, &minor, 0.25, 0.75);
  P c{}, ma{}, mi{};
  float start = 0, end = 0;
  HC_Show_Elliptical_Arc(key, &c, &ma, &mi, &start, &end);
  EXPECT_EQ(ma, major);
  EXPECT_EQ(mi, minor);
  EXPECT_EQ(start, 0.25f);
  EXPECT_EQ(end, 0.75f);
  HC_Show_Ellipse(key, &c, nullptr, nullptr);  // an arc is not an ellipse
  EXPECT_EQ(HC_Insert_Elliptical_Arc(&center, &major, &minor, -0.5, 1), -1);
  EXPECT_EQ(TakeReports().size(), 2u);
}

TEST_F(PointGeometry, NurbsCurveWithoutWeightsOrKnotsUsesTheDefaults) {
  const P control[4] = {{0, 0, 0}, {1, 1, 0}, {2, 1, 0}, {3, 0, 0}};
  const long long key = HC_Insert_NURBS_Curve(2, 4, control, nullptr, nullptr, 0, 1);
  int degree = 0, count = 0, weights = -1, knots = -1;
  HC_Show_NURBS_Curve_Size(key, &degree, &count, &weights, &knots);
  EXPECT_EQ(degree, 2);
  EXPECT_EQ(count, 4);
  EXPECT_EQ(weights, 0);
  EXPECT_EQ(knots, 0);
  std::vector<float> w(4), k(7);
  HC_Show_NURBS_Curve(key, nullptr, nullptr, nullptr, w.data(), k.data(), nullptr, nullptr);
  EXPECT_EQ(w, std::vector<float>(4, 1.0f));
  EXPECT_EQ(k, (std::vector<float>{0, 0, 0, 0.5f, 1, 1, 1}));
  const float falling[7] = {0, 0, 1, 0.5f, 1, 1, 1};
  EXPECT_EQ(HC_Insert_NURBS_Curve(2, 4, control, nullptr, falling, 0, 1), -1);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(PointGeometry, PolyCylinderRadiiMayBeFewerThanPoints) {
  const P points[3] = {{0, 0, 0}, {0, 1, 0}, {0, 2, 0}};
  const float radius = 0.5f;
  const long long key = HC_Insert_PolyCylinder(3, points, 1, &radius, "first");
  int p = 0, r = 0;
  char caps[16];
  HC_Show_PolyCylinder_Counts(key, &p, &r, caps);
  EXPECT_EQ(p, 3);
  EXPECT_EQ(r, 1);
  EXPECT_STREQ(caps, "first");
  const float radii[4] = {1, 1, 1, 1};
  EXPECT_EQ(HC_Insert_PolyCylinder(3, points, 4, radii, "both"), -1);
  EXPECT_EQ(HC_Insert_PolyCylinder(3, points, 1, &radius, "sideways"), -1);
  EXPECT_EQ(TakeReports().size(), 2u);
}

}  // namespace
