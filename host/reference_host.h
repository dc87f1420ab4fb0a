#pragma once
// A reference host: the registry and per-thread objects that an application
// gives the library. Tests and the command-line tool run the library on it.
#include <cstdint>
#include <memory>
#include <vector>

#include "host/host_thread_entry.h"
#include "host/notify_window.h"
#include "platform/critical_section.h"
#include "sceneward/frame/zelmo_host.h"

class ZelmoAddIn;

namespace host {

// Owns a ZelmoHost registry with its critical section and the entries of the
// registered threads. Registering and unregistering keep the registry's
// arrays in the layout the library reads. Not copyable: the library keeps a
// pointer to the registry for the life of the process.
class ReferenceHost {
 public:
  ReferenceHost();
  ~ReferenceHost();
  ReferenceHost(const ReferenceHost&) = delete;
  ReferenceHost& operator=(const ReferenceHost&) = delete;

  ZelmoHost* Registry() { return &registry_; }
  platform::CriticalSection& Lock() { return lock_; }

  // Adds `threadId` at the end of the registry. `ownerThreadId` 0 means the
  // thread owns itself; any other value redirects lookups to that thread's
  // entry. Registering a thread id twice adds a second, unreachable row.
  HostThreadEntry& RegisterThread(uint32_t threadId, uint32_t ownerThreadId = 0);
  // Registers a row whose entry pointer is null.
  void RegisterNullEntry(uint32_t threadId);
  // Removes the first row of `threadId`; false when there is none.
  bool UnregisterThread(uint32_t threadId);

  // The entry registered for `threadId`, or null.
  HostThreadEntry* EntryFor(uint32_t threadId);

  void SetLockingEnabled(bool enabled) { registry_.lockingEnabled = enabled ? 1 : 0; }

  // Calls ZelmoInitAddIn on the calling thread, which must be registered.
  // The add-in object is released with the host.
  ZelmoAddIn* LoadAddIn();

  NotifyWindow& Window() { return window_; }

 private:
  void PublishArrays();

  ZelmoHost registry_{};
  platform::CriticalSection lock_;
  std::vector<uint32_t> ids_;
  std::vector<ZelmoThreadEntry*> entryPointers_;
  std::vector<std::unique_ptr<HostThreadEntry>> entries_;
  std::vector<ZelmoAddIn*> addIns_;
  NotifyWindow window_;
};

}  // namespace host
