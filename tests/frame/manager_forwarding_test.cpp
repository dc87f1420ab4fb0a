// The generated forwards: how opening and closing operations call Lock and
// UnLock, and how strings cross to the engine and back.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hc/hc.h"
#include "sceneward/foundation/zstring.h"
#include "support/engine_error_log.h"
#include "support/recording_host_test.h"

namespace {

using Calls = std::vector<std::string>;

class ManagerForwardingTest : public RecordingHostTest {
 protected:
  ~ManagerForwardingTest() override { ::HC_Delete_Segment(kRoot); }

  static constexpr char kRoot[] = "/manager forwarding";
};

TEST_F(ManagerForwardingTest, OpenAndCloseBracketTheLockOfTheCurrentManager) {
  recorder_.HC_Open_Segment(kRoot);
  recorder_.HC_Open_Segment(ZString("child"));
  recorder_.HC_Close_Segment();
  recorder_.HC_Close_Segment();
  EXPECT_EQ(recorder_.Calls(), (Calls{"HC_Open_Segment", "Lock", "HC_Open_Segment", "Lock",
                                      "HC_Close_Segment", "UnLock", "HC_Close_Segment", "UnLock"}));
}

TEST_F(ManagerForwardingTest, OpeningLocksTheCurrentThreadsManagerNotTheOneCalled) {
  RecordingManager bystander;
  const long long key = bystander.HC_Open_Segment(kRoot);
  bystander.HC_Close_Segment();
  bystander.HC_Open_Segment_By_Key(key);
  bystander.HC_Close_Segment();
  EXPECT_EQ(recorder_.Calls(), (Calls{"Lock", "Lock"}));
  EXPECT_EQ(bystander.Calls(), (Calls{"HC_Open_Segment", "HC_Close_Segment", "UnLock",
                                      "HC_Open_Segment_By_Key", "HC_Close_Segment", "UnLock"}));
}

TEST_F(ManagerForwardingTest, SearchesHoldTheLockFromBeginToEnd) {
  recorder_.HC_Create_Segment(kRoot);
  recorder_.HC_Begin_Segment_Search(kRoot);
  recorder_.HC_End_Segment_Search();
  recorder_.HC_Begin_Contents_Search(kRoot, "everything");
  recorder_.HC_End_Contents_Search();
  EXPECT_EQ(recorder_.Calls(),
            (Calls{"HC_Create_Segment", "HC_Begin_Segment_Search", "Lock", "HC_End_Segment_Search",
                   "UnLock", "HC_Begin_Contents_Search", "Lock", "HC_End_Contents_Search",
                   "UnLock"}));
}

TEST_F(ManagerForwardingTest, LocalTextureSearchTakesNoLock) {
  recorder_.HC_Begin_Local_Texture_Search();
  recorder_.HC_End_Texture_Search();
  EXPECT_EQ(recorder_.Calls(),
            (Calls{"HC_Begin_Local_Texture_Search", "HC_End_Texture_Search", "UnLock"}));
}

TEST_F(ManagerForwardingTest, PlainForwardReturnsTheEnginesAnswer) {
  const long long created = recorder_.HC_Create_Segment(kRoot);
  EXPECT_EQ(recorder_.HC_Open_Segment(kRoot), created);
  recorder_.HC_Close_Segment();
  EXPECT_EQ(recorder_.Calls(),
            (Calls{"HC_Create_Segment", "HC_Open_Segment", "Lock", "HC_Close_Segment", "UnLock"}));
}

TEST_F(ManagerForwardingTest, OutputStringShowsTheEnginesTextWithoutFurtherCalls) {
  EngineErrorLog log;
  const long long key = recorder_.HC_Create_Segment(kRoot);
  ZString path("previous text");
  recorder_.HC_Show_Segment(key, path);
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Show_Segment");
  EXPECT_FALSE(path.IsUnicode());
  EXPECT_EQ(path.GetLength(), static_cast<int>(std::string(kRoot).size()));
  EXPECT_STREQ(path.GetAsMBCS(), kRoot);
}

TEST_F(ManagerForwardingTest, TwoOutputStringsGetABufferEach) {
  EngineErrorLog log;
  const long long target = recorder_.HC_Create_Segment("/manager forwarding/target");
  recorder_.HC_Open_Segment(kRoot);
  const long long include = recorder_.HC_Conditional_Include_By_Key(target, "highlighted");
  recorder_.HC_Close_Segment();
  ZString pathname;
  ZString conditions;
  recorder_.HC_Show_Conditional_Include(include, pathname, conditions);
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Conditional_Include_By_Key");
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Show_Conditional_Include");
  EXPECT_EQ(pathname, "/manager forwarding/target");
  EXPECT_EQ(conditions, "highlighted");
}

TEST_F(ManagerForwardingTest, InputStringsReachTheEngineAsNarrowText) {
  const long long wideKey = recorder_.HC_Create_Segment(ZString(u"/manager forwarding/wide"));
  const long long narrowKey = recorder_.HC_Open_Segment(ZString("/manager forwarding/narrow"));
  recorder_.HC_Close_Segment();
  EXPECT_EQ(recorder_.HC_Create_Segment("/manager forwarding/wide"), wideKey);
  EXPECT_EQ(recorder_.HC_Create_Segment("/manager forwarding/narrow"), narrowKey);
}

}  // namespace
