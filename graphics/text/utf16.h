#pragma once
// 16-bit option text carried through the 8-bit option grammar. Each unit is
// written as the UTF-8 form of its own value, lone surrogates included, so
// any unit sequence comes back unchanged.
#include <string>
#include <string_view>

namespace graphics {

std::string Utf16UnitsToUtf8(std::u16string_view units);
// The inverse of Utf16UnitsToUtf8 for its output; malformed bytes become
// one unit each of their own value.
std::u16string Utf8ToUtf16Units(std::string_view text);

}  // namespace graphics
