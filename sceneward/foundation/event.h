#pragma once
// A notification for the host. The host tells events apart by the constant
// that the type pointer points at, and disposes of those posted to it.
#include <cstdint>

class Event {
 public:
  Event(const uint32_t* type, uint64_t value) : mType(type), mValue(value) {}

  // The order of these three is the host's contract.
  virtual const uint32_t* GetType() const { return mType; }
  virtual uint64_t GetValue() const { return mValue; }
  virtual ~Event() = default;

 private:
  const uint32_t* mType;
  uint64_t mValue;
};
