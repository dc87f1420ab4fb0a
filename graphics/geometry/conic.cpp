#include "geometry/conic.h"

#include <cmath>

#include "geometry/vector_ops.h"

namespace graphics {

namespace {

// Relative to the triangle's size, so scale does not decide degeneracy.
constexpr double kCollinearTolerance = 1e-12;

struct Circle {
  Vec3 center;
  Vec3 normal;  // unit
  double radius;
};

Circle CircleThrough(const std::array<Point, 3>& points) {
  const Vec3 a = ToVec(points[0]);
  const Vec3 u = ToVec(points[1]) - a;
  const Vec3 v = ToVec(points[2]) - a;
  const Vec3 n = Cross(u, v);
  const double nn = Dot(n, n);
  // Circumcentre of the triangle, relative to a.
  const Vec3 offset = (Cross(n, u) * Dot(v, v) + Cross(v, n) * Dot(u, u)) * (0.5 / nn);
  return Circle{a + offset, n * (1 / std::sqrt(nn)), Length(offset)};
}

// Box of the ellipse centre + cos t * a + sin t * b.
Bounds EllipseBox(const Vec3& center, const Vec3& a, const Vec3& b) {
  const Vec3 half{std::hypot(a.x, b.x), std::hypot(a.y, b.y), std::hypot(a.z, b.z)};
  Bounds bounds;
  bounds.Include(ToPoint(center - half));
  bounds.Include(ToPoint(center + half));
  return bounds;
}

}  // namespace

bool IsCircular(GeometryType type) {
  return type == GeometryType::kCircle || type == GeometryType::kCircularArc ||
         type == GeometryType::kCircularChord || type == GeometryType::kCircularWedge;
}

bool DefinesCircle(const std::array<Point, 3>& points) {
  const Vec3 u = ToVec(points[1]) - ToVec(points[0]);
  const Vec3 v = ToVec(points[2]) - ToVec(points[0]);
  const double scale = Dot(u, u) * Dot(v, v);
  if (scale == 0) return false;
  const Vec3 n = Cross(u, v);
  return Dot(n, n) > kCollinearTolerance * scale;
}

bool CirclePoints(const Point& center, float radius, const Point& normal, std::array<Point, 3>& points) {
  const Vec3 n = ToVec(normal);
  const double length = Length(n);
  if (!(radius > 0) || length == 0) return false;
  // Any vector not parallel to the normal gives the first in-plane axis.
  const Vec3 helper = std::fabs(n.x) <= std::fabs(n.y) && std::fabs(n.x) <= std::fabs(n.z) ? Vec3{1, 0, 0}
                      : std::fabs(n.y) <= std::fabs(n.z)                                   ? Vec3{0, 1, 0}
                                                                                            : Vec3{0, 0, 1};
  Vec3 u = Cross(n, helper);
  u = u * (radius / Length(u));
  const Vec3 v = Cross(n, u) * (1 / length);
  const Vec3 c = ToVec(center);
  points = {ToPoint(c + u), ToPoint(c + v), ToPoint(c - u)};
  return true;
}

Bounds Conic::ComputeBounds() const {
  if (!IsCircular(type())) {
    const Vec3 center = ToVec(points_[0]);
    return EllipseBox(center, ToVec(points_[1]) - center, ToVec(points_[2]) - center);
  }
  const Circle circle = CircleThrough(points_);
  const Vec3 helper = std::fabs(circle.normal.x) < 0.9 ? Vec3{1, 0, 0} : Vec3{0, 1, 0};
  Vec3 u = Cross(circle.normal, helper);
  u = u * (circle.radius / Length(u));
  const Vec3 v = Cross(circle.normal, u);
  return EllipseBox(circle.center, u, v);
}

}  // namespace graphics
