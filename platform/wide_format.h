#pragma once
// printf-style formatting into 16-bit text. The C library's wide printf
// family works in its own wchar_t, which need not be 16 bits wide, so the
// library's wide formats go through this instead.
#include <cstdarg>
#include <optional>

#include "platform/wide_char.h"

namespace platform {

// Formats `format` with the arguments in `args`, as vswprintf does with a
// 16-bit wchar_t:
// - a conversion is '%', flags from "-+ #0'", a width (digits or '*'), a
//   precision ('.' and digits, '*' or nothing), a length modifier from hh h
//   l ll z j t L, and one of d i u o x X f F e E g G a A c s p n %;
// - numbers and %p read the argument of the type their length modifier
//   names and come out exactly as the narrow snprintf prints them under the
//   current C locale, widened;
// - %s and %ls read a 16-bit text (null prints "(null)"); the precision
//   counts units. %c and %lc read one 16-bit unit, promoted to int;
// - %n stores the count of units written so far, into the integer type its
//   length modifier names;
// - a negative '*' width means left-justified, a negative '*' precision
//   means none.
// Returns nullopt, having read an unknown number of the arguments, for a
// format that ends inside a conversion, an unknown conversion, a length
// modifier that its conversion does not take (%hs, %Ld, ...), "%%" with
// anything between the two signs, a width or precision above INT_MAX, or a
// number the narrow snprintf refuses to print.
std::optional<WideString> FormatWide(const WideChar* format, va_list args);

}  // namespace platform
