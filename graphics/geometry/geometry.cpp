#include "geometry/geometry.h"

#include "database/segment.h"

namespace graphics {

void Geometry::MarkChanged() {
  if (owner() == nullptr) return;
  owner()->MarkBoundsDirty();
  owner()->NoteChange();
}

}  // namespace graphics
