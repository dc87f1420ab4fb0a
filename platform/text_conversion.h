#pragma once
// Conversion between 16-bit text and the process's multibyte encoding, in
// the manner of wcstombs and mbstowcs. Each 16-bit unit is one character:
// there is no surrogate logic, so a unit from 0xD800 to 0xDFFF is simply a
// character that no multibyte encoding can represent. The conversions follow
// the process's current C locale and never set one.
#include <cstddef>

#include "platform/wide_char.h"

namespace platform {

// The result of a conversion that met a character it cannot convert.
inline constexpr size_t kConversionFailed = static_cast<size_t>(-1);

// The number of units before the first 0 unit of `text`, which must not be
// null.
size_t WideLength(const WideChar* text);

// Converts the 0-terminated `src` to multibyte text, as wcstombs does. With a
// null `dest`, nothing is written and the result is the number of bytes the
// whole text needs, without the terminator (`destSize` is ignored).
// Otherwise at most `destSize` bytes are written: the conversion stops at
// the terminator, which is written when it fits, or before the first
// character that would not fit whole. Returns the number of bytes written,
// not counting the terminator, so a result equal to `destSize` means `dest`
// is not terminated. Returns kConversionFailed if a unit up to that point
// cannot be represented in the locale; `dest` then holds a partial result.
size_t WideToNarrow(char* dest, const WideChar* src, size_t destSize);

// Converts the 0-terminated multibyte `src` to 16-bit text, as mbstowcs
// does. With a null `dest`, nothing is written and the result is the number
// of units the whole text needs, without the terminator (`destUnits` is
// ignored). Otherwise at most `destUnits` units are written: the conversion
// stops at the terminator, which is written when it fits, or when `dest` is
// full. Returns the number of units written, not counting the terminator.
// Returns kConversionFailed for an invalid or incomplete byte sequence, and
// for a character above 0xFFFF, which no single unit can hold; `dest` then
// holds a partial result.
size_t NarrowToWide(WideChar* dest, const char* src, size_t destUnits);

}  // namespace platform
