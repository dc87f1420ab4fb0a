#include "host/reference_host.h"

#include <gtest/gtest.h>

namespace {

TEST(ReferenceHostTest, RegistryArraysFollowRegistrations) {
  host::ReferenceHost host;
  ZelmoHost* registry = host.Registry();
  EXPECT_EQ(registry->count, 0);
  EXPECT_EQ(registry->lock, &host.Lock());
  EXPECT_EQ(registry->lockingEnabled, 1);

  host::HostThreadEntry& a = host.RegisterThread(101);
  host.RegisterNullEntry(102);
  host::HostThreadEntry& c = host.RegisterThread(103, 101);
  ASSERT_EQ(registry->count, 3);
  EXPECT_EQ(registry->threadIds[0], 101u);
  EXPECT_EQ(registry->entries[0], &a);
  EXPECT_EQ(registry->entries[1], nullptr);
  EXPECT_EQ(registry->entries[2], &c);
  EXPECT_EQ(c.GetOwnerThreadId(), 101u);
  EXPECT_EQ(a.GetOwnerThreadId(), 101u);  // its own owner

  EXPECT_TRUE(host.UnregisterThread(102));
  EXPECT_FALSE(host.UnregisterThread(102));
  ASSERT_EQ(registry->count, 2);
  EXPECT_EQ(registry->threadIds[1], 103u);
  EXPECT_EQ(registry->entries[1], &c);
  EXPECT_EQ(host.EntryFor(103), &c);
  EXPECT_EQ(host.EntryFor(102), nullptr);
}

TEST(ReferenceHostTest, NotifyWindowReceivesPostedMessages) {
  host::ReferenceHost host;
  host::HostThreadEntry& entry = host.RegisterThread(7);
  void* window = entry.GetAppContext()->GetNotifyWindow();
  EXPECT_EQ(window, host.Window().Handle());
  EXPECT_TRUE(platform::PostWindowMessage(window, 1808, 42, 0));
  auto message = host.Window().NextMessage();
  ASSERT_TRUE(message.has_value());
  EXPECT_EQ(message->message, 1808u);
  EXPECT_EQ(message->wParam, 42u);
}

TEST(ReferenceHostTest, MessageSinkKeepsWhatItIsTold) {
  host::ReferenceHost host;
  host::HostThreadEntry& entry = host.RegisterThread(7);
  ZelmoMessageSink* sink = entry.GetMessageSink();
  ASSERT_NE(sink, nullptr);
  sink->ReportMessage(114, ZString("first"));
  sink->ReportMessage(114, ZString("second"));
  auto messages = entry.MessageSink().Messages();
  ASSERT_EQ(messages.size(), 2u);
  EXPECT_EQ(messages[1].code, 114);
  EXPECT_STREQ(messages[1].text.GetAsMBCS(), "second");
  entry.SetMessageSinkEnabled(false);
  EXPECT_EQ(entry.GetMessageSink(), nullptr);
}

}  // namespace
