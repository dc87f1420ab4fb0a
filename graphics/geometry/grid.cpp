#include "geometry/grid.h"

namespace graphics {

Bounds Grid::ComputeBounds() const {
  Bounds bounds;
  bounds.Include(origin_);
  bounds.Include(ref1_);
  bounds.Include(ref2_);
  return bounds;
}

}  // namespace graphics
