// ZGeoBox, ZGeoRect and ZGeoSphere: ordering of the sides, containment and
// the nearest points of rectangles.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "sceneward/geometry/zgeo_box.h"
#include "sceneward/geometry/zgeo_rect.h"
#include "sceneward/geometry/zgeo_sphere.h"

namespace {

TEST(ZGeoBox, SidesStayOrdered) {
  ZGeoBox box(5, 0, 0, 1, 0, 0);
  EXPECT_EQ(box.GetLeft(), 1);
  EXPECT_EQ(box.GetRight(), 5);
  box.SetLeft(9);
  EXPECT_EQ(box.GetLeft(), 5);
  EXPECT_EQ(box.GetRight(), 9);
  EXPECT_EQ(ZGeoBox(ZGeoPoint(1, 1, 1), -2, 2, 2).GetWidth(), 2);
  EXPECT_EQ(ZGeoBox(ZGeoPoint(1, 1, 1), -2, 2, 2).GetLeft(), 0);
}

TEST(ZGeoBox, CornersFacesAndGrowth) {
  ZGeoBox box(ZGeoPoint(0, 0, 0), ZGeoPoint(2, 3, 6));
  EXPECT_FLOAT_EQ(box.GetDiagonalLength(), 7);
  EXPECT_TRUE(box.GetFrontBottomLeft().Equals(ZGeoPoint(0, 3, 6), 0));
  EXPECT_TRUE(box.GetFrontRect().Equals(box.GetBackRect(), 0));
  EXPECT_EQ(box.GetLeftRect().GetWidth(), 0);
  EXPECT_EQ(box.GetLeftRect().GetHeight(), 3);
  EXPECT_EQ(box.GetBottomRect().GetTop(), 3);
  box.ExpandToInclude(ZGeoPoint(-1, 10, 2));
  box.ExpandToInclude(ZGeoBox(0, 0, -5, 1, 1, -4));
  EXPECT_EQ(box.GetLeft(), -1);
  EXPECT_EQ(box.GetBottom(), 10);
  EXPECT_EQ(box.GetBack(), -5);
  EXPECT_EQ(box.GetFront(), 6);
}

TEST(ZGeoRect, ContainmentIsInclusive) {
  const ZGeoRect r(0, 0, 4, 4);
  EXPECT_TRUE(r.ContainsPoint(ZGeoPoint(4, 4, 100)));
  EXPECT_FALSE(r.ContainsPoint(ZGeoPoint(4.001f, 4, 0)));
  EXPECT_TRUE(r.ContainsRect(r));
  EXPECT_TRUE(r.IntersectsRect(r));
  EXPECT_TRUE(r.IntersectsRect(ZGeoRect(3, 3, 9, 9)));
  EXPECT_FALSE(r.IntersectsRect(ZGeoRect(5, 5, 9, 9)));
}

TEST(ZGeoRect, APlusShapedCrossingIsNotAnIntersection) {
  const ZGeoRect wide(0, 2, 6, 4), tall(2, 0, 4, 6);
  EXPECT_FALSE(wide.IntersectsRect(tall));
  EXPECT_FALSE(tall.IntersectsRect(wide));
}

TEST(ZGeoRect, SettersCornersAndMoves) {
  ZGeoRect r(ZGeoPoint(2, 2, 5), 4, -2);
  EXPECT_TRUE(r.Equals(ZGeoRect(0, 1, 4, 3), 0));
  EXPECT_TRUE(r.GetCenter().Equals(ZGeoPoint(2, 2, 0), 0));
  r.SetTopLeft(ZGeoPoint(5, 5, 0));  // beyond both far sides: they swap
  EXPECT_TRUE(r.Equals(ZGeoRect(4, 3, 5, 5), 0));
  r.Move(ZGeoPoint(1, -1, 7));
  EXPECT_TRUE(r.GetBottomRight().Equals(ZGeoPoint(6, 4, 0), 0));
  r.ExpandToInclude(ZGeoRect(0, 0, 1, 1));
  EXPECT_TRUE(r.GetTopLeft().Equals(ZGeoPoint(0, 0, 0), 0));
}

TEST(ZGeoRect, ClosestPointsAndDistances) {
  const ZGeoRect square(0, 0, 2, 2);
  // The exact centre is equally near all sides; the bottom wins.
  EXPECT_TRUE(square.ClosestPointOnRect(ZGeoPoint(1, 1, 0), true).Equals(ZGeoPoint(1, 2, 0), 0));
  EXPECT_TRUE(square.ClosestPointOnRect(ZGeoPoint(0.2f, 1, 0), true).Equals(ZGeoPoint(0, 1, 0), 0));
  EXPECT_TRUE(square.ClosestPointOnRect(ZGeoPoint(1, 1, 0), false).Equals(ZGeoPoint(1, 1, 0), 0));
  EXPECT_TRUE(square.ClosestPointOnRect(ZGeoPoint(-3, 5, 9), true).Equals(ZGeoPoint(0, 2, 0), 0));

  EXPECT_EQ(square.DistanceToPoint2(ZGeoPoint(1, 1, 3), false), 0);
  EXPECT_EQ(square.DistanceToPoint2(ZGeoPoint(1, 1, 3), true), 9);
  EXPECT_FLOAT_EQ(square.DistanceToPoint(ZGeoPoint(5, 6, 0), false), 5);
}

TEST(ZGeoRect, OutsideDistancesMatchTheReference) {
  std::mt19937 rng(51);
  std::uniform_real_distribution<float> coordinate(-20, 20);
  for (int trial = 0; trial < 200; ++trial) {
    const ZGeoRect r(coordinate(rng), coordinate(rng), coordinate(rng), coordinate(rng));
    const ZGeoPoint p(coordinate(rng), coordinate(rng), 0);
    const double dx = std::max({double(r.GetLeft()) - p.x, 0.0, double(p.x) - r.GetRight()});
    const double dy = std::max({double(r.GetTop()) - p.y, 0.0, double(p.y) - r.GetBottom()});
    EXPECT_NEAR(r.DistanceToPoint(p, false), std::hypot(dx, dy), 1e-4);
  }
}

TEST(ZGeoSphere, SurfaceAndNaNCountAsInside) {
  ZGeoSphere s(ZGeoPoint(1, 1, 1), 2);
  EXPECT_TRUE(s.IsPointInside(ZGeoPoint(3, 1, 1)));
  EXPECT_FALSE(s.IsPointInside(ZGeoPoint(3.01f, 1, 1)));
  EXPECT_TRUE(s.IsPointInside(ZGeoPoint(std::numeric_limits<float>::quiet_NaN(), 0, 0)));
}

}  // namespace
