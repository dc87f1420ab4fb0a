#pragma once
// A sphere: centre, radius, and the axis and ortho vectors that orient its
// parametrisation.
#include "geometry/geometry.h"
#include "math/point.h"

namespace graphics {

class Sphere final : public CopyableGeometry<Sphere> {
 public:
  Sphere(const Point& center, float radius, const Point& axis, const Point& ortho)
      : CopyableGeometry(GeometryType::kSphere), center_(center), radius_(radius), axis_(axis), ortho_(ortho) {}

  const Point& center() const { return center_; }
  float radius() const { return radius_; }
  const Point& axis() const { return axis_; }
  const Point& ortho() const { return ortho_; }

  Bounds ComputeBounds() const override;

 private:
  Point center_;
  float radius_;
  Point axis_;
  Point ortho_;
};

}  // namespace graphics
