#include "geometry/text.h"

namespace graphics {

void Text::MoveTo(const Point& position) {
  position_ = position;
  MarkChanged();
}

Bounds Text::ComputeBounds() const {
  Bounds bounds;
  bounds.Include(position_);
  return bounds;
}

}  // namespace graphics
