#include "platform/guid.h"

#include <sys/random.h>

#include <cerrno>
#include <cstring>

namespace platform {

bool CreateGuid(Guid& out) {
  uint8_t bytes[16];
  size_t filled = 0;
  while (filled < sizeof bytes) {
    const ssize_t got = getrandom(bytes + filled, sizeof bytes - filled, 0);
    if (got < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    filled += static_cast<size_t>(got);
  }
  Guid guid;
  std::memcpy(&guid, bytes, sizeof guid);
  guid.Data3 = static_cast<uint16_t>((guid.Data3 & 0x0FFF) | 0x4000);  // version 4
  guid.Data4[0] = static_cast<uint8_t>((guid.Data4[0] & 0x3F) | 0x80);  // RFC 4122 variant
  out = guid;
  return true;
}

}  // namespace platform
