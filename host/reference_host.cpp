#include "host/reference_host.h"

#include <algorithm>

#include "sceneward/frame/add_in.h"
#include "sceneward/frame/thread_registry.h"

namespace host {

ReferenceHost::ReferenceHost() {
  registry_.lock = &lock_;
  registry_.lockingEnabled = 1;
  PublishArrays();
}

ReferenceHost::~ReferenceHost() {
  for (ZelmoAddIn* addIn : addIns_) addIn->Release();
  // Unloading: the library must not keep reading a registry that is gone.
  if (RegisteredHost() == &registry_) SetRegisteredHost(nullptr);
}

void ReferenceHost::PublishArrays() {
  registry_.threadIds = ids_.data();
  registry_.entries = entryPointers_.data();
  registry_.count = static_cast<int32_t>(ids_.size());
}

HostThreadEntry& ReferenceHost::RegisterThread(uint32_t threadId, uint32_t ownerThreadId) {
  auto entry = std::make_unique<HostThreadEntry>(ownerThreadId != 0 ? ownerThreadId : threadId, window_);
  HostThreadEntry& added = *entry;
  platform::CriticalSectionGuard guard(&lock_, true);
  ids_.push_back(threadId);
  entryPointers_.push_back(entry.get());
  entries_.push_back(std::move(entry));
  PublishArrays();
  return added;
}

void ReferenceHost::RegisterNullEntry(uint32_t threadId) {
  platform::CriticalSectionGuard guard(&lock_, true);
  ids_.push_back(threadId);
  entryPointers_.push_back(nullptr);
  PublishArrays();
}

bool ReferenceHost::UnregisterThread(uint32_t threadId) {
  platform::CriticalSectionGuard guard(&lock_, true);
  auto row = std::find(ids_.begin(), ids_.end(), threadId);
  if (row == ids_.end()) return false;
  const auto index = row - ids_.begin();
  ZelmoThreadEntry* removed = entryPointers_[index];
  ids_.erase(row);
  entryPointers_.erase(entryPointers_.begin() + index);
  PublishArrays();
  // The entry dies only after the registry no longer shows it.
  std::erase_if(entries_, [removed](const auto& owned) { return owned.get() == removed; });
  return true;
}

HostThreadEntry* ReferenceHost::EntryFor(uint32_t threadId) {
  platform::CriticalSectionGuard guard(&lock_, true);
  auto row = std::find(ids_.begin(), ids_.end(), threadId);
  if (row == ids_.end()) return nullptr;
  return static_cast<HostThreadEntry*>(entryPointers_[row - ids_.begin()]);
}

ZelmoAddIn* ReferenceHost::LoadAddIn() {
  ZelmoAddIn* addIn = ZelmoInitAddIn(&registry_);
  addIns_.push_back(addIn);
  return addIn;
}

}  // namespace host
