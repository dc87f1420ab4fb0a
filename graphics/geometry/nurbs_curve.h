#pragma once
// A NURBS curve: degree, control points, weights and knots. Weights and knots
// the caller left out are remembered as left out (shows report zero of them)
// while the curve uses unit weights and a clamped uniform knot vector.
#include <vector>

#include "geometry/geometry.h"
#include "math/point.h"

namespace graphics {

class NurbsCurve final : public CopyableGeometry<NurbsCurve> {
 public:
  // `weights` empty or one per control point; `knots` empty or
  // points + degree + 1 of them.
  NurbsCurve(int degree, std::vector<Point> control_points, std::vector<float> weights, std::vector<float> knots,
             float start_u, float end_u)
      : CopyableGeometry(GeometryType::kNurbsCurve),
        degree_(degree),
        control_points_(std::move(control_points)),
        weights_(std::move(weights)),
        knots_(std::move(knots)),
        start_u_(start_u),
        end_u_(end_u) {}

  int degree() const { return degree_; }
  const std::vector<Point>& control_points() const { return control_points_; }
  // As given: empty when the caller gave none.
  const std::vector<float>& weights() const { return weights_; }
  const std::vector<float>& knots() const { return knots_; }
  float start_u() const { return start_u_; }
  float end_u() const { return end_u_; }

  // The control polygon's box, which holds the curve.
  Bounds ComputeBounds() const override;

 private:
  int degree_;
  std::vector<Point> control_points_;
  std::vector<float> weights_;
  std::vector<float> knots_;
  float start_u_;
  float end_u_;
};

}  // namespace graphics
