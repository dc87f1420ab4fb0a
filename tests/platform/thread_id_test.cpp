#include "platform/thread_id.h"

#include <gtest/gtest.h>

#include <thread>

#include "platform/critical_section.h"

namespace {

TEST(ThreadIdTest, StablePerThreadAndDistinctAcrossThreads) {
  const uint32_t mine = platform::CurrentThreadId();
  EXPECT_NE(mine, 0u);
  EXPECT_EQ(platform::CurrentThreadId(), mine);
  uint32_t other = 0;
  std::thread([&] { other = platform::CurrentThreadId(); }).join();
  EXPECT_NE(other, 0u);
  EXPECT_NE(other, mine);
}

TEST(CriticalSectionTest, SameThreadMayEnterAgainAndOthersWait) {
  platform::CriticalSection section;
  section.Enter();
  section.Enter();
  section.Leave();
  bool otherGotIn = true;
  std::thread([&] { otherGotIn = section.TryEnter(); }).join();
  EXPECT_FALSE(otherGotIn);  // still held once
  section.Leave();
  std::thread([&] {
    otherGotIn = section.TryEnter();
    if (otherGotIn) section.Leave();
  }).join();
  EXPECT_TRUE(otherGotIn);
}

TEST(CriticalSectionTest, GuardReleasesOnUnwindingOnlyWhatItTook) {
  platform::CriticalSection section;
  try {
    platform::CriticalSectionGuard guard(&section, true);
    throw 1;
  } catch (int) {
  }
  bool free = false;
  std::thread([&] {
    free = section.TryEnter();
    if (free) section.Leave();
  }).join();
  EXPECT_TRUE(free);
  { platform::CriticalSectionGuard untaken(&section, false); }  // must not leave what it never entered
}

}  // namespace
