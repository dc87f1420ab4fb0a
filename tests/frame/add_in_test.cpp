#include "sceneward/frame/add_in.h"

#include <gtest/gtest.h>

#include <thread>

#include "host/reference_host.h"
#include "platform/thread_id.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace {

constexpr uint32_t kOtherThread = 0x7FFE0001;

TEST(AddInTest, LoadingGivesTheCallingThreadANewManager) {
  host::ReferenceHost host;
  host.RegisterThread(kOtherThread);
  host::HostThreadEntry& mine = host.RegisterThread(platform::CurrentThreadId());
  host.LoadAddIn();
  ASSERT_NE(mine.GetManager(), nullptr);
  EXPECT_EQ(host.EntryFor(kOtherThread)->GetManager(), nullptr);
  EXPECT_EQ(RegisteredHost(), host.Registry());
  EXPECT_EQ(CurrentManager(), mine.GetManager());
  EXPECT_FALSE(mine.GetManager()->IsInitialized());
}

TEST(AddInTest, LoadingTakesTheRegistryLockEvenWhenLookupsDoNot) {
  host::ReferenceHost host;
  host.SetLockingEnabled(false);
  host::HostThreadEntry& mine = host.RegisterThread(platform::CurrentThreadId());
  host.Lock().Enter();
  std::thread loader([&] { host.LoadAddIn(); });
  // The loader cannot have set the manager while the lock is held here.
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  EXPECT_EQ(mine.GetManager(), nullptr);
  host.Lock().Leave();
  loader.join();
  // The loader thread is unknown to the registry and fell back to the first entry.
  EXPECT_NE(mine.GetManager(), nullptr);
}

TEST(AddInTest, LoadingAgainReplacesTheRegistryAndTheManager) {
  host::ReferenceHost first;
  host::HostThreadEntry& firstEntry = first.RegisterThread(platform::CurrentThreadId());
  first.LoadAddIn();
  host::ReferenceHost second;
  host::HostThreadEntry& secondEntry = second.RegisterThread(platform::CurrentThreadId());
  second.LoadAddIn();
  EXPECT_EQ(RegisteredHost(), second.Registry());
  EXPECT_NE(firstEntry.GetManager(), nullptr);
  EXPECT_EQ(CurrentManager(), secondEntry.GetManager());
}

TEST(AddInTest, AddInAnswersNothingAndReleasesItself) {
  host::ReferenceHost host;
  host.RegisterThread(platform::CurrentThreadId());
  ZelmoAddIn* addIn = ZelmoInitAddIn(host.Registry());
  EXPECT_EQ(addIn->QueryFirst(), 0);
  EXPECT_EQ(addIn->QuerySecond(), 0);
  EXPECT_EQ(static_cast<ZelmoAddInSecondary*>(addIn)->Query(), 0);
  EXPECT_EQ(static_cast<ZelmoAddInTertiary*>(addIn)->Query(), 0);
  // One slot, for the key list's terminator, zeroed.
  ASSERT_NE(addIn->Slots().Slots(), nullptr);
  EXPECT_EQ(addIn->Slots().Keys()[0].key, ZelmoAddInSlots::kEndOfKeys);
  EXPECT_EQ(addIn->Slots().Slots()[0].type, 0u);
  addIn->Release();  // LeakSanitizer checks that everything went
}

TEST(AddInTest, SlotsFreeTheOwnedBlocksOfTheirKeys) {
  static const ZelmoSlotKey keys[] = {{7, {0, 0}}, {9, {0, 0}}, {ZelmoAddInSlots::kEndOfKeys, {0, 0}}};
  ZelmoAddInSlots slots(keys);
  ASSERT_NE(slots.Slots(), nullptr);
  slots.Slots()[0] = ZelmoSlot{ZelmoAddInSlots::kOwnedBlock, 0, std::malloc(32)};
  slots.Slots()[1] = ZelmoSlot{0, 0, nullptr};
  // Destruction frees the first block; LeakSanitizer would report it otherwise.
}

TEST(AddInTest, ShaderHooksFallBackToTheCallersManager) {
  host::ReferenceHost host;
  host::HostThreadEntry& mine = host.RegisterThread(platform::CurrentThreadId());
  host.LoadAddIn();
  EXPECT_EQ(GetShaderHooks(kOtherThread), nullptr);  // fresh manager: no hooks

  int hooks = 0;
  ZelmoSceneward withHooks;
  withHooks.mShaderHooks = &hooks;
  *mine.GetManager() = withHooks;
  EXPECT_EQ(GetShaderHooks(kOtherThread), &hooks);
  EXPECT_EQ(GetShaderHooks(platform::CurrentThreadId()), &hooks);
}

}  // namespace
