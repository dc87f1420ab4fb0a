#pragma once
// The host application's objects as the library sees them. The host owns
// all of them; the library reads the registry as a fixed memory layout and
// calls the per-thread objects through their virtual tables, so the order of
// the virtual operations below is part of the contract, including the slots
// that the library never calls.
#include <cstddef>
#include <cstdint>

#include "platform/critical_section.h"

class ZelmoSceneward;
class ZString;
class Event;

// The application object behind a host thread.
class ZelmoAppContext {
 public:
  virtual void* GetNotifyWindow() = 0;  // 1st: the window that thread notices go to
  virtual void Unused2() = 0;
  virtual void Unused3() = 0;
  virtual void Unused4() = 0;
  virtual void Unused5() = 0;
  virtual void Unused6() = 0;
  virtual void Unused7() = 0;
  virtual void Unused8() = 0;
  virtual void Unused9() = 0;
  virtual void Unused10() = 0;
  virtual void Unused11() = 0;
  virtual void Unused12() = 0;
  virtual void Unused13() = 0;
  virtual void Unused14() = 0;
  virtual void Unused15() = 0;
  virtual bool UsesEffectiveThread() = 0;  // 16th

 protected:
  ~ZelmoAppContext() = default;
};

// Receives events synchronously (urgent graphics errors).
class ZelmoEventTarget {
 public:
  virtual void Unused1() = 0;
  virtual void Unused2() = 0;
  virtual void Unused3() = 0;
  virtual void HandleEvent(Event* event) = 0;  // 4th

 protected:
  ~ZelmoEventTarget() = default;
};

// Receives text messages (graphics error texts).
class ZelmoMessageSink {
 public:
  virtual void Unused1() = 0;
  virtual void Unused2() = 0;
  virtual void ReportMessage(int code, const ZString& text) = 0;  // 3rd

 protected:
  ~ZelmoMessageSink() = default;
};

// The host's per-thread object.
class ZelmoThreadEntry {
 public:
  virtual ZelmoAppContext* GetAppContext() = 0;      // 1st
  virtual ZelmoEventTarget* GetEventTarget() = 0;    // 2nd
  virtual void Unused3() = 0;                        // 3rd
  virtual void Unused4() = 0;                        // 4th
  virtual ZelmoMessageSink* GetMessageSink() = 0;    // 5th, may answer null
  virtual void Unused6() = 0;                        // 6th
  virtual ZelmoSceneward* GetManager() = 0;          // 7th, may answer null
  virtual void SetManager(ZelmoSceneward* manager) = 0;  // 8th
  virtual void Unused9() = 0;                        // 9th
  virtual void Unused10() = 0;                       // 10th
  virtual void Unused11() = 0;                       // 11th
  virtual uint32_t GetOwnerThreadId() = 0;           // 12th

 protected:
  ~ZelmoThreadEntry() = default;
};

// The host's thread registry. The library reads exactly the fields below, at
// these byte offsets; everything before them belongs to the host.
struct ZelmoHost {
  unsigned char hostPrivate[104];
  uint32_t* threadIds;               // ids of the registered threads
  ZelmoThreadEntry** entries;        // parallel to threadIds; an element may be null
  int32_t count;                     // entries in both arrays
  platform::CriticalSection* lock;   // guards the arrays and the count
  uint8_t lockingEnabled;            // ManagerForThread locks only when non-zero
};

static_assert(offsetof(ZelmoHost, threadIds) == 104);
static_assert(offsetof(ZelmoHost, entries) == 112);
static_assert(offsetof(ZelmoHost, count) == 120);
static_assert(offsetof(ZelmoHost, lock) == 128);
static_assert(offsetof(ZelmoHost, lockingEnabled) == 136);
