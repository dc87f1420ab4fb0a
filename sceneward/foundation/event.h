#pragma once
// Notifications for the host. The host tells events apart by the constant
// that the type pointer points at, and disposes of those posted to it.
#include <cstdint>

class Event {
 public:
  Event(const uint32_t* type, uint64_t value) : mType(type), mValue(value) {}
  Event(const Event&) = default;
  Event& operator=(const Event&) = default;

  // The order of these three is the host's contract.
  virtual const uint32_t* GetType() const { return mType; }
  virtual uint64_t GetValue() const { return mValue; }
  virtual ~Event() = default;

 private:
  const uint32_t* mType;
  uint64_t mValue;
};

// Posted to the host's notify window when a thread started by LaunchZThread
// with notification has returned. `target` is carried to the host unread.
class ThreadDoneEvent : public Event {
 public:
  static constexpr uint32_t kType = 246;

  ThreadDoneEvent(uint64_t target, uint32_t threadId, uint64_t result)
      : Event(&kType, 0), target(target), threadId(threadId), result(result) {}

  uint64_t target;
  uint32_t threadId;
  uint64_t result;  // what the thread's function returned
};
