#include "platform/text_conversion.h"

#include <climits>
#include <cstring>
#include <cwchar>

namespace platform {

// Units pass through the C library's own wide type, which must be able to
// hold every 16-bit value; its encoding is the character's code point
// (glibc's wchar_t is UCS-4 in every locale).
static_assert(sizeof(wchar_t) >= sizeof(WideChar));

namespace {

constexpr unsigned long kLargestUnit = 0xFFFF;

}  // namespace

size_t WideLength(const WideChar* text) {
  const WideChar* end = text;
  while (*end != 0) ++end;
  return static_cast<size_t>(end - text);
}

size_t WideToNarrow(char* dest, const WideChar* src, size_t destSize) {
  std::mbstate_t state{};
  size_t written = 0;
  for (;; ++src) {
    char bytes[MB_LEN_MAX];
    const size_t count = std::wcrtomb(bytes, static_cast<wchar_t>(*src), &state);
    if (count == kConversionFailed) return kConversionFailed;
    if (dest != nullptr) {
      if (count > destSize - written) return written;
      std::memcpy(dest + written, bytes, count);
    }
    // For the terminator, `count` covers any shift back to the initial
    // state plus the 0 byte, which is not counted.
    if (*src == 0) return written + count - 1;
    written += count;
  }
}

size_t NarrowToWide(WideChar* dest, const char* src, size_t destUnits) {
  std::mbstate_t state{};
  // The terminator is part of the input, so a sequence cut short by it is
  // reported as invalid rather than as incomplete.
  size_t remaining = std::strlen(src) + 1;
  size_t written = 0;
  while (dest == nullptr || written < destUnits) {
    wchar_t character = 0;
    const size_t used = std::mbrtowc(&character, src, remaining, &state);
    if (used == kConversionFailed || used == static_cast<size_t>(-2)) return kConversionFailed;
    if (static_cast<unsigned long>(character) > kLargestUnit) return kConversionFailed;
    if (dest != nullptr) dest[written] = static_cast<WideChar>(character);
    if (used == 0) return written;
    ++written;
    src += used;
    remaining -= used;
  }
  return written;
}

}  // namespace platform
