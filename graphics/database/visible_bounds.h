#pragma once
// Bounds of what would be drawn: as a segment's content bounds, but counting
// only geometry whose net visibility is on where it stands. Visibility is
// read along the real path to each item, through the includes that reach
// it, so an include under an invisible segment adds nothing.
#include "database/database.h"
#include "database/segment.h"
#include "geometry/geometry.h"
#include "math/bounds.h"

namespace graphics {

// The visible contents of `top` in its own coordinates (its own modelling
// matrix not applied), subsegments and includes placed by their matrices.
// Empty when nothing visible has an extent.
Bounds VisibleContentBounds(const Database& database, const Segment& top);

// The item's own extent when its net visibility is on, else empty.
Bounds VisibleItemBounds(const Geometry& item);

}  // namespace graphics
