#include "geometry/sphere.h"

namespace graphics {

Bounds Sphere::ComputeBounds() const {
  Bounds bounds;
  bounds.Include(Point{center_.x - radius_, center_.y - radius_, center_.z - radius_});
  bounds.Include(Point{center_.x + radius_, center_.y + radius_, center_.z + radius_});
  return bounds;
}

}  // namespace graphics
