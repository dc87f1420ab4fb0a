// ZGeoPoint: the ulp-based equality and the direction tests.
#include "sceneward/geometry/zgeo_point.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

constexpr float kQuarterTurn = std::numbers::pi_v<float> / 2;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST(ZGeoPointEquality, TinyValuesAndNaNAreZero) {
  EXPECT_TRUE(ZGeoPoint::FloatEquality(1e-7f, -1e-7f, 0));
  EXPECT_FALSE(ZGeoPoint::FloatEquality(0.0f, 2e-6f, 2000));
  EXPECT_TRUE(ZGeoPoint::FloatEquality(kNaN, 0.0f, 0));
}

TEST(ZGeoPointEquality, CountsUnitsInTheLastPlaceOnBothSidesOfZero) {
  EXPECT_TRUE(ZGeoPoint::FloatEquality(1.0f, 1.0001f, 2000));  // about 839 apart
  EXPECT_FALSE(ZGeoPoint::FloatEquality(1.0f, 1.0001f, 800));
  EXPECT_FALSE(ZGeoPoint::FloatEquality(1.0f, std::nextafter(1.0f, 2.0f), 0));
  EXPECT_TRUE(ZGeoPoint::FloatEquality(-1.0f, -1.0001f, 2000));
  EXPECT_FALSE(ZGeoPoint::FloatEquality(1.0f, -1.0f, 2000));
  // The largest floats of opposite sign must not wrap round to "close".
  const float big = std::numeric_limits<float>::max();
  EXPECT_FALSE(ZGeoPoint::FloatEquality(big, -big, 2000));
}

TEST(ZGeoPointEquality, OrderingSkipsComponentsThatAreEqualWithinTheUlps) {
  const ZGeoPoint p(1, 2, 3);
  EXPECT_TRUE(p.Equals(ZGeoPoint(1, 2, 3.0001f), 2000));
  EXPECT_FALSE(p.Equals(ZGeoPoint(1, 2, 3.01f), 2000));
  EXPECT_TRUE(ZGeoPoint(1.0001f, 2, 3).LessThan(ZGeoPoint(1, 5, 0), 2000));
  EXPECT_FALSE(ZGeoPoint(1, 2, 4).LessThan(p, 2000));
  EXPECT_FALSE(p.LessThan(p, 2000));
}

TEST(ZGeoPointArithmetic, ZeroAndNaNVectorsSurviveNormalizing) {
  EXPECT_TRUE(ZGeoPoint(1, 0, 0).Cross(ZGeoPoint(0, 1, 0)).Equals(ZGeoPoint(0, 0, 1), 0));
  ZGeoPoint zero;
  zero.Normalize();
  EXPECT_TRUE(zero.Equals(ZGeoPoint(), 0));
  EXPECT_EQ(ZGeoPoint().Direction().Length(), 0);
  ZGeoPoint nan(kNaN, 1, 1);
  nan.Normalize();
  EXPECT_EQ(nan.y, 1);
}

TEST(ZGeoPointDirections, ParallelAndPerpendicularTests) {
  const ZGeoPoint x(1, 0, 0);
  EXPECT_TRUE(x.IsParallelTo(ZGeoPoint(-1, 0, 0), 0.0001f));
  EXPECT_FALSE(x.IsParallelTo(ZGeoPoint(1, 0.1f, 0), 0.0001f));
  EXPECT_TRUE(ZGeoPoint().IsPerpendicularTo(x, 0));
  EXPECT_FALSE(ZGeoPoint().IsParallelTo(x, 0.0001f));
  EXPECT_TRUE(ZGeoPoint().IsParallelTo(x, 1));
  EXPECT_FALSE(ZGeoPoint(0, 0, -0.0002f).IsZero(0.0001f));
}

TEST(ZGeoPointDirections, AnglesRunClockwiseAboutTheNormal) {
  const ZGeoPoint x(1, 0, 0), y(0, 1, 0);
  EXPECT_FLOAT_EQ(x.AngleTo(y), -kQuarterTurn);
  EXPECT_FLOAT_EQ(x.AngleTo(ZGeoPoint(0, -1, 0)), -kQuarterTurn);
  EXPECT_FLOAT_EQ(x.AngleTo(y, ZGeoPoint(0, 0, 1)), -kQuarterTurn);
  EXPECT_FLOAT_EQ(x.AngleTo(y, ZGeoPoint(0, 0, -1)), kQuarterTurn);
  EXPECT_EQ(x.AngleTo(ZGeoPoint(2, 0, 0)), 0);
  EXPECT_FLOAT_EQ(x.AngleTo(ZGeoPoint(-2, 0, 0)), 2 * kQuarterTurn);
}

}  // namespace
