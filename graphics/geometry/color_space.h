#pragma once
// Colours given in another space than RGB, turned to RGB for storage.
#include <array>
#include <optional>
#include <string_view>

namespace graphics {

// The RGB values of `values` in `space` ("rgb", "hls" or "hsv", any case):
// RGB components from 0 to 1, hue in degrees, the rest from 0 to 1.
// Nothing for an unknown space.
std::optional<std::array<float, 3>> ToRgb(std::string_view space, const std::array<float, 3>& values);

}  // namespace graphics
