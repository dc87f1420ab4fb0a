// The error handler: what reaches the host of a graphics error, in which
// order, and when the engine's own reporter runs as well.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hc/hc.h"
#include "host/reference_host.h"
#include "platform/thread_id.h"
#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace {

using Told = std::vector<std::string>;

// The reference host with the calling thread registered: its event target
// and message sink keep what the handler tells them. Puts the handlers and
// the popup switch back as they were, since both belong to the whole
// process.
class ManagerErrorTest : public ::testing::Test {
 protected:
  ManagerErrorTest() : entry_(host_.RegisterThread(platform::CurrentThreadId())) { host_.LoadAddIn(); }
  ~ManagerErrorTest() override {
    ::HC_UnDefine_Error_Handler(ZelmoSceneward::Sceneward_Report_Error);
    ::HC_Define_Error_Handler(::HC_Report_Error);
    ZelmoSceneward::mErrorPopupEnabled = true;
  }

  // Reports with the popup off, so that only the host hears of it.
  static void ReportQuietly(int category, int specific, int msgc, char const* const* msgv, int stackc,
                            char const* const* stackv) {
    ZelmoSceneward::mErrorPopupEnabled = false;
    ZelmoSceneward::Sceneward_Report_Error(category, specific, 2, msgc, msgv, stackc, stackv);
  }

  // "<code> <text>" for each message the sink received, oldest first.
  Told Messages() const {
    Told told;
    for (const auto& message : entry_.MessageSink().Messages()) {
      told.push_back(std::to_string(message.code) + " " + message.text.GetAsMBCS());
    }
    return told;
  }
  // "<type> <value>" for each event the target received.
  Told Events() const {
    Told told;
    for (const auto& event : entry_.EventTarget().Events()) {
      told.push_back(std::to_string(event.type) + " " + std::to_string(event.value));
    }
    return told;
  }
  ZelmoSceneward& Manager() { return *entry_.GetManager(); }

  host::ReferenceHost host_;
  host::HostThreadEntry& entry_;
};

const char* kMessages[] = {"first", "second", "third"};
const char* kRoutines[] = {"HC_First", "HC_Second"};

TEST_F(ManagerErrorTest, TextRepeatsTheFirstRoutineAndMessageOncePerRound) {
  ReportQuietly(20, 1, 2, kMessages, 1, kRoutines);
  EXPECT_EQ(Messages(), (Told{"114 Hoops Error: HC_First - first,\nfirst"}));
}

TEST_F(ManagerErrorTest, EmptyListsLeaveThePrefixAlone) {
  ReportQuietly(20, 1, 0, kMessages, 0, kRoutines);
  ReportQuietly(20, 1, -1, kMessages, -2, kRoutines);
  EXPECT_EQ(Messages(), (Told{"114 Hoops Error: ", "114 Hoops Error: "}));
}

TEST_F(ManagerErrorTest, MessagesWithoutRoutinesAreSeparatedButNotEnded) {
  ReportQuietly(20, 1, 3, kMessages, 0, kRoutines);
  EXPECT_EQ(Messages(), (Told{"114 Hoops Error: first,\nfirst,\nfirst"}));
}

TEST_F(ManagerErrorTest, RoutinesWithoutMessagesEachEndInADash) {
  ReportQuietly(20, 1, 0, kMessages, 2, kRoutines);
  EXPECT_EQ(Messages(), (Told{"114 Hoops Error: HC_First - ,\nHC_First - "}));
}

TEST_F(ManagerErrorTest, TwoHarmlessReportsAreDropped) {
  ReportQuietly(9, 411, 1, kMessages, 1, kRoutines);
  ReportQuietly(58, 256, 1, kMessages, 1, kRoutines);
  EXPECT_TRUE(Messages().empty());
  ReportQuietly(9, 410, 1, kMessages, 1, kRoutines);
  ReportQuietly(58, 255, 1, kMessages, 1, kRoutines);
  EXPECT_EQ(Messages().size(), 2u);
}

TEST_F(ManagerErrorTest, MemoryErrorsRaiseAnEventAndTheMessage) {
  ReportQuietly(3, 1, 1, kMessages, 1, kRoutines);
  EXPECT_EQ(Events(), (Told{"251 0"}));
  EXPECT_EQ(Messages(), (Told{"114 Hoops Error: HC_First - first"}));
  ReportQuietly(4, 1, 1, kMessages, 1, kRoutines);
  EXPECT_EQ(Events().size(), 1u);
}

TEST_F(ManagerErrorTest, WithoutAMessageSinkNothingIsDelivered) {
  entry_.SetMessageSinkEnabled(false);
  ReportQuietly(20, 1, 1, kMessages, 1, kRoutines);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ManagerErrorTest, WithoutARegisteredEntryNothingIsDelivered) {
  // In an empty registry no thread has an entry.
  host::ReferenceHost empty;
  SetRegisteredHost(empty.Registry());
  ReportQuietly(20, 1, 1, kMessages, 1, kRoutines);
  SetRegisteredHost(host_.Registry());
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ManagerErrorTest, PopupHandsTheWholeReportToTheEnginesReporter) {
  ZelmoSceneward::mErrorPopupEnabled = true;
  testing::internal::CaptureStderr();
  ZelmoSceneward::Sceneward_Report_Error(20, 1, 2, 3, kMessages, 2, kRoutines);
  const std::string printed = testing::internal::GetCapturedStderr();
  EXPECT_NE(printed.find("third"), std::string::npos) << printed;
  EXPECT_NE(printed.find("20/1"), std::string::npos) << printed;
  EXPECT_EQ(Messages().size(), 1u);
}

TEST_F(ManagerErrorTest, WithThePopupOffTheEnginesReporterIsNotCalled) {
  testing::internal::CaptureStderr();
  ReportQuietly(20, 1, 3, kMessages, 2, kRoutines);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(ManagerErrorTest, DroppedReportsReachNeitherHostNorPopup) {
  ZelmoSceneward::mErrorPopupEnabled = true;
  testing::internal::CaptureStderr();
  ZelmoSceneward::Sceneward_Report_Error(9, 411, 2, 1, kMessages, 1, kRoutines);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(ManagerErrorTest, PopupSwitchIsOneValueForEveryManager) {
  ZelmoSceneward first;
  ZelmoSceneward second;
  EXPECT_TRUE(first.IsErrorPopupEnabled());
  first.SetErrorPopupEnabled(false);
  EXPECT_FALSE(second.IsErrorPopupEnabled());
  second.SetErrorPopupEnabled(true);
  EXPECT_TRUE(first.IsErrorPopupEnabled());
}

TEST_F(ManagerErrorTest, InstalledHandlerReplacesTheEnginesReporterAndSilencesThePopup) {
  EXPECT_TRUE(Manager().IsErrorPopupEnabled());
  Manager().SetErrorHandler();
  EXPECT_FALSE(Manager().IsErrorPopupEnabled());

  testing::internal::CaptureStderr();
  ::HC_Delete_By_Key(-1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  const Told messages = Messages();
  ASSERT_EQ(messages.size(), 1u);
  EXPECT_EQ(messages[0].rfind("114 Hoops Error: HC_Delete_By_Key - ", 0), 0u) << messages[0];
}

TEST_F(ManagerErrorTest, InstalledHandlerShowsThePopupWhenTheHostAsks) {
  Manager().SetErrorHandler();
  Manager().SetErrorPopupEnabled(true);
  testing::internal::CaptureStderr();
  ::HC_Delete_By_Key(-1);
  const std::string printed = testing::internal::GetCapturedStderr();
  EXPECT_NE(printed.find("HC_Delete_By_Key"), std::string::npos) << printed;
  EXPECT_EQ(Messages().size(), 1u);
}

}  // namespace
