#pragma once
// How big text comes out with the net text attributes of a path: font name,
// size and its unit, bold and italic, line spacing, and text spacing. Until a
// driver gives real windows, the outermost window is the default device's
// 1024 x 768 pixels at 96 dpi; windows set along the path shrink it.
#include <string_view>

#include "errors/error.h"
#include "text/font_metrics.h"
#include "traversal/attribute_path.h"

namespace graphics {

struct TextExtent {
  float x_fraction = 0;  // of the segment's window width
  float y_fraction = 0;  // of its height
};

// `text` is characters, lines split at '\n'.
Result<TextExtent> ComputeTextExtent(const AttributePath& path, std::u32string_view text);
// Outlines with the path's font and spacing, in ems (unit-height glyphs).
Result<TextOutline> ComputeTextOutline(const AttributePath& path, std::u32string_view text);

// Plain 8-bit text, read as ISO Latin-1: one character per byte.
std::u32string Latin1Characters(std::string_view text);

}  // namespace graphics
