#pragma once
// An axis-aligned box, possibly empty: what a segment caches about its
// contents so bounding queries and selection need not walk the tree.
#include "math/matrix.h"
#include "math/point.h"

namespace graphics {

class Bounds {
 public:
  // The empty box.
  Bounds() = default;

  bool empty() const { return empty_; }
  const Point& min() const { return min_; }
  const Point& max() const { return max_; }

  void Include(const Point& p);
  void Include(const Bounds& other);
  // The box around this one's eight corners after `m`.
  Bounds Transformed(const Matrix& m) const;

  bool operator==(const Bounds&) const = default;

 private:
  bool empty_ = true;
  Point min_;
  Point max_;
};

}  // namespace graphics
