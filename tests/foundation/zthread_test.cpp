// Threads started by the library, and the completion notices they post to
// the host's window.
#include "sceneward/foundation/zthread.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstring>
#include <memory>
#include <thread>

#include "host/reference_host.h"
#include "platform/thread_id.h"
#include "platform/threads.h"
#include "sceneward/foundation/zguid.h"

namespace {

void* Increment(void* counter) {
  static_cast<std::atomic<int>*>(counter)->fetch_add(1);
  return reinterpret_cast<void*>(uintptr_t{42});
}

void* WaitForRelease(void* flag) {
  while (!static_cast<std::atomic<bool>*>(flag)->load()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  return nullptr;
}

TEST(ZThreadTest, LaunchedThreadRunsAndIsWaitedFor) {
  std::atomic<int> counter{0};
  void* thread = ZThread::LaunchThread(Increment, &counter);
  EXPECT_EQ(ZThread::WaitForThreadToComplete(thread, 0xFFFFFFFF), WaitCompleted);
  EXPECT_EQ(counter.load(), 1);
  platform::CloseThreadHandle(thread);
}

TEST(ZThreadTest, SuspendedThreadWaitsForItsResume) {
  std::atomic<int> counter{0};
  void* thread = ZThread::CreateThreadSuspended(Increment, &counter);
  EXPECT_EQ(ZThread::WaitForThreadToComplete(thread, 10), WaitTimedOut);
  EXPECT_EQ(ZThread::SuspendThread(thread), 1);
  EXPECT_EQ(ZThread::ResumeThread(thread), 2);
  EXPECT_EQ(ZThread::ResumeThread(thread), 1);
  EXPECT_EQ(ZThread::WaitForThreadToComplete(thread, 0xFFFFFFFF), WaitCompleted);
  EXPECT_EQ(counter.load(), 1);
  platform::CloseThreadHandle(thread);
}

TEST(ZThreadTest, RunningThreadAnswersSuspendWithFailure) {
  std::atomic<bool> release{false};
  void* thread = ZThread::LaunchThread(WaitForRelease, &release);
  EXPECT_EQ(ZThread::SuspendThread(thread), -1);
  EXPECT_EQ(ZThread::WaitForThreadToComplete(thread, 5), WaitTimedOut);
  release = true;
  EXPECT_EQ(ZThread::WaitForThreadToComplete(thread, 0xFFFFFFFF), WaitCompleted);
  platform::CloseThreadHandle(thread);
  EXPECT_EQ(ZThread::WaitForThreadToComplete(nullptr, 0), WaitFailed);
}

// A host with the calling thread registered, whose notify window receives
// the notices.
class LaunchZThreadTest : public ::testing::Test {
 protected:
  LaunchZThreadTest() {
    host_.RegisterThread(platform::CurrentThreadId());
    host_.LoadAddIn();
  }

  // The next message on the host's window, waiting for it a while.
  std::optional<platform::WindowMessage> NextMessage() {
    for (int i = 0; i < 1000; ++i) {
      if (auto message = host_.Window().NextMessage()) return message;
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return std::nullopt;
  }

  host::ReferenceHost host_;
};

TEST_F(LaunchZThreadTest, NotifyingThreadPostsItsResultToTheHostWindow) {
  std::atomic<int> counter{0};
  int target = 0;
  auto* thread = reinterpret_cast<void*>(LaunchZThread(Increment, &counter, &target, true));
  ASSERT_EQ(ZThread::WaitForThreadToComplete(thread, 0xFFFFFFFF), WaitCompleted);
  platform::CloseThreadHandle(thread);
  const auto message = NextMessage();
  ASSERT_TRUE(message.has_value());
  EXPECT_EQ(message->message, 1808u);
  EXPECT_EQ(message->lParam, 0);
  std::unique_ptr<Event> event(reinterpret_cast<Event*>(message->wParam));
  EXPECT_EQ(*event->GetType(), 246u);
  EXPECT_EQ(event->GetValue(), 0u);
  const auto* done = dynamic_cast<ThreadDoneEvent*>(event.get());
  ASSERT_NE(done, nullptr);
  EXPECT_EQ(done->target, reinterpret_cast<uint64_t>(&target));
  EXPECT_EQ(done->result, 42u);
  EXPECT_NE(done->threadId, platform::CurrentThreadId());
  EXPECT_NE(done->threadId, 0u);
  EXPECT_EQ(counter.load(), 1);
}

TEST_F(LaunchZThreadTest, SilentThreadPostsNothing) {
  std::atomic<int> counter{0};
  auto* thread = reinterpret_cast<void*>(LaunchZThread(Increment, &counter, nullptr, false));
  ASSERT_EQ(ZThread::WaitForThreadToComplete(thread, 0xFFFFFFFF), WaitCompleted);
  platform::CloseThreadHandle(thread);
  EXPECT_EQ(counter.load(), 1);
  EXPECT_FALSE(host_.Window().NextMessage().has_value());
}

TEST_F(LaunchZThreadTest, PostNotifyHandsTheEventOverAndIgnoresNull) {
  PostNotify(host_.Window().Handle(), nullptr);
  EXPECT_FALSE(host_.Window().NextMessage().has_value());
  auto* event = new ThreadDoneEvent(7, 8, 9);
  PostNotify(host_.Window().Handle(), event);
  const auto message = host_.Window().NextMessage();
  ASSERT_TRUE(message.has_value());
  EXPECT_EQ(message->wParam, reinterpret_cast<uintptr_t>(event));
  delete event;
  // To a window that is gone, the event is lost (and must not leak).
  PostNotify(nullptr, new ThreadDoneEvent(1, 2, 3));
}

TEST(ZGUIDTest, FreshIdentifiersDiffer) {
  _GUID first{};
  _GUID second{};
  ZGUID::CreateGUID(first);
  ZGUID::CreateGUID(second);
  EXPECT_NE(std::memcmp(&first, &second, sizeof first), 0);
  EXPECT_EQ(first.Data3 >> 12, 4);
}

}  // namespace
