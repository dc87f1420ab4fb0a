#include "geometry/polycylinder.h"

#include <algorithm>
#include <cmath>

namespace graphics {

Bounds PolyCylinder::ComputeBounds() const {
  float radius = 0;
  for (float r : radii_) radius = std::max(radius, std::fabs(r));
  Bounds bounds;
  for (const Point& p : points_) {
    bounds.Include(Point{p.x - radius, p.y - radius, p.z - radius});
    bounds.Include(Point{p.x + radius, p.y + radius, p.z + radius});
  }
  return bounds;
}

}  // namespace graphics
