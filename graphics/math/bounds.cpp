#include "math/bounds.h"

#include <algorithm>

namespace graphics {

void Bounds::Include(const Point& p) {
  if (empty_) {
    min_ = max_ = p;
    empty_ = false;
    return;
  }
  min_ = Point{std::min(min_.x, p.x), std::min(min_.y, p.y), std::min(min_.z, p.z)};
  max_ = Point{std::max(max_.x, p.x), std::max(max_.y, p.y), std::max(max_.z, p.z)};
}

void Bounds::Include(const Bounds& other) {
  if (other.empty_) return;
  Include(other.min_);
  Include(other.max_);
}

Bounds Bounds::Transformed(const Matrix& m) const {
  Bounds result;
  if (empty_) return result;
  for (int corner = 0; corner < 8; ++corner) {
    result.Include(m.Transform(Point{(corner & 1) ? max_.x : min_.x, (corner & 2) ? max_.y : min_.y,
                                     (corner & 4) ? max_.z : min_.z}));
  }
  return result;
}

}  // namespace graphics
