#include "platform/window_messages.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

TEST(WindowMessagesTest, MessagesArriveInOrderOncePerWindow) {
  platform::WindowHandle first = platform::CreateMessageWindow();
  platform::WindowHandle second = platform::CreateMessageWindow();
  ASSERT_NE(first, nullptr);
  EXPECT_NE(first, second);
  EXPECT_TRUE(platform::PostWindowMessage(first, 1808, 11, 0));
  EXPECT_TRUE(platform::PostWindowMessage(first, 1808, 12, -1));
  EXPECT_FALSE(platform::TakeWindowMessage(second).has_value());
  auto one = platform::TakeWindowMessage(first);
  auto two = platform::TakeWindowMessage(first);
  ASSERT_TRUE(one && two);
  EXPECT_EQ(one->wParam, 11u);
  EXPECT_EQ(two->wParam, 12u);
  EXPECT_EQ(two->lParam, -1);
  EXPECT_FALSE(platform::TakeWindowMessage(first).has_value());
  platform::DestroyMessageWindow(first);
  platform::DestroyMessageWindow(second);
}

TEST(WindowMessagesTest, PostingToAMissingWindowFailsAndLosesTheMessage) {
  platform::WindowHandle window = platform::CreateMessageWindow();
  platform::DestroyMessageWindow(window);
  EXPECT_FALSE(platform::PostWindowMessage(window, 1808, 1, 0));
  EXPECT_FALSE(platform::PostWindowMessage(nullptr, 1808, 1, 0));
  EXPECT_FALSE(platform::TakeWindowMessage(window).has_value());
}

TEST(WindowMessagesTest, ManyThreadsPostWithoutLoss) {
  platform::WindowHandle window = platform::CreateMessageWindow();
  std::vector<std::thread> posters;
  for (int t = 0; t < 4; ++t) {
    posters.emplace_back([window] {
      for (int i = 0; i < 250; ++i) platform::PostWindowMessage(window, 1808, 0, 0);
    });
  }
  for (auto& poster : posters) poster.join();
  int received = 0;
  while (platform::TakeWindowMessage(window)) ++received;
  EXPECT_EQ(received, 1000);
  platform::DestroyMessageWindow(window);
}

}  // namespace
