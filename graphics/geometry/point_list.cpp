#include "geometry/point_list.h"

namespace graphics {

int PointList::signed_count() const {
  const int count = static_cast<int>(points_.size());
  return disjoint_ ? -count : count;
}

void PointList::Edit(size_t offset, size_t ndelete, std::span<const Point> inserted) {
  const auto at = points_.begin() + static_cast<std::ptrdiff_t>(offset);
  points_.erase(at, at + static_cast<std::ptrdiff_t>(ndelete));
  points_.insert(points_.begin() + static_cast<std::ptrdiff_t>(offset), inserted.begin(), inserted.end());
  MarkChanged();
}

void PointList::Append(const Point& point) {
  points_.push_back(point);
  MarkChanged();
}

Bounds PointList::ComputeBounds() const {
  Bounds bounds;
  for (const Point& p : points_) bounds.Include(p);
  return bounds;
}

}  // namespace graphics
