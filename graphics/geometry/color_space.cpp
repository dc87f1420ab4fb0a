#include "geometry/color_space.h"

#include <cmath>

#include "strings/text.h"

namespace graphics {

namespace {

// One RGB component of a colour with this hue, from its chroma extremes.
float HueComponent(float low, float high, float hue) {
  hue = std::fmod(std::fmod(hue, 360.0f) + 360.0f, 360.0f);
  if (hue < 60) return low + (high - low) * hue / 60;
  if (hue < 180) return high;
  if (hue < 240) return low + (high - low) * (240 - hue) / 60;
  return low;
}

std::array<float, 3> FromHue(float low, float high, float hue) {
  return {HueComponent(low, high, hue + 120), HueComponent(low, high, hue), HueComponent(low, high, hue - 120)};
}

}  // namespace

std::optional<std::array<float, 3>> ToRgb(std::string_view space, const std::array<float, 3>& values) {
  const std::string word = NormalizeWord(space);
  if (word == "rgb") return values;
  if (word == "hsv") {
    const auto [h, s, v] = values;
    return FromHue(v * (1 - s), v, h);
  }
  if (word == "hls") {
    const auto [h, l, s] = values;
    const float high = l <= 0.5f ? l * (1 + s) : l + s - l * s;
    return FromHue(2 * l - high, high, h);
  }
  return std::nullopt;
}

}  // namespace graphics
