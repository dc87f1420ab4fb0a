#include "geometry/text.h"

#include "database/segment.h"

namespace graphics {

void Text::MoveTo(const Point& position) {
  position_ = position;
  if (owner() != nullptr) owner()->MarkBoundsDirty();
}

Bounds Text::ComputeBounds() const {
  Bounds bounds;
  bounds.Include(position_);
  return bounds;
}

}  // namespace graphics
