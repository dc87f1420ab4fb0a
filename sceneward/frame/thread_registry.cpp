#include "sceneward/frame/thread_registry.h"

#include "platform/thread_id.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace {

// Written once by ZelmoInitAddIn, before any lookup, and only read afterwards.
ZelmoHost* gHost = nullptr;

// Index of the first registered row for `threadId`, or -1. Reads the count
// afresh: the host may change the registry between two reads.
int IndexOfThread(const ZelmoHost* host, uint32_t threadId) {
  const int32_t count = host->count;
  for (int32_t i = 0; i < count; ++i) {
    if (host->threadIds[i] == threadId) return i;
  }
  return -1;
}

ZelmoThreadEntry* EntryAt(const ZelmoHost* host, int index) {
  if (index < 0 || index >= host->count) throw ZIndexOutOfBounds();
  return host->entries[index];
}

}  // namespace

ZelmoHost* RegisteredHost() { return gHost; }

void SetRegisteredHost(ZelmoHost* host) { gHost = host; }

ZelmoThreadEntry* FindThreadEntry(ZelmoHost* host, uint32_t threadId) {
  const int32_t count = host->count;
  if (count < 1) return nullptr;

  uint32_t key = threadId;
  ZelmoThreadEntry* entry = nullptr;
  const int found = IndexOfThread(host, threadId);
  if (found >= 0) entry = EntryAt(host, found);

  if (entry == nullptr) {
    // Only a thread asking for itself falls back to the first entry: it is
    // a thread the host did not register, working for the host's main thread.
    if (threadId != platform::CurrentThreadId()) return nullptr;
    entry = EntryAt(host, 0);
    key = host->threadIds[0];
    if (entry == nullptr) return nullptr;
  }

  if (count < 2) return entry;

  // A worker registered under an owner thread is served by the owner's entry.
  // One redirect only: the owner's own owner is never asked.
  const uint32_t owner = entry->GetOwnerThreadId();
  if (owner == key) return entry;
  if (host->count < 1) return entry;
  const int ownerIndex = IndexOfThread(host, owner);
  if (ownerIndex < 0) return entry;
  ZelmoThreadEntry* ownerEntry = EntryAt(host, ownerIndex);
  return ownerEntry != nullptr ? ownerEntry : entry;
}

ZelmoSceneward* ManagerForThread(uint32_t threadId) {
  ZelmoHost* host = gHost;
  platform::CriticalSectionGuard guard(host->lock, host->lockingEnabled != 0);
  ZelmoThreadEntry* entry = FindThreadEntry(host, threadId);
  return entry != nullptr ? entry->GetManager() : nullptr;
}

ZelmoSceneward* CurrentManager() { return ManagerForThread(platform::CurrentThreadId()); }

namespace {

// Looks up the calling thread's entry and asks it one getter, both under the
// registry's critical section, which is never held beyond that.
template <typename Result>
Result* AskCurrentEntry(Result* (ZelmoThreadEntry::*getter)()) {
  ZelmoHost* host = gHost;
  platform::CriticalSectionGuard guard(host->lock, true);
  ZelmoThreadEntry* entry = FindThreadEntry(host, platform::CurrentThreadId());
  return entry != nullptr ? (entry->*getter)() : nullptr;
}

}  // namespace

ZelmoAppContext* CurrentAppContext() { return AskCurrentEntry(&ZelmoThreadEntry::GetAppContext); }

ZelmoEventTarget* CurrentEventTarget() { return AskCurrentEntry(&ZelmoThreadEntry::GetEventTarget); }

ZelmoMessageSink* CurrentMessageSink() { return AskCurrentEntry(&ZelmoThreadEntry::GetMessageSink); }
