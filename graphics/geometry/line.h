#pragma once
#include "geometry/geometry.h"
#include "math/point.h"

namespace graphics {

class Line final : public CopyableGeometry<Line> {
 public:
  Line(const Point& start, const Point& end) : CopyableGeometry(GeometryType::kLine), start_(start), end_(end) {}

  const Point& start() const { return start_; }
  const Point& end() const { return end_; }

  Bounds ComputeBounds() const override;

 private:
  Point start_;
  Point end_;
};

}  // namespace graphics
