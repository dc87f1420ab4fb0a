#pragma once
// The library's text is specified in 16-bit code units on every platform.
// This is the one place that chooses the C++ type for such a unit.
#include <string>

using WideChar = char16_t;
using WideString = std::u16string;
