#include "platform/string_resources.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "support/scoped_locale.h"

namespace {

using platform::LoadStringNarrow;
using platform::LoadStringWide;

// Each test uses handles of its own, so registrations never meet.
class StringResourcesTest : public ::testing::Test {
 protected:
  void SetUp() override { platform::RegisterStringTable(module(), {{7, u"hello"}, {8, u"caf\u00E9"}, {9, u""}}); }
  void TearDown() override { platform::UnregisterStringTable(module()); }
  void* module() { return &handle_; }

 private:
  int handle_ = 0;
};

TEST_F(StringResourcesTest, LoadsTheRegisteredTextByNumber) {
  WideChar wide[16];
  EXPECT_EQ(LoadStringWide(module(), 7, wide, 16), 5);
  EXPECT_EQ(WideString(wide), u"hello");
  char narrow[16];
  EXPECT_EQ(LoadStringNarrow(module(), 7, narrow, 16), 5);
  EXPECT_STREQ(narrow, "hello");
}

TEST_F(StringResourcesTest, TruncatesToTheBufferAndTerminates) {
  WideChar wide[3];
  EXPECT_EQ(LoadStringWide(module(), 7, wide, 3), 2);
  EXPECT_EQ(WideString(wide), u"he");
  char narrow[3];
  EXPECT_EQ(LoadStringNarrow(module(), 7, narrow, 3), 2);
  EXPECT_STREQ(narrow, "he");
}

TEST_F(StringResourcesTest, MissingOrEmptyTextAnswersZeroWithAnEmptyBuffer) {
  int otherHandle = 0;
  WideChar wide[4] = {u'x', 0};
  char narrow[4] = "xy";
  EXPECT_EQ(LoadStringWide(module(), 99, wide, 4), 0);
  EXPECT_EQ(wide[0], 0);
  EXPECT_EQ(LoadStringNarrow(&otherHandle, 7, narrow, 4), 0);
  EXPECT_EQ(narrow[0], '\0');
  EXPECT_EQ(LoadStringWide(module(), 9, wide, 4), 0);
}

TEST_F(StringResourcesTest, NoRoomAnswersZeroAndWritesNothing) {
  char narrow[2] = "x";
  EXPECT_EQ(LoadStringNarrow(module(), 7, narrow, 0), 0);
  EXPECT_EQ(narrow[0], 'x');
  EXPECT_EQ(LoadStringWide(module(), 7, nullptr, 8), 0);
}

TEST_F(StringResourcesTest, RegistrationReplacesAndUnregistrationRemoves) {
  WideChar wide[16];
  platform::RegisterStringTable(module(), {{7, u"bye"}});
  EXPECT_EQ(LoadStringWide(module(), 7, wide, 16), 3);
  EXPECT_EQ(LoadStringWide(module(), 8, wide, 16), 0);
  platform::UnregisterStringTable(module());
  EXPECT_EQ(LoadStringWide(module(), 7, wide, 16), 0);
}

TEST_F(StringResourcesTest, NarrowTextFollowsTheLocale) {
  char narrow[16];
  {
    ScopedLocale locale("C.UTF-8");
    ASSERT_TRUE(locale.applied());
    EXPECT_EQ(LoadStringNarrow(module(), 8, narrow, 16), 5);
    EXPECT_STREQ(narrow, "caf\xC3\xA9");
    // The two bytes of the last character don't fit in what is left.
    EXPECT_EQ(LoadStringNarrow(module(), 8, narrow, 5), 3);
    EXPECT_STREQ(narrow, "caf");
  }
  ScopedLocale locale("C");
  ASSERT_TRUE(locale.applied());
  EXPECT_EQ(LoadStringNarrow(module(), 8, narrow, 16), 4);
  EXPECT_STREQ(narrow, "caf?");
}

TEST(StringResourcesThreadsTest, ModulesRegisterAndLoadConcurrently) {
  constexpr int kThreads = 4;
  int handles[kThreads] = {};
  std::vector<std::thread> threads;
  std::vector<int> loaded(kThreads, 0);
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([&, t] {
      for (unsigned round = 0; round < 200; ++round) {
        platform::RegisterStringTable(&handles[t], {{round, WideString(static_cast<size_t>(t) + 1, u'x')}});
        WideChar wide[8];
        if (LoadStringWide(&handles[t], round, wide, 8) == t + 1) ++loaded[t];
      }
      platform::UnregisterStringTable(&handles[t]);
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (int t = 0; t < kThreads; ++t) EXPECT_EQ(loaded[t], 200) << "thread " << t;
}

}  // namespace
