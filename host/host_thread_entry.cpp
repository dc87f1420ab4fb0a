#include "host/host_thread_entry.h"

#include "host/notify_window.h"
#include "sceneward/foundation/event.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace host {

void* HostAppContext::GetNotifyWindow() { return window_.Handle(); }

void HostEventTarget::HandleEvent(Event* event) {
  std::lock_guard<std::mutex> lock(mutex_);
  events_.push_back(ReceivedEvent{*event->GetType(), event->GetValue()});
}

std::vector<ReceivedEvent> HostEventTarget::Events() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return events_;
}

void HostMessageSink::ReportMessage(int code, const ZString& text) {
  std::lock_guard<std::mutex> lock(mutex_);
  messages_.push_back(ReportedMessage{code, text});
}

std::vector<ReportedMessage> HostMessageSink::Messages() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return messages_;
}

void HostMessageSink::Clear() {
  std::lock_guard<std::mutex> lock(mutex_);
  messages_.clear();
}

HostThreadEntry::HostThreadEntry(uint32_t ownerThreadId, NotifyWindow& window)
    : ownerThreadId_(ownerThreadId), appContext_(window) {}

HostThreadEntry::~HostThreadEntry() = default;

void HostThreadEntry::SetManager(ZelmoSceneward* manager) { manager_.reset(manager); }

uint32_t HostThreadEntry::GetOwnerThreadId() {
  ownerQueries_.fetch_add(1);
  return ownerThreadId_;
}

}  // namespace host
