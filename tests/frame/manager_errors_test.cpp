// The error handler: what reaches the host of a graphics error, in which
// order, and when the engine's own reporter runs as well.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hc/hc.h"
#include "platform/critical_section.h"
#include "platform/thread_id.h"
#include "sceneward/foundation/event.h"
#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace {

// What the host was told, in order: "event <type> <value>" or
// "message <code> <text>".
using Told = std::vector<std::string>;

class NotingEventTarget final : public ZelmoEventTarget {
 public:
  explicit NotingEventTarget(Told& told) : told_(told) {}
  void Unused1() override {}
  void Unused2() override {}
  void Unused3() override {}
  // The event lives on the handler's stack, so it is read here.
  void HandleEvent(Event* event) override {
    told_.push_back("event " + std::to_string(*event->GetType()) + " " +
                    std::to_string(event->GetValue()));
  }

 private:
  Told& told_;
};

class NotingMessageSink final : public ZelmoMessageSink {
 public:
  explicit NotingMessageSink(Told& told) : told_(told) {}
  void Unused1() override {}
  void Unused2() override {}
  void ReportMessage(int code, const ZString& text) override {
    told_.push_back("message " + std::to_string(code) + " " + text.GetAsMBCS());
  }

 private:
  Told& told_;
};

class NotingThreadEntry final : public ZelmoThreadEntry {
 public:
  explicit NotingThreadEntry(Told& told) : eventTarget_(told), messageSink_(told) {}
  ZelmoAppContext* GetAppContext() override { return nullptr; }
  ZelmoEventTarget* GetEventTarget() override { return &eventTarget_; }
  void Unused3() override {}
  void Unused4() override {}
  ZelmoMessageSink* GetMessageSink() override { return sinkEnabled ? &messageSink_ : nullptr; }
  void Unused6() override {}
  ZelmoSceneward* GetManager() override { return &manager; }
  void SetManager(ZelmoSceneward*) override {}
  void Unused9() override {}
  void Unused10() override {}
  void Unused11() override {}
  uint32_t GetOwnerThreadId() override { return platform::CurrentThreadId(); }

  ZelmoSceneward manager;
  bool sinkEnabled = true;

 private:
  NotingEventTarget eventTarget_;
  NotingMessageSink messageSink_;
};

// A registry of the calling thread alone, whose entry notes what the host is
// told. Puts the registry, the handlers and the popup switch back as they
// were, since all three belong to the whole process.
class ManagerErrorTest : public ::testing::Test {
 protected:
  ManagerErrorTest() : threadId_(platform::CurrentThreadId()), entry_(told_), entryPointer_(&entry_) {
    registry_.threadIds = &threadId_;
    registry_.entries = &entryPointer_;
    registry_.count = 1;
    registry_.lock = &lock_;
    registry_.lockingEnabled = 1;
    previousHost_ = RegisteredHost();
    SetRegisteredHost(&registry_);
  }
  ~ManagerErrorTest() override {
    ::HC_UnDefine_Error_Handler(ZelmoSceneward::Sceneward_Report_Error);
    ::HC_Define_Error_Handler(::HC_Report_Error);
    ZelmoSceneward::mErrorPopupEnabled = true;
    SetRegisteredHost(previousHost_);
  }

  // Reports with the popup off, so that only the host hears of it.
  static void ReportQuietly(int category, int specific, int msgc, char const* const* msgv,
                            int stackc, char const* const* stackv) {
    ZelmoSceneward::mErrorPopupEnabled = false;
    ZelmoSceneward::Sceneward_Report_Error(category, specific, 2, msgc, msgv, stackc, stackv);
  }

  Told told_;
  uint32_t threadId_;
  NotingThreadEntry entry_;
  ZelmoThreadEntry* entryPointer_;
  platform::CriticalSection lock_;
  ZelmoHost registry_{};
  ZelmoHost* previousHost_;
};

const char* kMessages[] = {"first", "second", "third"};
const char* kRoutines[] = {"HC_First", "HC_Second"};

TEST_F(ManagerErrorTest, TextRepeatsTheFirstRoutineAndMessageOncePerRound) {
  ReportQuietly(20, 1, 2, kMessages, 1, kRoutines);
  EXPECT_EQ(told_, (Told{"message 114 Hoops Error: HC_First - first,\nfirst"}));
}

TEST_F(ManagerErrorTest, EmptyListsLeaveThePrefixAlone) {
  ReportQuietly(20, 1, 0, kMessages, 0, kRoutines);
  ReportQuietly(20, 1, -1, kMessages, -2, kRoutines);
  EXPECT_EQ(told_, (Told{"message 114 Hoops Error: ", "message 114 Hoops Error: "}));
}

TEST_F(ManagerErrorTest, MessagesWithoutRoutinesAreSeparatedButNotEnded) {
  ReportQuietly(20, 1, 3, kMessages, 0, kRoutines);
  EXPECT_EQ(told_, (Told{"message 114 Hoops Error: first,\nfirst,\nfirst"}));
}

TEST_F(ManagerErrorTest, RoutinesWithoutMessagesEachEndInADash) {
  ReportQuietly(20, 1, 0, kMessages, 2, kRoutines);
  EXPECT_EQ(told_, (Told{"message 114 Hoops Error: HC_First - ,\nHC_First - "}));
}

TEST_F(ManagerErrorTest, TwoHarmlessReportsAreDropped) {
  ReportQuietly(9, 411, 1, kMessages, 1, kRoutines);
  ReportQuietly(58, 256, 1, kMessages, 1, kRoutines);
  EXPECT_TRUE(told_.empty());
  ReportQuietly(9, 410, 1, kMessages, 1, kRoutines);
  ReportQuietly(58, 255, 1, kMessages, 1, kRoutines);
  EXPECT_EQ(told_.size(), 2u);
}

TEST_F(ManagerErrorTest, MemoryErrorsRaiseAnEventBeforeTheMessage) {
  ReportQuietly(3, 1, 1, kMessages, 1, kRoutines);
  EXPECT_EQ(told_, (Told{"event 251 0", "message 114 Hoops Error: HC_First - first"}));
}

TEST_F(ManagerErrorTest, WithoutAMessageSinkNothingIsDelivered) {
  entry_.sinkEnabled = false;
  ReportQuietly(20, 1, 1, kMessages, 1, kRoutines);
  EXPECT_TRUE(told_.empty());
}

TEST_F(ManagerErrorTest, WithoutARegisteredEntryNothingIsDelivered) {
  registry_.count = 0;
  ReportQuietly(20, 1, 1, kMessages, 1, kRoutines);
  EXPECT_TRUE(told_.empty());
}

TEST_F(ManagerErrorTest, PopupHandsTheWholeReportToTheEnginesReporter) {
  ZelmoSceneward::mErrorPopupEnabled = true;
  testing::internal::CaptureStderr();
  ZelmoSceneward::Sceneward_Report_Error(20, 1, 2, 3, kMessages, 2, kRoutines);
  const std::string printed = testing::internal::GetCapturedStderr();
  EXPECT_NE(printed.find("third"), std::string::npos) << printed;
  EXPECT_NE(printed.find("20/1"), std::string::npos) << printed;
  EXPECT_EQ(told_.size(), 1u);
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
  EXPECT_TRUE(told_.empty());
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
  EXPECT_TRUE(entry_.manager.IsErrorPopupEnabled());
  entry_.manager.SetErrorHandler();
  EXPECT_FALSE(entry_.manager.IsErrorPopupEnabled());

  testing::internal::CaptureStderr();
  ::HC_Delete_By_Key(-1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  ASSERT_EQ(told_.size(), 1u);
  EXPECT_EQ(told_[0].rfind("message 114 Hoops Error: HC_Delete_By_Key - ", 0), 0u) << told_[0];
}

TEST_F(ManagerErrorTest, InstalledHandlerShowsThePopupWhenTheHostAsks) {
  entry_.manager.SetErrorHandler();
  entry_.manager.SetErrorPopupEnabled(true);
  testing::internal::CaptureStderr();
  ::HC_Delete_By_Key(-1);
  const std::string printed = testing::internal::GetCapturedStderr();
  EXPECT_NE(printed.find("HC_Delete_By_Key"), std::string::npos) << printed;
  EXPECT_EQ(told_.size(), 1u);
}

}  // namespace
