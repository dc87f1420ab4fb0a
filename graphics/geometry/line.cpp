#include "geometry/line.h"

namespace graphics {

Bounds Line::ComputeBounds() const {
  Bounds bounds;
  bounds.Include(start_);
  bounds.Include(end_);
  return bounds;
}

}  // namespace graphics
