#include "geometry/nurbs_curve.h"

namespace graphics {

Bounds NurbsCurve::ComputeBounds() const {
  Bounds bounds;
  for (const Point& p : control_points_) bounds.Include(p);
  return bounds;
}

}  // namespace graphics
