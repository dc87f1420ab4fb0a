#pragma once
// The library's view of the host's thread registry: which manager serves a
// thread. Nothing is cached; every call asks the registry afresh, because the
// host may change it at any time.
#include <cstdint>
#include <stdexcept>

#include "sceneward/frame/zelmo_host.h"

// Thrown when the registry is read outside its arrays. Carries the code of
// an index-out-of-bounds failure.
class ZIndexOutOfBounds : public std::out_of_range {
 public:
  static constexpr uint32_t kCode = 0x8000000B;
  ZIndexOutOfBounds() : std::out_of_range("thread registry index out of bounds") {}
  uint32_t Code() const { return kCode; }
};

// The registry handed over by the last ZelmoInitAddIn; null before it.
ZelmoHost* RegisteredHost();
void SetRegisteredHost(ZelmoHost* host);

// The entry that serves `threadId`, or null. The caller holds the registry's
// critical section. A thread asking for itself that the registry does not know
// (or whose entry is null) is served by the first entry; one redirect to the
// entry of the owner thread is followed, never a chain. Throws
// ZIndexOutOfBounds if the arrays shrink to nothing while being read.
ZelmoThreadEntry* FindThreadEntry(ZelmoHost* host, uint32_t threadId);

// The manager serving `threadId`, or null. Takes the registry's critical
// section only when the registry's locking flag is set.
ZelmoSceneward* ManagerForThread(uint32_t threadId);

// ManagerForThread for the calling thread. Callers use the result unchecked:
// a registered entry with a manager must exist before any graphics call.
ZelmoSceneward* CurrentManager();

// The calling thread's app context, event target and message sink. Each looks
// the entry up and calls its getter under the registry's critical section,
// whatever the locking flag says, and answers null when there is no entry.
ZelmoAppContext* CurrentAppContext();
ZelmoEventTarget* CurrentEventTarget();
ZelmoMessageSink* CurrentMessageSink();
