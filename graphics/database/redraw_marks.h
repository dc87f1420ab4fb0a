#pragma once
// What the next update has to redraw of one segment: left by changes to the
// database (while the "update control" system option is on) and by
// HC_Control_Update. A renderer reads the marks when it walks the tree and
// clears them once the segment is drawn.
#include <optional>
#include <string_view>

#include "errors/error.h"

namespace graphics {

// A rectangle of a window in window coordinates (-1 to 1 across).
struct WindowArea {
  double left;
  double right;
  double bottom;
  double top;
  bool operator==(const WindowArea&) const = default;
};

struct RedrawMarks {
  // How much of the segment must be drawn again, least first.
  enum class Redraw { kNone, kPartial, kEverything };

  Redraw redraw = Redraw::kNone;
  // The picture is to be shown again as it is, without regenerating it.
  bool refresh = false;
  // The next update prepares the segment but draws nothing of it.
  bool compile_only = false;
  // Where the redraw is confined to; absent means the whole window.
  std::optional<WindowArea> area;

  bool empty() const { return redraw == Redraw::kNone && !refresh && !compile_only && !area; }
  // Raises the redraw to at least `level`; never lowers it.
  void Raise(Redraw level) {
    if (level > redraw) redraw = level;
  }
  // Adds `more` to the area; the smallest rectangle holding both.
  void Widen(const WindowArea& more);
  bool operator==(const RedrawMarks&) const = default;
};

// Applies a list of update words in the option-string grammar, in order:
// "redraw everything", "redraw partial" (raise the redraw), "refresh",
// "compile only" (set those marks) and "unset redraw" (clear every mark,
// the area included). A blank list changes nothing. An unknown word, a
// negated word or a word with a value is an error and changes nothing.
Status ApplyUpdateWords(std::string_view list, RedrawMarks& marks);

}  // namespace graphics
