#include "platform/threads.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace platform {
namespace {

// Shared by the handle and, once it runs, the thread itself; the last of
// the two to let go deletes it. The system thread is made only when the
// suspend count first reaches 0, so a thread that is never resumed costs
// no system thread.
class ThreadObject {
 public:
  ThreadObject(ThreadStart start, void* argument, uint32_t suspendCount)
      : start_(start), argument_(argument), suspendCount_(suspendCount) {}

  bool Launch() {
    references_ = 2;
    try {
      std::thread([this] { Run(); }).detach();
      return true;
    } catch (const std::system_error&) {
      references_ = 1;
      return false;
    }
  }

  uint32_t Suspend() {
    std::lock_guard lock(mutex_);
    if (started_) return kThreadCallFailed;
    return suspendCount_++;
  }

  uint32_t Resume() {
    std::unique_lock lock(mutex_);
    const uint32_t before = suspendCount_;
    if (before == 0) return 0;
    if (--suspendCount_ > 0) return before;
    started_ = true;
    lock.unlock();
    if (Launch()) return before;
    lock.lock();
    started_ = false;
    suspendCount_ = 1;
    return kThreadCallFailed;
  }

  uint32_t Wait(uint32_t timeoutMs) {
    std::unique_lock lock(mutex_);
    const auto ended = [this] { return finished_; };
    if (timeoutMs == kInfiniteTimeout) {
      finished_changed_.wait(lock, ended);
      return kWaitCompleted;
    }
    return finished_changed_.wait_for(lock, std::chrono::milliseconds(timeoutMs), ended) ? kWaitCompleted
                                                                                        : kWaitTimedOut;
  }

  void Release() {
    std::unique_lock lock(mutex_);
    if (--references_ > 0) return;
    lock.unlock();
    delete this;
  }

 private:
  void Run() {
    start_(argument_);
    {
      std::lock_guard lock(mutex_);
      finished_ = true;
    }
    finished_changed_.notify_all();
    Release();
  }

  ThreadStart start_;
  void* argument_;
  std::mutex mutex_;
  std::condition_variable finished_changed_;
  uint32_t suspendCount_;
  int references_ = 1;
  bool started_ = false;
  bool finished_ = false;
};

ThreadObject* FromHandle(ThreadHandle thread) { return static_cast<ThreadObject*>(thread); }

}  // namespace

ThreadHandle CreateThread(ThreadStart start, void* argument, bool suspended) {
  auto* thread = new ThreadObject(start, argument, 1);
  if (suspended) return thread;
  if (ResumeThread(thread) == kThreadCallFailed) {
    delete thread;
    return nullptr;
  }
  return thread;
}

uint32_t SuspendThread(ThreadHandle thread) {
  return thread == nullptr ? kThreadCallFailed : FromHandle(thread)->Suspend();
}

uint32_t ResumeThread(ThreadHandle thread) {
  return thread == nullptr ? kThreadCallFailed : FromHandle(thread)->Resume();
}

uint32_t WaitForThread(ThreadHandle thread, uint32_t timeoutMs) {
  return thread == nullptr ? kWaitFailed : FromHandle(thread)->Wait(timeoutMs);
}

void CloseThreadHandle(ThreadHandle thread) {
  if (thread != nullptr) FromHandle(thread)->Release();
}

}  // namespace platform
