// Lines: stored in single precision, shown back, refused when not finite.
#include <limits>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

class Lines : public EngineTest {};

TEST_F(Lines, ShowGivesBackTheEndpointsInSinglePrecision) {
  HC_Open_Segment("/lines");
  const long long key = HC_Insert_Line(1.5, -2, 3, 0.1, 1e30, -0.25);
  HC_Close_Segment();
  float p[6] = {};
  HC_Show_Line(key, &p[0], &p[1], &p[2], &p[3], &p[4], &p[5]);
  EXPECT_EQ(p[0], 1.5f);
  EXPECT_EQ(p[1], -2.0f);
  EXPECT_EQ(p[2], 3.0f);
  EXPECT_EQ(p[3], 0.1f);
  EXPECT_EQ(p[4], 1e30f);
  EXPECT_EQ(p[5], -0.25f);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Lines, NullOutputsAreSkipped) {
  const long long key = HC_Insert_Line(1, 2, 3, 4, 5, 6);
  float z = 0;
  HC_Show_Line(key, nullptr, nullptr, nullptr, nullptr, nullptr, &z);
  EXPECT_EQ(z, 6.0f);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Lines, ShowOnAnotherKindLeavesOutputsUntouched) {
  const long long text = HC_Insert_Text(0, 0, 0, "not a line");
  float x = 42;
  HC_Show_Line(text, &x, nullptr, nullptr, nullptr, nullptr, nullptr);
  EXPECT_EQ(x, 42.0f);
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryKey);
  EXPECT_EQ(reports[0].message, "key " + std::to_string(text) + " does not refer to a line but to a text");
  EXPECT_EQ(reports[0].routine, "HC_Show_Line");
}

TEST_F(Lines, CoordinatesMustBeFiniteInSinglePrecision) {
  const double bad[] = {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e300};
  for (double value : bad) {
    EXPECT_EQ(HC_Insert_Line(0, 0, 0, 0, value, 0), -1);
    const auto reports = TakeReports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].category, graphics::kCategoryRange);
  }
}

}  // namespace
