#include "math/color_conversion.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "strings/text.h"

namespace graphics {

namespace {

bool Unit(float v) { return v >= 0 && v <= 1; }

float Hue(float degrees) {
  const float h = std::fmod(degrees, 360.0f);
  return h < 0 ? h + 360 : h;
}

// The fully saturated colour of `hue` scaled to `chroma`, with its smallest
// component at 0.
ColorTriple HueChroma(float hue, float chroma) {
  const float h = Hue(hue) / 60;
  const float x = chroma * (1 - std::abs(std::fmod(h, 2.0f) - 1));
  switch (static_cast<int>(h)) {
    case 0: return {chroma, x, 0};
    case 1: return {x, chroma, 0};
    case 2: return {0, chroma, x};
    case 3: return {0, x, chroma};
    case 4: return {x, 0, chroma};
    default: return {chroma, 0, x};
  }
}

float HueOf(const ColorTriple& rgb, float max, float chroma) {
  if (chroma == 0) return 0;
  float h = 0;
  if (max == rgb[0]) {
    h = std::fmod((rgb[1] - rgb[2]) / chroma, 6.0f);
  } else if (max == rgb[1]) {
    h = (rgb[2] - rgb[0]) / chroma + 2;
  } else {
    h = (rgb[0] - rgb[1]) / chroma + 4;
  }
  return Hue(60 * h);
}

ColorTriple Plus(ColorTriple c, float m) { return {c[0] + m, c[1] + m, c[2] + m}; }

}  // namespace

std::optional<ColorSpace> FindColorSpace(std::string_view word) {
  const std::string w = NormalizeWord(word);
  if (w == "rgb") return ColorSpace::kRgb;
  if (w == "hls") return ColorSpace::kHls;
  if (w == "hsv") return ColorSpace::kHsv;
  if (w == "hic") return ColorSpace::kHic;
  return std::nullopt;
}

std::optional<ColorTriple> ToRgb(ColorSpace space, ColorTriple v) {
  if (!std::isfinite(v[0]) || !std::isfinite(v[1]) || !std::isfinite(v[2])) return std::nullopt;
  switch (space) {
    case ColorSpace::kRgb:
      if (!Unit(v[0]) || !Unit(v[1]) || !Unit(v[2])) return std::nullopt;
      return v;
    case ColorSpace::kHsv: {
      if (!Unit(v[1]) || !Unit(v[2])) return std::nullopt;
      const float chroma = v[2] * v[1];
      return Plus(HueChroma(v[0], chroma), v[2] - chroma);
    }
    case ColorSpace::kHls: {
      if (!Unit(v[1]) || !Unit(v[2])) return std::nullopt;
      const float chroma = (1 - std::abs(2 * v[1] - 1)) * v[2];
      return Plus(HueChroma(v[0], chroma), v[1] - chroma / 2);
    }
    case ColorSpace::kHic: {
      if (!Unit(v[1]) || !Unit(v[2])) return std::nullopt;
      const ColorTriple base = HueChroma(v[0], v[2]);
      const ColorTriple rgb = Plus(base, v[1] - (base[0] + base[1] + base[2]) / 3);
      if (!Unit(rgb[0]) || !Unit(rgb[1]) || !Unit(rgb[2])) return std::nullopt;
      return rgb;
    }
  }
  return std::nullopt;
}

ColorTriple FromRgb(ColorSpace space, ColorTriple rgb) {
  const float max = std::max({rgb[0], rgb[1], rgb[2]});
  const float min = std::min({rgb[0], rgb[1], rgb[2]});
  const float chroma = max - min;
  const float hue = HueOf(rgb, max, chroma);
  switch (space) {
    case ColorSpace::kRgb:
      return rgb;
    case ColorSpace::kHsv:
      return {hue, max == 0 ? 0 : chroma / max, max};
    case ColorSpace::kHls: {
      const float lightness = (max + min) / 2;
      const float denominator = 1 - std::abs(2 * lightness - 1);
      return {hue, lightness, denominator == 0 ? 0 : chroma / denominator};
    }
    case ColorSpace::kHic:
      return {hue, (rgb[0] + rgb[1] + rgb[2]) / 3, chroma};
  }
  return rgb;
}

}  // namespace graphics
