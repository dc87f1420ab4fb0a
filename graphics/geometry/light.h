#pragma once
// Lights: distant (a direction), local (a position) and spot (position,
// target and options). Lights light the scene but take no room in it: their
// bounds are empty.
#include <string>

#include "geometry/geometry.h"
#include "math/point.h"

namespace graphics {

class Light final : public CopyableGeometry<Light> {
 public:
  // `position` is the direction for a distant light; `target` and `options`
  // matter for a spot light only.
  Light(GeometryType type, const Point& position, const Point& target = {}, std::string options = "")
      : CopyableGeometry(type), position_(position), target_(target), options_(std::move(options)) {}

  const Point& position() const { return position_; }
  const Point& target() const { return target_; }
  const std::string& options() const { return options_; }

  void MovePosition(const Point& position) { position_ = position; }
  void MoveTarget(const Point& target) { target_ = target; }

  Bounds ComputeBounds() const override { return Bounds(); }

 private:
  Point position_;
  Point target_;
  std::string options_;
};

}  // namespace graphics
