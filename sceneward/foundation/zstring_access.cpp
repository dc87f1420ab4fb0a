// ZString: element access and the buffers handed out for writing.
#include <algorithm>
#include <cstring>

#include "platform/text_conversion.h"
#include "sceneward/foundation/zstring.h"
#include "sceneward/foundation/zstring_alloc.h"

WideChar ZString::GetAt(unsigned i) const {
  if (narrowIsCurrent) return static_cast<WideChar>(static_cast<signed char>(GetAsMBCS()[i]));
  return GetAsWChar_T()[i];
}

void ZString::SetAt(unsigned i, WideChar c) {
  if (i >= static_cast<unsigned>(GetLength())) return;
  ForceReferenceIntoCopy();
  if (narrowIsCurrent) {
    if (c < 128) {
      narrowText[i] = static_cast<char>(c);
      return;
    }
    GetAsWChar_T();
    narrowIsCurrent = false;
  }
  if (i < wideText.size()) wideText[i] = c;
}

void* ZString::OpenBuffer(const void* text, size_t length, unsigned minChars, size_t elementSize,
                          uint32_t form) {
  const size_t chars = std::max({size_t{minChars}, static_cast<size_t>(GetLength()), length});
  void* buffer = MallocOrThrow((chars + 1) * elementSize);
  std::memcpy(buffer, text, (length + 1) * elementSize);
  // Only now: `text` may be a borrowed text, and an earlier buffer of the
  // other form must not leak.
  ClearPtr();
  refPtr = buffer;
  refFlags = form | kRefOwned;
  narrowIsCurrent = form == kRefNarrow;
  return buffer;
}

char* ZString::GetBuffer8(unsigned minChars) {
  const char* text = GetAsMBCS();
  return static_cast<char*>(OpenBuffer(text, std::strlen(text), minChars, sizeof(char), kRefNarrow));
}

WideChar* ZString::GetBuffer16(unsigned minChars) {
  const WideChar* text = GetAsWChar_T();
  return static_cast<WideChar*>(
      OpenBuffer(text, platform::WideLength(text), minChars, sizeof(WideChar), kRefWide));
}

WideChar* ZString::GetBufferT(unsigned minChars) { return GetBuffer16(minChars); }
