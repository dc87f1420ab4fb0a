#pragma once
#include "geometry/geometry.h"

namespace graphics {

// A plane a*x + b*y + c*z + d = 0 that cuts away what lies on its positive
// side; it has no extent of its own.
class CuttingPlane final : public CopyableGeometry<CuttingPlane> {
 public:
  CuttingPlane(float a, float b, float c, float d) : CopyableGeometry(GeometryType::kCuttingPlane), abcd_{a, b, c, d} {}

  const float* coefficients() const { return abcd_; }

  Bounds ComputeBounds() const override { return Bounds(); }

 private:
  float abcd_[4];
};

}  // namespace graphics
