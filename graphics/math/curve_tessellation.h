#pragma once
// Polylines that follow curves within a largest distance: arcs of circles
// and ellipses, and rational B-spline curves. Without a largest distance a
// curve gets its coarsest outline: eight pieces a full turn, one piece per
// degree in each knot span.
#include <optional>
#include <span>
#include <vector>

#include "math/point.h"

namespace graphics {

// centre + cos(t) * major + sin(t) * minor for t from `start` to `end`
// radians; `major` and `minor` are vectors from the centre.
struct EllipseArc {
  Point center;
  Point major;
  Point minor;
  double start = 0;
  double end = 0;
};

// The circle through a, b and c (three distinct points not on one line),
// starting at a and turning towards b; `end` is the turn to c, so the arc
// from a through b to c. A full circle is the same with `end` 2 pi.
EllipseArc ArcThrough(const Point& a, const Point& b, const Point& c);

// The rational B-spline of `degree` over `control_points`: `weights` one per
// point or empty for all 1, `knots` points + degree + 1 non-decreasing values
// or empty for a clamped uniform vector. `start` and `end` (0 <= start <= end
// <= 1) choose the part of the curve's parameter range to follow.
struct NurbsCurveData {
  int degree = 1;
  std::span<const Point> control_points;
  std::span<const float> weights;
  std::span<const float> knots;
  double start = 0;
  double end = 1;
};

// A curve is cut into at most this many pieces, however small the distance.
inline constexpr int kMaxCurvePieces = 1 << 20;

// The points of the polyline, first and last on the arc's ends; a full turn
// ends exactly on its first point. `max_deviation`, when given, is positive.
std::vector<Point> TessellateArc(const EllipseArc& arc, std::optional<double> max_deviation);
// The points of the polyline, from the curve's point at `start` to the one
// at `end`; a range of zero length gives one point.
std::vector<Point> TessellateNurbs(const NurbsCurveData& curve, std::optional<double> max_deviation);

}  // namespace graphics
