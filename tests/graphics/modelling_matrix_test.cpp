// The modelling matrix of the current segment.
#include <array>
#include <limits>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;
using engine_test::TreeSnapshot;

constexpr std::array<float, 16> kTransform = {0.5f, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1, 0, 10.25f, -3, 0.1f, 1};

class ModellingMatrix : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    segment_ = HC_Open_Segment("/transformed");
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }
  long long segment_ = -1;
};

TEST_F(ModellingMatrix, SetThenShowInBothPrecisions) {
  HC_Set_Modelling_Matrix(kTransform.data());
  std::array<float, 16> shown{};
  HC_Show_Modelling_Matrix(shown.data());
  EXPECT_EQ(shown, kTransform);

  std::array<double, 16> exact{};
  HC_DShow_Modelling_Matrix(exact.data());
  for (int i = 0; i < 16; ++i) EXPECT_EQ(exact[i], static_cast<double>(kTransform[i])) << i;
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(ModellingMatrix, OnlySetMatricesCanBeShown) {
  std::array<float, 16> shown{};
  shown.fill(7);
  HC_Show_Modelling_Matrix(shown.data());
  auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].routine, "HC_Show_Modelling_Matrix");
  EXPECT_EQ(shown[0], 7.0f);

  HC_Set_Modelling_Matrix(kTransform.data());
  HC_UnSet_Modelling_Matrix();
  HC_UnSet_Modelling_Matrix();  // not set: nothing to do, nothing to say
  EXPECT_TRUE(TakeReports().empty());
  HC_Show_Modelling_Matrix(shown.data());
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(ModellingMatrix, PerspectiveOrNonFiniteMatricesAreRefused) {
  HC_Set_Modelling_Matrix(kTransform.data());
  const std::string before = TreeSnapshot();
  for (int element : {3, 7, 11, 15}) {
    std::array<float, 16> bad = kTransform;
    bad[element] = element == 15 ? 0.0f : 0.5f;
    HC_Set_Modelling_Matrix(bad.data());
  }
  std::array<float, 16> not_finite = kTransform;
  not_finite[5] = std::numeric_limits<float>::infinity();
  HC_Set_Modelling_Matrix(not_finite.data());
  HC_Set_Modelling_Matrix(nullptr);
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 6u);
  for (const auto& report : reports) EXPECT_EQ(report.category, graphics::kCategoryRange);
  EXPECT_EQ(TreeSnapshot(), before);
}

TEST_F(ModellingMatrix, DoublePrecisionIsRememberedAndReadBackExactly) {
  const double exact[16] = {1.0 / 3, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1e10 + 0.5, 0, 0, 1};
  HC_DSet_Modelling_Matrix(exact);
  EXPECT_TRUE(HC_Check_Double_Precision(segment_, "modelling matrix"));
  EXPECT_TRUE(HC_Check_Double_Precision(segment_, " Modelling  Matrix "));
  double shown[16] = {};
  HC_DShow_Modelling_Matrix(shown);
  for (int i = 0; i < 16; ++i) EXPECT_EQ(shown[i], exact[i]) << i;

  // A single-precision matrix replaces it, and the flag with it.
  HC_Set_Modelling_Matrix(kTransform.data());
  EXPECT_FALSE(HC_Check_Double_Precision(segment_, "modelling matrix"));
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(ModellingMatrix, DoublePrecisionCheckKnowsItsWords) {
  HC_Set_Modelling_Matrix(kTransform.data());
  EXPECT_FALSE(HC_Check_Double_Precision(segment_, "modelling matrix"));
  EXPECT_FALSE(HC_Check_Double_Precision(HC_Insert_Line(0, 0, 0, 1, 1, 1), "circular arc"));
  EXPECT_TRUE(TakeReports().empty());

  EXPECT_FALSE(HC_Check_Double_Precision(segment_, "modeling matrices please"));
  EXPECT_FALSE(HC_Check_Double_Precision(-99999, "modelling matrix"));
  EXPECT_FALSE(HC_Check_Double_Precision(segment_, nullptr));
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 3u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryOption);
  EXPECT_EQ(reports[1].category, graphics::kCategoryKey);
  EXPECT_EQ(reports[2].category, graphics::kCategoryRange);
}

}  // namespace
