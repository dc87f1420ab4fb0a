#pragma once
// Thread creation, with an optional completion notice to the host's window.
// Every handle these functions answer is the caller's to close with
// platform::CloseThreadHandle.
#include "platform/window_messages.h"
#include "sceneward/foundation/event.h"

enum ZThread_WaitResult { WaitCompleted = 0, WaitTimedOut = 1, WaitFailed = 2 };

using ZThreadFunction = void* (*)(void*);

class ZThread {
 public:
  // Runs fn(arg) on a new thread at once; its result is discarded. Null if
  // no thread could be made (the start record is then lost).
  static void* LaunchThread(ZThreadFunction fn, void* arg);
  // The same, but the thread waits until ResumeThread lets it go.
  static void* CreateThreadSuspended(ZThreadFunction fn, void* arg);
  // The suspend count before the call. A thread that already runs can't be
  // suspended here: the answer is then 0xFFFFFFFF as an int (-1), and the
  // thread runs on.
  static int SuspendThread(void* handle);
  // The suspend count before the call; the thread starts when it reaches 0.
  // -1 for a null handle.
  static int ResumeThread(void* handle);
  // Waits up to `timeout` milliseconds (0xFFFFFFFF: for ever). A null
  // handle gives WaitFailed.
  static ZThread_WaitResult WaitForThreadToComplete(void* handle, unsigned int timeout);
};

// Runs fn(arg) on a new thread and answers its handle. With `notify`, the
// thread posts a ThreadDoneEvent (carrying `target`, its own id and fn's
// result) as message 1808 to the notify window of the calling thread's app
// context. The calling thread must be registered with the host.
long long LaunchZThread(ZThreadFunction fn, void* arg, void* target, bool notify);

// Posts `event` as message 1808 to `window`; the receiver then owns it. A
// null event posts nothing. If the window does not exist, the event is lost
// (and freed here, since nobody else can).
void PostNotify(platform::WindowHandle window, Event* event);
