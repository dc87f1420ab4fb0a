// The graphics operations that do more, or less, than forward their
// arguments, checked against the engine and the recorded call order.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hc/hc.h"
#include "sceneward/foundation/zstring.h"
#include "support/engine_error_log.h"
#include "support/recording_host_test.h"

namespace {

using Calls = std::vector<std::string>;

class ManagerBehaviourTest : public RecordingHostTest {
 protected:
  ManagerBehaviourTest() {
    segmentKey_ = recorder_.HC_Open_Segment(kSegment);
    recorder_.ClearCalls();
  }
  ~ManagerBehaviourTest() override {
    recorder_.HC_Close_Segment();
    ::HC_Delete_Segment(kSegment);
  }

  static constexpr char kSegment[] = "/manager behaviours";
  long long segmentKey_;
};

constexpr float kMatrix[16] = {2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 4, 0, 5, 6, 7, 1};

TEST_F(ManagerBehaviourTest, ModellingMatrixAsksForPrecisionThroughTheTable) {
  recorder_.HC_Set_Modelling_Matrix(kMatrix);
  float shown[16] = {};
  recorder_.ClearCalls();
  recorder_.HC_Show_Modelling_Matrix(shown);
  EXPECT_EQ(recorder_.Calls(),
            (Calls{"HC_Show_Modelling_Matrix", "HC_Open_Segment", "Lock", "HC_Close_Segment",
                   "UnLock", "HC_Check_Double_Precision"}));
  for (int i = 0; i < 16; ++i) EXPECT_EQ(shown[i], kMatrix[i]) << i;
}

TEST_F(ManagerBehaviourTest, DoublePrecisionMatrixIsConvertedToFloats) {
  EngineErrorLog log;
  const double exact[16] = {1.0 / 3, 0, 0, 0, 0, 2.0 / 3, 0, 0, 0, 0, 1, 0, 1e10 + 0.5, 0, 0, 1};
  HC_DSet_Modelling_Matrix(exact);
  float shown[16] = {};
  recorder_.HC_Show_Modelling_Matrix(shown);
  EXPECT_TRUE(log.Reports().empty());
  EXPECT_EQ(recorder_.Calls(), (Calls{"HC_Show_Modelling_Matrix", "HC_Open_Segment", "Lock", "HC_Close_Segment",
                                      "UnLock", "HC_Check_Double_Precision"}));
  for (int i = 0; i < 16; ++i) EXPECT_EQ(shown[i], static_cast<float>(exact[i])) << i;
}

TEST_F(ManagerBehaviourTest, PriorityWithoutAnOutputAsksTheEngineNothing) {
  EngineErrorLog log;
  EXPECT_FALSE(recorder_.HC_Show_Priority(-1, nullptr));
  EXPECT_TRUE(log.Reports().empty());
  long priority = 99;
  recorder_.HC_Show_Priority(-1, &priority);
  EXPECT_FALSE(log.Reports().empty());
  EXPECT_EQ(priority, 0);
  EXPECT_EQ(recorder_.Calls(), (Calls{"HC_Show_Priority", "HC_Show_Priority"}));
}

TEST_F(ManagerBehaviourTest, PriorityComesBackInALong) {
  EngineErrorLog log;
  recorder_.HC_Set_Priority(segmentKey_, 7);
  long priority = 0;
  const bool set = recorder_.HC_Show_Priority(segmentKey_, &priority);
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Set_Priority");
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Show_Priority");
  EXPECT_TRUE(set);
  EXPECT_EQ(priority, 7);
}

TEST_F(ManagerBehaviourTest, NurbsCurveSizeLeavesTheWeightCount) {
  EngineErrorLog log;
  const float points[9] = {0, 0, 0, 1, 1, 0, 2, 0, 0};
  const float weights[3] = {1, 2, 1};
  const long long key = recorder_.HC_Insert_NURBS_Curve(2, 3, points, weights, nullptr, 0, 1);
  int degree = -1, controlPoints = -1, weightCount = -77, knots = -1;
  recorder_.HC_Show_NURBS_Curve_Size(key, &degree, &controlPoints, &weightCount, &knots);
  EXPECT_EQ(weightCount, -77);
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Insert_NURBS_Curve");
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Show_NURBS_Curve_Size");
  EXPECT_EQ(degree, 2);
  EXPECT_EQ(controlPoints, 3);
  EXPECT_EQ(knots, 0);  // default knots were asked for: none are stored
}

TEST_F(ManagerBehaviourTest, ReportedErrorGoesToTheLibrarysHandler) {
  ZelmoSceneward::mErrorPopupEnabled = false;
  const char* messages[] = {"first message"};
  const char* routines[] = {"HC_Some_Routine"};
  recorder_.HC_Report_Error(20, 1, 2, 1, messages, 1, routines);
  ZelmoSceneward::mErrorPopupEnabled = true;
  const std::vector<host::ReportedMessage> reported = entry_.MessageSink().Messages();
  ASSERT_EQ(reported.size(), 1u);
  EXPECT_EQ(reported[0].text, "Hoops Error: HC_Some_Routine - first message");
}

TEST_F(ManagerBehaviourTest, TypedOverloadsShareTheUntypedBody) {
  EngineErrorLog log;
  ht_point vector{3, 4, 0};
  const double length = recorder_.HC_Compute_Vector_Length(&vector);
  EXPECT_EQ(recorder_.Calls(), (Calls{"HC_Compute_Vector_Length"}));

  const ht_point points[2] = {{1, 2, 3}, {4, 5, 6}};
  ht_point moved[2] = {};
  recorder_.HC_Compute_Transformed_Points(2, points, kMatrix, moved);
  EXPECT_EQ(recorder_.CountOf("HC_Compute_Transformed_Points"), 1);

  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Compute_Vector_Length");
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Compute_Transformed_Points");
  EXPECT_EQ(length, 5.0);
  EXPECT_EQ(moved[0].x, 7);
  EXPECT_EQ(moved[0].y, 12);
  EXPECT_EQ(moved[0].z, 19);
  EXPECT_EQ(moved[1].x, 13);
}

TEST_F(ManagerBehaviourTest, TypedShellOverloadSharesTheUntypedBody) {
  EngineErrorLog log;
  const float corners[9] = {0, 0, 0, 1, 0, 0, 0, 1, 0};
  const int faces[4] = {3, 0, 1, 2};
  const long long shell = recorder_.HC_Insert_Shell(3, corners, 4, faces);
  recorder_.ClearCalls();
  int pointCount = 0;
  HOOPS3DVec shown[3] = {};
  int faceListLength = 0;
  int faceList[4] = {};
  recorder_.HC_Show_Shell(shell, &pointCount, shown, &faceListLength, faceList);
  EXPECT_EQ(recorder_.Calls(), (Calls{"HC_Show_Shell"}));
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Insert_Shell");
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Show_Shell");
  EXPECT_EQ(pointCount, 3);
  EXPECT_EQ(shown[1].x, 1);
  EXPECT_EQ(faceListLength, 4);
}

}  // namespace
