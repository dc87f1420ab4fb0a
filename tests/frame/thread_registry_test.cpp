#include "sceneward/frame/thread_registry.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>

#include "host/reference_host.h"
#include "platform/thread_id.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace {

constexpr uint32_t kOtherThread = 0x7FFF0001;
constexpr uint32_t kThirdThread = 0x7FFF0002;
constexpr uint32_t kUnknownThread = 0x7FFF0003;

class ThreadRegistryTest : public ::testing::Test {
 protected:
  void SetUp() override { SetRegisteredHost(host.Registry()); }

  uint32_t self = platform::CurrentThreadId();
  host::ReferenceHost host;
};

TEST_F(ThreadRegistryTest, EmptyRegistryAnswersNullEvenForTheCallingThread) {
  EXPECT_EQ(FindThreadEntry(host.Registry(), self), nullptr);
  EXPECT_EQ(FindThreadEntry(host.Registry(), kOtherThread), nullptr);
  EXPECT_EQ(CurrentManager(), nullptr);
}

TEST_F(ThreadRegistryTest, RegisteredThreadFindsItsOwnEntry) {
  host.RegisterThread(kOtherThread);
  host::HostThreadEntry& mine = host.RegisterThread(self);
  EXPECT_EQ(FindThreadEntry(host.Registry(), self), &mine);
  EXPECT_EQ(mine.OwnerQueries(), 1);  // two rows: the owner is asked, and it is the key
}

TEST_F(ThreadRegistryTest, UnknownCallingThreadFallsBackToFirstEntryWithoutAskingItsOwner) {
  host::HostThreadEntry& first = host.RegisterThread(kOtherThread);
  EXPECT_EQ(FindThreadEntry(host.Registry(), self), &first);
  EXPECT_EQ(first.OwnerQueries(), 0);  // a single row never redirects
}

TEST_F(ThreadRegistryTest, UnknownOtherThreadGetsNull) {
  host.RegisterThread(kOtherThread);
  EXPECT_EQ(FindThreadEntry(host.Registry(), kUnknownThread), nullptr);
}

TEST_F(ThreadRegistryTest, NullEntryIsTreatedLikeAnUnknownThread) {
  host::HostThreadEntry& first = host.RegisterThread(kOtherThread);
  host.RegisterNullEntry(self);
  host.RegisterNullEntry(kThirdThread);
  EXPECT_EQ(FindThreadEntry(host.Registry(), self), &first);
  EXPECT_EQ(FindThreadEntry(host.Registry(), kThirdThread), nullptr);
}

TEST_F(ThreadRegistryTest, FallbackToANullFirstEntryAnswersNull) {
  host.RegisterNullEntry(kOtherThread);
  host.RegisterThread(kThirdThread);
  EXPECT_EQ(FindThreadEntry(host.Registry(), self), nullptr);
}

TEST_F(ThreadRegistryTest, WorkerIsRedirectedToItsOwnersEntryOnce) {
  host::HostThreadEntry& owner = host.RegisterThread(kOtherThread, kThirdThread);
  host.RegisterThread(kThirdThread + 100);
  host::HostThreadEntry& worker = host.RegisterThread(self, kOtherThread);
  // The owner itself names yet another thread: that second hop is not taken.
  host::HostThreadEntry& ownersOwner = host.RegisterThread(kThirdThread);
  EXPECT_EQ(FindThreadEntry(host.Registry(), self), &owner);
  EXPECT_EQ(worker.OwnerQueries(), 1);
  EXPECT_EQ(owner.OwnerQueries(), 0);
  EXPECT_EQ(ownersOwner.OwnerQueries(), 0);
}

TEST_F(ThreadRegistryTest, RedirectToAMissingOrNullOwnerKeepsTheFirstFoundEntry) {
  host::HostThreadEntry& toMissing = host.RegisterThread(self, kUnknownThread);
  host::HostThreadEntry& toNull = host.RegisterThread(kOtherThread, kThirdThread);
  host.RegisterNullEntry(kThirdThread);
  EXPECT_EQ(FindThreadEntry(host.Registry(), self), &toMissing);
  EXPECT_EQ(FindThreadEntry(host.Registry(), kOtherThread), &toNull);
}

TEST_F(ThreadRegistryTest, FallbackEntryIsRedirectedToo) {
  host.RegisterThread(kOtherThread, kThirdThread);
  host::HostThreadEntry& owner = host.RegisterThread(kThirdThread);
  EXPECT_EQ(FindThreadEntry(host.Registry(), self), &owner);
}

TEST_F(ThreadRegistryTest, ManagerForThreadAsksTheFoundEntry) {
  host::HostThreadEntry& other = host.RegisterThread(kOtherThread);
  host::HostThreadEntry& mine = host.RegisterThread(self);
  EXPECT_EQ(ManagerForThread(kOtherThread), nullptr);  // no manager yet
  other.SetManager(new ZelmoSceneward());
  mine.SetManager(new ZelmoSceneward());
  EXPECT_EQ(ManagerForThread(kOtherThread), other.GetManager());
  EXPECT_EQ(CurrentManager(), mine.GetManager());
  EXPECT_EQ(ManagerForThread(kUnknownThread), nullptr);
}

TEST_F(ThreadRegistryTest, LockingFlagDecidesWhetherManagerLookupsWaitForTheRegistry) {
  host.RegisterThread(self).SetManager(new ZelmoSceneward());
  std::promise<void> locked, release;
  std::thread holder([&] {
    host.Lock().Enter();
    locked.set_value();
    release.get_future().wait();
    host.Lock().Leave();
  });
  locked.get_future().wait();

  // Unlocked registry: the lookup runs while another thread holds the lock.
  host.SetLockingEnabled(false);
  EXPECT_NE(CurrentManager(), nullptr);

  // Locked registry: the lookup waits for the holder.
  host.SetLockingEnabled(true);
  auto lookup = std::async(std::launch::async, [] { return CurrentManager(); });
  EXPECT_EQ(lookup.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  release.set_value();
  holder.join();
  EXPECT_NE(lookup.get(), nullptr);  // an unknown thread asking for itself falls back
}

TEST_F(ThreadRegistryTest, EntryGettersAnswerNullWithoutAnEntry) {
  EXPECT_EQ(CurrentAppContext(), nullptr);
  EXPECT_EQ(CurrentEventTarget(), nullptr);
  EXPECT_EQ(CurrentMessageSink(), nullptr);
  host::HostThreadEntry& mine = host.RegisterThread(self);
  EXPECT_EQ(CurrentAppContext(), &mine.AppContext());
  EXPECT_EQ(CurrentEventTarget(), &mine.EventTarget());
  EXPECT_EQ(CurrentMessageSink(), &mine.MessageSink());
  mine.SetMessageSinkEnabled(false);
  EXPECT_EQ(CurrentMessageSink(), nullptr);
}

}  // namespace
