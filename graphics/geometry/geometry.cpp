#include "geometry/geometry.h"

#include "database/segment.h"

namespace graphics {

void Geometry::MarkChanged() {
  if (owner() != nullptr) owner()->MarkBoundsDirty();
}

}  // namespace graphics
