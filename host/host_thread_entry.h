#pragma once
// The reference host's per-thread objects: the entry the registry points at,
// and the app context, event target and message sink behind it. The event
// target and message sink keep what they receive, for the host to read.
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/zelmo_host.h"

namespace host {

class NotifyWindow;

class HostAppContext final : public ZelmoAppContext {
 public:
  explicit HostAppContext(NotifyWindow& window) : window_(window) {}

  void* GetNotifyWindow() override;
  void Unused2() override {}
  void Unused3() override {}
  void Unused4() override {}
  void Unused5() override {}
  void Unused6() override {}
  void Unused7() override {}
  void Unused8() override {}
  void Unused9() override {}
  void Unused10() override {}
  void Unused11() override {}
  void Unused12() override {}
  void Unused13() override {}
  void Unused14() override {}
  void Unused15() override {}
  bool UsesEffectiveThread() override { return usesEffectiveThread_; }

  void SetUsesEffectiveThread(bool uses) { usesEffectiveThread_ = uses; }

 private:
  NotifyWindow& window_;
  bool usesEffectiveThread_ = false;
};

// What an event said: the value its type pointer points at, and its value.
// Events handed over synchronously live on the sender's stack, so the
// target keeps copies.
struct ReceivedEvent {
  uint32_t type;
  uint64_t value;
};

class HostEventTarget final : public ZelmoEventTarget {
 public:
  void Unused1() override {}
  void Unused2() override {}
  void Unused3() override {}
  void HandleEvent(Event* event) override;

  // Everything received so far, oldest first.
  std::vector<ReceivedEvent> Events() const;

 private:
  mutable std::mutex mutex_;
  std::vector<ReceivedEvent> events_;
};

struct ReportedMessage {
  int code;
  ZString text;
};

class HostMessageSink final : public ZelmoMessageSink {
 public:
  void Unused1() override {}
  void Unused2() override {}
  void ReportMessage(int code, const ZString& text) override;

  // Everything reported so far, oldest first; copies, for any thread to read.
  std::vector<ReportedMessage> Messages() const;
  void Clear();

 private:
  mutable std::mutex mutex_;
  std::vector<ReportedMessage> messages_;
};

// One registered thread's entry. It owns the manager it is given: the
// library hands its manager over through SetManager and never frees it.
class HostThreadEntry final : public ZelmoThreadEntry {
 public:
  HostThreadEntry(uint32_t ownerThreadId, NotifyWindow& window);
  ~HostThreadEntry();

  ZelmoAppContext* GetAppContext() override { return &appContext_; }
  ZelmoEventTarget* GetEventTarget() override { return &eventTarget_; }
  void Unused3() override {}
  void Unused4() override {}
  ZelmoMessageSink* GetMessageSink() override { return sinkEnabled_ ? &messageSink_ : nullptr; }
  void Unused6() override {}
  ZelmoSceneward* GetManager() override { return manager_.get(); }
  // Takes ownership of `manager`, destroying the one held before.
  void SetManager(ZelmoSceneward* manager) override;
  void Unused9() override {}
  void Unused10() override {}
  void Unused11() override {}
  uint32_t GetOwnerThreadId() override;

  HostAppContext& AppContext() { return appContext_; }
  HostEventTarget& EventTarget() { return eventTarget_; }
  HostMessageSink& MessageSink() { return messageSink_; }
  // With the sink disabled, GetMessageSink answers null.
  void SetMessageSinkEnabled(bool enabled) { sinkEnabled_ = enabled; }
  // How often the library asked for the owner thread.
  int OwnerQueries() const { return ownerQueries_.load(); }

 private:
  uint32_t ownerThreadId_;
  std::unique_ptr<ZelmoSceneward> manager_;
  HostAppContext appContext_;
  HostEventTarget eventTarget_;
  HostMessageSink messageSink_;
  bool sinkEnabled_ = true;
  std::atomic<int> ownerQueries_{0};
};

}  // namespace host
