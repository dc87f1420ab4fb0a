// ZString: the narrow, wide and 32-bit views and the conversions behind them.
#include <algorithm>
#include <cstdlib>
#include <memory>

#include "platform/text_conversion.h"
#include "sceneward/foundation/zstring.h"
#include "sceneward/foundation/zstring_alloc.h"

const WideChar* ZString::CurrentWide() const {
  if ((refFlags & kRefWide) != 0) return static_cast<const WideChar*>(refPtr);
  return wideText.c_str();
}

const char* ZString::GetAsMBCS() const {
  if (refFlags == kRefNarrow) return static_cast<const char*>(refPtr);
  if (refFlags == (kRefNarrow | kRefOwned)) ForceReferenceIntoCopy();
  if (!narrowIsCurrent) {
    // Room for the locale's longest character per unit, so the conversion
    // never stops short of the terminator.
    const size_t size = static_cast<size_t>(GetLength()) * MB_CUR_MAX + 1;
    const auto buffer = std::make_unique_for_overwrite<char[]>(size);
    const size_t count = platform::WideToNarrow(buffer.get(), CurrentWide(), size);
    if (count != platform::kConversionFailed) narrowText.assign(buffer.get(), count);
  }
  return narrowText.c_str();
}

const char* ZString::GetAsUTF8() const { return GetAsMBCS(); }

ZString::operator const char*() const { return GetAsMBCS(); }

const WideChar* ZString::GetAsWChar_T() const {
  if (refFlags == kRefWide) return static_cast<const WideChar*>(refPtr);
  if (refFlags == (kRefWide | kRefOwned)) ForceReferenceIntoCopy();
  if (narrowIsCurrent) {
    // A character takes at least one byte, so the byte count bounds the
    // unit count.
    const size_t units = static_cast<size_t>(GetLength()) + 1;
    const auto buffer = std::make_unique_for_overwrite<WideChar[]>(units);
    const size_t count = platform::NarrowToWide(buffer.get(), GetAsMBCS(), units);
    if (count != platform::kConversionFailed) wideText.assign(buffer.get(), count);
  }
  return wideText.c_str();
}

const unsigned short* ZString::GetAsShorts() const {
  return reinterpret_cast<const unsigned short*>(GetAsWChar_T());
}

ZString::operator const WideChar*() const { return GetAsWChar_T(); }

ZString::operator const unsigned short*() const { return GetAsShorts(); }

const int* ZString::GetAsInts() const {
  ForceReferenceIntoCopy();
  ClearPtr();
  const size_t length = static_cast<size_t>(GetLength());
  const WideChar* units = GetAsWChar_T();
  // A narrow string's wide view may be shorter than its byte length.
  const size_t available = std::min(length, wideText.size());
  int* ints = static_cast<int*>(MallocOrThrow((length + 1) * sizeof(int)));
  std::fill(std::copy(units, units + available, ints), ints + length + 1, 0);
  // Kept in refPtr without the owned flag: the next ClearPtr forgets it, and
  // the array outlives the string's later changes.
  refPtr = ints;
  return ints;
}

ZString::operator const int*() const { return GetAsInts(); }

const char* ZString::GetAsASCII(char replacement) const {
  if (refFlags == kRefNarrow) return static_cast<const char*>(refPtr);
  if (refFlags == (kRefNarrow | kRefOwned)) ForceReferenceIntoCopy();
  if (narrowIsCurrent) return narrowText.c_str();
  // The wide member is read as it stands (see the header), never beyond its
  // end, and up to its first 0 as a terminated text would be.
  const size_t available = std::min(static_cast<size_t>(GetLength()), wideText.size());
  narrowText.clear();
  for (size_t i = 0; i < available && wideText[i] != 0; ++i) {
    const WideChar unit = wideText[i];
    narrowText.push_back(unit < 128 ? static_cast<char>(unit) : replacement);
  }
  return narrowText.c_str();
}

const std::string& ZString::GetAsSTLString() const {
  ForceReferenceIntoCopy();
  GetAsMBCS();
  return narrowText;
}

ZString::operator const std::string&() const { return GetAsSTLString(); }

const WideString& ZString::GetAsSTLWString() const {
  ForceReferenceIntoCopy();
  GetAsWChar_T();
  return wideText;
}

ZString::operator const WideString&() const { return GetAsSTLWString(); }

const WideChar* ZString::wstring_to_wchart_t() const { return wideText.c_str(); }

bool ZString::RequiresUnicode() const {
  if (narrowIsCurrent) return false;
  const WideChar* units = GetAsWChar_T();
  return std::any_of(units, units + GetLength(), [](WideChar unit) { return unit >= 128; });
}

void ZString::ForceToUnicode() {
  if (!narrowIsCurrent) return;
  ForceReferenceIntoCopy();
  GetAsWChar_T();
  narrowIsCurrent = false;
}
