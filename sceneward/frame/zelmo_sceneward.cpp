#include "sceneward/frame/zelmo_sceneward.h"

#include "platform/thread_id.h"

bool ZelmoSceneward::mErrorPopupEnabled = true;
ZCriticalSectionRecord ZelmoSceneward::mLock = {};
void* ZelmoSceneward::mLockStream = nullptr;

ZelmoSceneward::ZelmoSceneward() : mStreamLockThread(0), mShaderHooks(nullptr), mIsInitialized(false) {}

ZelmoSceneward::ZelmoSceneward(const ZelmoSceneward& other)
    : ZelmoScenewardInterface(),
      mStreamLockThread(other.mStreamLockThread),
      mShaderHooks(other.mShaderHooks),
      mIsInitialized(other.mIsInitialized) {}

ZelmoSceneward& ZelmoSceneward::operator=(const ZelmoSceneward& other) {
  mStreamLockThread = other.mStreamLockThread;
  mShaderHooks = other.mShaderHooks;
  mIsInitialized = other.mIsInitialized;
  return *this;
}

ZelmoSceneward::~ZelmoSceneward() = default;

bool ZelmoSceneward::HasStreamLock() { return mStreamLockThread == platform::CurrentThreadId(); }

bool ZelmoSceneward::IsInitialized() { return mIsInitialized; }

void ZelmoSceneward::SetIsInitialized(bool initialized) { mIsInitialized = initialized; }

// Registering the drawing callbacks belongs to the drawing subsystem, which
// does not exist yet; until then the host's call registers nothing.
void ZelmoSceneward::ZelmosInitCallbacks() {}
