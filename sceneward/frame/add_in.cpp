#include "sceneward/frame/add_in.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/thread_id.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"

void ZelmoAddInBase::Release() { delete this; }

ZelmoAddIn* ZelmoInitAddIn(ZelmoHost* host) {
  auto addIn = std::make_unique<ZelmoAddIn>();
  SetRegisteredHost(host);  // before the first lookup
  auto manager = std::make_unique<ZelmoSceneward>();

  ZelmoThreadEntry* entry;
  {
    platform::CriticalSectionGuard guard(host->lock, true);
    entry = FindThreadEntry(host, platform::CurrentThreadId());
  }
  if (entry == nullptr) {
    std::fputs("ZelmoInitAddIn: the host has no thread entry for the loading thread\n", stderr);
    std::abort();
  }
  // From here on the manager belongs to the host.
  entry->SetManager(manager.release());
  return addIn.release();
}

void* GetShaderHooks(uint32_t threadId) {
  ZelmoSceneward* manager = ManagerForThread(threadId);
  if (manager == nullptr) manager = CurrentManager();
  return manager != nullptr ? manager->mShaderHooks : nullptr;
}
