// Threads behind handles: the start gate of a suspended thread, its count,
// and the answers of the wait.
#include "platform/threads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace {

void Count(void* counter) { static_cast<std::atomic<int>*>(counter)->fetch_add(1); }

// Runs until the flag is set, so that a test can hold a thread in flight.
void SpinUntilSet(void* flag) {
  while (!static_cast<std::atomic<bool>*>(flag)->load()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

TEST(PlatformThreadsTest, ThreadRunsAndItsWaitCompletes) {
  std::atomic<int> counter{0};
  platform::ThreadHandle thread = platform::CreateThread(Count, &counter, false);
  ASSERT_NE(thread, nullptr);
  EXPECT_EQ(platform::WaitForThread(thread, platform::kInfiniteTimeout), platform::kWaitCompleted);
  EXPECT_EQ(counter.load(), 1);
  // An ended thread keeps answering through its handle until it is closed.
  EXPECT_EQ(platform::WaitForThread(thread, 0), platform::kWaitCompleted);
  EXPECT_EQ(platform::ResumeThread(thread), 0u);
  platform::CloseThreadHandle(thread);
}

TEST(PlatformThreadsTest, SuspendedThreadStartsWhenItsCountReachesZero) {
  std::atomic<int> counter{0};
  platform::ThreadHandle thread = platform::CreateThread(Count, &counter, true);
  EXPECT_EQ(platform::SuspendThread(thread), 1u);
  EXPECT_EQ(platform::WaitForThread(thread, 20), platform::kWaitTimedOut);
  EXPECT_EQ(platform::ResumeThread(thread), 2u);
  EXPECT_EQ(platform::WaitForThread(thread, 20), platform::kWaitTimedOut);
  EXPECT_EQ(counter.load(), 0);
  EXPECT_EQ(platform::ResumeThread(thread), 1u);
  EXPECT_EQ(platform::WaitForThread(thread, platform::kInfiniteTimeout), platform::kWaitCompleted);
  EXPECT_EQ(counter.load(), 1);
  platform::CloseThreadHandle(thread);
}

TEST(PlatformThreadsTest, RunningThreadCannotBeSuspended) {
  std::atomic<bool> release{false};
  platform::ThreadHandle thread = platform::CreateThread(SpinUntilSet, &release, false);
  EXPECT_EQ(platform::SuspendThread(thread), platform::kThreadCallFailed);
  EXPECT_EQ(platform::WaitForThread(thread, 10), platform::kWaitTimedOut);
  release = true;
  EXPECT_EQ(platform::WaitForThread(thread, platform::kInfiniteTimeout), platform::kWaitCompleted);
  platform::CloseThreadHandle(thread);
}

TEST(PlatformThreadsTest, ClosingTheHandleOfARunningThreadLetsItFinish) {
  std::atomic<bool> release{false};
  platform::ThreadHandle thread = platform::CreateThread(SpinUntilSet, &release, false);
  platform::CloseThreadHandle(thread);
  release = true;
  // Nothing to wait on any more; the thread object goes with the thread.
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

TEST(PlatformThreadsTest, NeverResumedThreadIsDroppedWithItsHandle) {
  std::atomic<int> counter{0};
  platform::CloseThreadHandle(platform::CreateThread(Count, &counter, true));
  EXPECT_EQ(counter.load(), 0);
}

TEST(PlatformThreadsTest, NullHandlesFail) {
  EXPECT_EQ(platform::SuspendThread(nullptr), platform::kThreadCallFailed);
  EXPECT_EQ(platform::ResumeThread(nullptr), platform::kThreadCallFailed);
  EXPECT_EQ(platform::WaitForThread(nullptr, 0), platform::kWaitFailed);
  platform::CloseThreadHandle(nullptr);
}

}  // namespace
