#include "sceneward/foundation/zthread.h"

#include <cstdint>

#include "platform/thread_id.h"
#include "platform/threads.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_host.h"

namespace {

constexpr uint32_t kThreadNotifyMessage = 1808;

struct PlainStart {
  ZThreadFunction fn;
  void* arg;
};

struct NotifyingStart {
  ZThreadFunction fn;
  void* arg;
  void* target;
  bool notify;
  platform::WindowHandle window;
};

void RunPlain(void* record) {
  auto* start = static_cast<PlainStart*>(record);
  start->fn(start->arg);
  delete start;
}

void RunNotifying(void* record) {
  auto* start = static_cast<NotifyingStart*>(record);
  void* result = start->fn(start->arg);
  if (start->notify) {
    PostNotify(start->window, new ThreadDoneEvent(reinterpret_cast<uint64_t>(start->target),
                                                  platform::CurrentThreadId(),
                                                  reinterpret_cast<uint64_t>(result)));
  }
  delete start;
}

void* StartPlain(ZThreadFunction fn, void* arg, bool suspended) {
  return platform::CreateThread(RunPlain, new PlainStart{fn, arg}, suspended);
}

}  // namespace

void* ZThread::LaunchThread(ZThreadFunction fn, void* arg) { return StartPlain(fn, arg, false); }

void* ZThread::CreateThreadSuspended(ZThreadFunction fn, void* arg) { return StartPlain(fn, arg, true); }

int ZThread::SuspendThread(void* handle) { return static_cast<int>(platform::SuspendThread(handle)); }

int ZThread::ResumeThread(void* handle) { return static_cast<int>(platform::ResumeThread(handle)); }

ZThread_WaitResult ZThread::WaitForThreadToComplete(void* handle, unsigned int timeout) {
  switch (platform::WaitForThread(handle, timeout)) {
    case platform::kWaitCompleted:
      return WaitCompleted;
    case platform::kWaitTimedOut:
      return WaitTimedOut;
    default:
      return WaitFailed;
  }
}

long long LaunchZThread(ZThreadFunction fn, void* arg, void* target, bool notify) {
  platform::WindowHandle window = CurrentAppContext()->GetNotifyWindow();
  auto* start = new NotifyingStart{fn, arg, target, notify, window};
  return reinterpret_cast<long long>(platform::CreateThread(RunNotifying, start, false));
}

void PostNotify(platform::WindowHandle window, Event* event) {
  if (event == nullptr) return;
  if (!platform::PostWindowMessage(window, kThreadNotifyMessage, reinterpret_cast<uintptr_t>(event), 0)) {
    delete event;
  }
}
