#pragma once
// Circles, circular arcs, chords and wedges (three points on the curve), and
// ellipses and elliptical arcs (centre and the ends of both half-axes, with
// start and end parameters from 0 to 1 round the curve). The points are kept
// as given, so shows answer exactly what was inserted.
#include <array>

#include "geometry/geometry.h"
#include "math/point.h"

namespace graphics {

class Conic final : public CopyableGeometry<Conic> {
 public:
  Conic(GeometryType type, const std::array<Point, 3>& points, float start = 0, float end = 1)
      : CopyableGeometry(type), points_(points), start_(start), end_(end) {}

  // Circular kinds: three points on the curve. Elliptical kinds: centre,
  // major and minor axis ends.
  const std::array<Point, 3>& points() const { return points_; }
  float start() const { return start_; }
  float end() const { return end_; }

  // The whole curve's box, so arcs answer a box that holds them.
  Bounds ComputeBounds() const override;

 private:
  std::array<Point, 3> points_;
  float start_;
  float end_;
};

bool IsCircular(GeometryType type);

// The three points of a circle given by centre, radius and the normal of its
// plane, or false when the radius is not positive or the normal is zero.
bool CirclePoints(const Point& center, float radius, const Point& normal, std::array<Point, 3>& points);

// Whether three points fix a circle: distinct and not on one line.
bool DefinesCircle(const std::array<Point, 3>& points);

}  // namespace graphics
