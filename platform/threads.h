#pragma once
// Threads behind opaque handles, with a suspend count and the results of
// the Windows thread calls. A handle is a pointer to a thread object that
// stays valid until CloseThreadHandle, also after the thread has ended.
#include <cstdint>

namespace platform {

using ThreadHandle = void*;
using ThreadStart = void (*)(void* argument);

// The failure answer of SuspendThread and ResumeThread.
inline constexpr uint32_t kThreadCallFailed = 0xFFFFFFFF;
// Answers of WaitForThread, and the timeout that never expires.
inline constexpr uint32_t kWaitCompleted = 0;
inline constexpr uint32_t kWaitTimedOut = 258;
inline constexpr uint32_t kWaitFailed = 0xFFFFFFFF;
inline constexpr uint32_t kInfiniteTimeout = 0xFFFFFFFF;

// Starts `start(argument)` on a new thread. With `suspended`, the thread has
// a suspend count of 1 and runs only once ResumeThread brings the count to
// 0. Null if the system cannot make a thread.
ThreadHandle CreateThread(ThreadStart start, void* argument, bool suspended);

// Adds 1 to the suspend count of a thread that has not started yet and
// answers the count before. A thread that already runs cannot be stopped
// safely where it is on this system, so the call fails: it answers
// kThreadCallFailed and the thread runs on. Null handles fail as well.
uint32_t SuspendThread(ThreadHandle thread);

// Takes 1 from the suspend count, if it is above 0, and answers the count
// before; the thread starts when the count reaches 0. A running or ended
// thread answers 0. kThreadCallFailed for a null handle, or when the thread
// could not be started (its count is then back at 1).
uint32_t ResumeThread(ThreadHandle thread);

// Waits up to `timeoutMs` milliseconds (kInfiniteTimeout: for ever) for the
// thread to end: kWaitCompleted, kWaitTimedOut, or kWaitFailed for a null
// handle. A thread that was never resumed times out.
uint32_t WaitForThread(ThreadHandle thread, uint32_t timeoutMs);

// Gives up the handle. The thread itself runs on; a thread never resumed
// is dropped without running.
void CloseThreadHandle(ThreadHandle thread);

}  // namespace platform
