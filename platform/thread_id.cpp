#include "platform/thread_id.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace platform {

uint32_t CurrentThreadId() {
  thread_local const uint32_t id = static_cast<uint32_t>(::syscall(SYS_gettid));
  return id;
}

}  // namespace platform
