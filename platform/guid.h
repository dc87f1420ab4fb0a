#pragma once
// Globally unique identifiers with the published 16-byte layout: a 32-bit,
// two 16-bit and eight 8-bit fields, in that order, without padding.
#include <cstdint>

namespace platform {

struct Guid {
  uint32_t Data1;
  uint16_t Data2;
  uint16_t Data3;
  uint8_t Data4[8];
};
static_assert(sizeof(Guid) == 16);

// Fills `out` with a random (version 4, RFC 4122 variant) identifier from the
// kernel's random source. False, and `out` untouched, if the kernel gave no
// randomness.
bool CreateGuid(Guid& out);

}  // namespace platform
