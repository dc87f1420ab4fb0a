#pragma once
#include <cstdint>

namespace platform {

// The calling thread's 32-bit id. The kernel id is read once per thread and
// cached: this runs on every graphics call, so it must not be a system call.
// Never 0, which the library uses for "no thread".
uint32_t CurrentThreadId();

}  // namespace platform
