#pragma once
// The segments every database starts with, and the window that calls made
// with nothing open work in.
#include <string_view>

namespace graphics {

inline constexpr std::string_view kIncludeLibraryPath = "/include library";
inline constexpr std::string_view kStyleLibraryPath = "/style library";
inline constexpr std::string_view kPicturePath = "/driver/null/window0";

}  // namespace graphics
