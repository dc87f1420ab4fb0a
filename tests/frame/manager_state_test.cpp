// The manager's own state: its three fields, their copies, and the flags
// that graphics calls set.
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <thread>
#include <type_traits>

#include "platform/thread_id.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "support/recording_host_test.h"

namespace {

bool HasStreamLockOnAnotherThread(ZelmoSceneward& manager) {
  bool answer = true;
  std::thread([&] { answer = manager.HasStreamLock(); }).join();
  return answer;
}

TEST(ManagerStateTest, FreshManagerHoldsNothing) {
  ZelmoSceneward manager;
  EXPECT_EQ(manager.mStreamLockThread, 0u);
  EXPECT_EQ(manager.mShaderHooks, nullptr);
  EXPECT_FALSE(manager.IsInitialized());
  EXPECT_FALSE(manager.HasStreamLock());
  EXPECT_FALSE(HasStreamLockOnAnotherThread(manager));
}

TEST(ManagerStateTest, StreamLockBelongsToTheThreadNamedInIt) {
  ZelmoSceneward manager;
  manager.mStreamLockThread = platform::CurrentThreadId();
  EXPECT_TRUE(manager.HasStreamLock());
  EXPECT_FALSE(HasStreamLockOnAnotherThread(manager));
}

TEST(ManagerStateTest, CopyAndAssignmentTakeAllThreeFields) {
  int hooks = 0;
  ZelmoSceneward original;
  original.mStreamLockThread = platform::CurrentThreadId();
  original.mShaderHooks = &hooks;
  original.SetIsInitialized(true);

  ZelmoSceneward copy(original);
  EXPECT_EQ(copy.mStreamLockThread, original.mStreamLockThread);
  EXPECT_EQ(copy.mShaderHooks, &hooks);
  EXPECT_TRUE(copy.IsInitialized());
  EXPECT_TRUE(copy.HasStreamLock());

  ZelmoSceneward assigned;
  assigned = original;
  EXPECT_EQ(assigned.mStreamLockThread, original.mStreamLockThread);
  EXPECT_EQ(assigned.mShaderHooks, &hooks);
  EXPECT_TRUE(assigned.IsInitialized());
}

TEST(ManagerStateTest, AssignmentKeepsTheTargetsOwnOperations) {
  RecordingManager recorder;
  ZelmoSceneward plain;
  plain.SetIsInitialized(true);
  static_cast<ZelmoSceneward&>(recorder) = plain;
  EXPECT_TRUE(recorder.IsInitialized());
  EXPECT_EQ(recorder.Calls(), std::vector<std::string>{"IsInitialized"});
}

TEST(ManagerStateTest, ExportedStaticsAreUntouchedRecords) {
  static_assert(sizeof(ZelmoSceneward::mLock) == 40);
  for (unsigned char byte : ZelmoSceneward::mLock.bytes) EXPECT_EQ(byte, 0);
  EXPECT_EQ(ZelmoSceneward::mLockStream, nullptr);
}

// A host's own manager, built from the table like the library's: it looks
// at no argument, answers every operation with a default and leaves
// IsInitialized to the interface.
template <class... Arguments>
void IgnoreArguments(const Arguments&...) {}

template <class Result>
Result DefaultAnswer() {
  if constexpr (!std::is_void_v<Result>) return Result{};
}

#define SW_STRING_OUT(s) s
#define SW_STRING_IN(s) s
#define SW_WIDE_IN(s) s

class HostManager : public ZelmoScenewardInterface {
 public:
#define SW_HOST_OVERRIDE(result, name, parameters, arguments) \
  result name parameters override {                           \
    IgnoreArguments arguments;                                \
    return DefaultAnswer<result>();                           \
  }
#define SW_HOST_OVERRIDE_PLAIN SW_HOST_OVERRIDE
#define SW_HOST_OVERRIDE_OPENING SW_HOST_OVERRIDE
#define SW_HOST_OVERRIDE_CLOSING SW_HOST_OVERRIDE
#define SW_HOST_OVERRIDE_EMPTY SW_HOST_OVERRIDE
#define SW_HOST_OVERRIDE_CUSTOM SW_HOST_OVERRIDE
#define SW_HOST_OVERRIDE_CUSTOM_NOT_PURE(result, name, parameters, arguments)
#define SW_MANAGER_OPERATION(shape, result, name, parameters, arguments) \
  SW_HOST_OVERRIDE_##shape(result, name, parameters, arguments)
#include "sceneward/frame/manager_operations.def"
};

TEST(ManagerStateTest, HostManagerThatKnowsNothingOfInitialisationIsNeverInitialised) {
  std::unique_ptr<ZelmoScenewardInterface> manager = std::make_unique<HostManager>();
  EXPECT_FALSE(manager->IsInitialized());
}

using ManagerInitialisationTest = RecordingHostTest;

TEST_F(ManagerInitialisationTest, SystemOptionsInitialiseAndResetUninitialises) {
  recorder_.SetIsInitialized(false);
  recorder_.HC_Define_System_Options("");
  EXPECT_TRUE(recorder_.IsInitialized());

  recorder_.SetIsInitialized(true);
  recorder_.HC_Reset_System();
  EXPECT_FALSE(recorder_.IsInitialized());

  recorder_.SetIsInitialized(true);
  recorder_.HC_Define_System_Options("");
  EXPECT_TRUE(recorder_.IsInitialized());
}

TEST_F(ManagerInitialisationTest, OnlyTheCalledManagerIsInitialised) {
  ZelmoSceneward other;
  recorder_.HC_Define_System_Options("");
  EXPECT_TRUE(recorder_.IsInitialized());
  EXPECT_FALSE(other.IsInitialized());
}

}  // namespace
