#pragma once
// The library's entry: the host loads the add-in, hands over its thread
// registry, and receives an add-in object that it keeps for as long as it
// wants the library. The object answers nothing of interest; what matters is
// that it exists and can be released.
#include <cstdint>

#include "sceneward/frame/add_in_slots.h"
#include "sceneward/frame/zelmo_host.h"

// The add-in's main interface: five operations the host may call.
class ZelmoAddInInterface {
 public:
  virtual void Release() = 0;
  virtual int QueryFirst() = 0;
  virtual int QuerySecond() = 0;
  virtual void NotifyFirst() = 0;
  virtual void NotifySecond() = 0;

 protected:
  ~ZelmoAddInInterface() = default;
};

// The same operations with their (empty) answers and the destructor that
// releases the slot table.
class ZelmoAddInBase : public ZelmoAddInInterface {
 public:
  ZelmoAddInBase() : mSlots(ZelmoAddInSlots::kLibraryKeys) {}
  virtual ~ZelmoAddInBase() = default;

  // Destroys the object.
  void Release() override;
  int QueryFirst() override { return 0; }
  int QuerySecond() override { return 0; }
  void NotifyFirst() override {}
  void NotifySecond() override {}

  const ZelmoAddInSlots& Slots() const { return mSlots; }

 private:
  ZelmoAddInSlots mSlots;
};

// Two further interfaces of one operation each, which answer 0.
class ZelmoAddInSecondary {
 public:
  virtual int Query() = 0;

 protected:
  ~ZelmoAddInSecondary() = default;
};

class ZelmoAddInTertiary {
 public:
  virtual int Query() = 0;

 protected:
  ~ZelmoAddInTertiary() = default;
};

class ZelmoAddIn final : public ZelmoAddInBase, public ZelmoAddInSecondary, public ZelmoAddInTertiary {
 public:
  int Query() override { return 0; }
};

extern "C" {

// Keeps `host` as the registry for the rest of the process, gives a new
// manager to the calling thread's entry and returns a new add-in object.
// The calling thread (or, failing it, the first registered thread) must have
// an entry: a host that registered nothing is a fatal contract violation.
// Calling it again replaces the registry and sets a further manager.
ZelmoAddIn* ZelmoInitAddIn(ZelmoHost* host);

// The shader hooks of the manager serving `threadId`, or of the calling
// thread's manager when that thread has none; null when neither has a manager.
void* GetShaderHooks(uint32_t threadId);

}
