#pragma once
// Measuring and outlining text with the fonts the system provides (DejaVu,
// read with FreeType). Every length here is in ems: multiples of the font
// size, which is the height a text attribute's "size" gives.
#include <memory>
#include <string_view>
#include <vector>

#include "errors/error.h"
#include "math/point.h"

namespace graphics {

// Which face of the family a text font list asks for.
struct FontChoice {
  enum class Family { kSans, kSerif, kMono };
  Family family = Family::kSans;
  bool bold = false;
  bool italic = false;

  bool operator==(const FontChoice&) const = default;
};

// The face for a font name: "typewriter", "mono..." and "courier" give the
// monospaced face, "serif", "roman" and "times" the serif one (but not
// "sans serif"), anything else the sans-serif face.
FontChoice ChooseFont(std::string_view name, bool bold, bool italic);

struct TextSize {
  double width = 0;   // the longest line's advance
  double height = 0;  // lines times the line height
};

// Glyph outlines flattened to polygons, in ems, baseline at y 0.
struct TextOutline {
  std::vector<Point> points;
  // Shell form: each contour as its point count, then its point indices;
  // an outer contour's count is positive, a hole's negative.
  std::vector<int> faces;
};

class FontMetrics {
 public:
  // The loaded face of that choice; an error when no font file can be read.
  // Faces are loaded once and shared by every thread.
  static Result<const FontMetrics*> For(const FontChoice& choice);

  // The text (characters, lines split at '\n') measured with `spacing`
  // scaling each advance and `line_spacing` the distance between lines. A
  // character the face lacks takes no room.
  TextSize Measure(std::u32string_view text, double spacing, double line_spacing) const;
  TextOutline Outline(std::u32string_view text, double spacing) const;

  ~FontMetrics();
  FontMetrics(const FontMetrics&) = delete;
  FontMetrics& operator=(const FontMetrics&) = delete;

 private:
  struct Face;
  explicit FontMetrics(std::unique_ptr<Face> face);
  // The advance of one character in ems, for one beyond Latin-1 read from
  // the face on first use.
  double Advance(char32_t c) const;

  std::unique_ptr<Face> face_;
};

}  // namespace graphics
