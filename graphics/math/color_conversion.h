#pragma once
// Colour triples between the interface's four spaces: RGB (0 to 1), HLS and
// HSV (hue in degrees, the rest 0 to 1) and HIC (hue in degrees, intensity
// the mean of r, g, b, chromaticity the spread between the largest and the
// smallest component).
#include <array>
#include <optional>
#include <string_view>

namespace graphics {

enum class ColorSpace { kRgb, kHls, kHsv, kHic };
using ColorTriple = std::array<float, 3>;

// "RGB", "HLS", "HSV" or "HIC", any case, blanks around ignored.
std::optional<ColorSpace> FindColorSpace(std::string_view word);

// Nothing when a component is out of its range (hue is taken modulo 360).
std::optional<ColorTriple> ToRgb(ColorSpace space, ColorTriple values);
ColorTriple FromRgb(ColorSpace space, ColorTriple rgb);

}  // namespace graphics
