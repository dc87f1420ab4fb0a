#pragma once
// Cylinder and cone pieces through a run of points, one radius per point
// (fewer radii wrap round), with optional end caps.
#include <string>
#include <vector>

#include "geometry/geometry.h"
#include "math/point.h"

namespace graphics {

class PolyCylinder final : public CopyableGeometry<PolyCylinder> {
 public:
  PolyCylinder(std::vector<Point> points, std::vector<float> radii, std::string capping)
      : CopyableGeometry(GeometryType::kPolyCylinder),
        points_(std::move(points)),
        radii_(std::move(radii)),
        capping_(std::move(capping)) {}

  const std::vector<Point>& points() const { return points_; }
  const std::vector<float>& radii() const { return radii_; }
  // "none", "first", "second" or "both".
  const std::string& capping() const { return capping_; }

  // The points' box grown by the largest radius.
  Bounds ComputeBounds() const override;

 private:
  std::vector<Point> points_;
  std::vector<float> radii_;
  std::string capping_;
};

}  // namespace graphics
