// Vector helpers for callers: identity, cross and dot products, lengths,
// normalisation, rotations about an axis and the plane of a polygon. Pure
// computation in double precision, with no engine lock; outputs may be the
// same arrays as inputs.
#include <cmath>
#include <numbers>
#include <string_view>

#include "api/compute_inputs.h"
#include "errors/error.h"
#include "hc/hc.h"
#include "math/point.h"
#include "strings/text.h"

using graphics::Error;
using graphics::Point;
using graphics::api::InputsPresent;
using graphics::api::ReadPoint;
using graphics::api::Report;
using graphics::api::WritePointAt;

namespace {

struct Vector {
  double x, y, z;
};

Vector ReadVector(const void* v) {
  const Point p = ReadPoint(v);
  return {p.x, p.y, p.z};
}

void WriteVector(void* out, const Vector& v) {
  WritePointAt(out, Point{static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)});
}

double Dot(const Vector& a, const Vector& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
double Length(const Vector& v) { return std::sqrt(Dot(v, v)); }

Vector Cross(const Vector& a, const Vector& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

}  // namespace

extern "C" void HC_Compute_Identity_Matrix(float* out_matrix) {
  if (out_matrix == nullptr) return;
  for (int i = 0; i < 16; ++i) out_matrix[i] = (i % 5 == 0) ? 1.0f : 0.0f;
}

// False when the product is zero: parallel or zero inputs. The output is
// written either way.
extern "C" bool HC_Compute_Cross_Product(void const* vector1, void const* vector2, void* out_vector) {
  if (!InputsPresent(__func__, {{vector1, "first vector"}, {vector2, "second vector"}})) return false;
  const Vector product = Cross(ReadVector(vector1), ReadVector(vector2));
  if (out_vector != nullptr) WriteVector(out_vector, product);
  return Length(product) != 0;
}

extern "C" double HC_Compute_Dot_Product(void const* vector1, void const* vector2) {
  if (!InputsPresent(__func__, {{vector1, "first vector"}, {vector2, "second vector"}})) return 0;
  return Dot(ReadVector(vector1), ReadVector(vector2));
}

extern "C" double HC_Compute_Vector_Length(void const* vector) {
  if (!InputsPresent(__func__, {{vector, "vector"}})) return 0;
  return Length(ReadVector(vector));
}

// A zero (or not finite) vector has no direction: false, output untouched.
extern "C" bool HC_Compute_Normalized_Vector(void const* vector, void* out_vector) {
  if (!InputsPresent(__func__, {{vector, "vector"}})) return false;
  const Vector v = ReadVector(vector);
  const double length = Length(v);
  if (!(length > 0) || !std::isfinite(length)) return false;
  if (out_vector != nullptr) WriteVector(out_vector, {v.x / length, v.y / length, v.z / length});
  return true;
}

// `theta` is in degrees, like every angle of the interface. A positive angle
// about +Z carries +X towards +Y. A zero axis is an error.
extern "C" void HC_Compute_Offaxis_Rotation(double x, double y, double z, double theta, float* out_matrix) {
  const double length = std::sqrt(x * x + y * y + z * z);
  if (!(length > 0) || !std::isfinite(length) || !std::isfinite(theta)) {
    Report(Error(graphics::errc::kOutOfRange, "a rotation needs a finite, non-zero axis and a finite angle"),
           __func__);
    return;
  }
  if (out_matrix == nullptr) return;
  const double nx = x / length, ny = y / length, nz = z / length;
  const double radians = theta * std::numbers::pi / 180;
  const double c = std::cos(radians), s = std::sin(radians), t = 1 - c;
  const double m[16] = {t * nx * nx + c,      t * nx * ny + s * nz, t * nx * nz - s * ny, 0,
                        t * nx * ny - s * nz, t * ny * ny + c,      t * ny * nz + s * nx, 0,
                        t * nx * nz + s * ny, t * ny * nz - s * nx, t * nz * nz + c,      0,
                        0,                    0,                    0,                    1};
  for (int i = 0; i < 16; ++i) out_matrix[i] = static_cast<float>(m[i]);
}

// Newell's normal, which copes with concave and slightly non-planar
// polygons. "right": the vertices run counter-clockwise seen from the tip of
// the normal; "left" turns the normal round. The plane passes through the
// vertices' centroid.
extern "C" bool HC_Compute_Polygon_Plane(int count, void const* points, char const* hand, float* out_plane) {
  if (!InputsPresent(__func__, {{points, "points"}, {hand, "handedness"}})) return false;
  const std::string_view side = graphics::TrimBlanks(hand);
  const bool left = graphics::EqualsIgnoringCase(side, "left");
  if (!left && !graphics::EqualsIgnoringCase(side, "right")) {
    Report(Error(graphics::errc::kUnknownOption, "the handedness must be \"left\" or \"right\""), __func__);
    return false;
  }
  if (count < 3) return false;
  Vector normal{0, 0, 0}, centroid{0, 0, 0};
  for (int i = 0; i < count; ++i) {
    const Point p = ReadPoint(points, i);
    const Point q = ReadPoint(points, (i + 1) % count);
    normal.x += (double(p.y) - q.y) * (double(p.z) + q.z);
    normal.y += (double(p.z) - q.z) * (double(p.x) + q.x);
    normal.z += (double(p.x) - q.x) * (double(p.y) + q.y);
    centroid = {centroid.x + p.x, centroid.y + p.y, centroid.z + p.z};
  }
  const double length = Length(normal);
  if (!(length > 0) || !std::isfinite(length)) return false;
  const double sign = left ? -1 : 1;
  const Vector n{sign * normal.x / length, sign * normal.y / length, sign * normal.z / length};
  const Vector c{centroid.x / count, centroid.y / count, centroid.z / count};
  if (out_plane != nullptr) {
    out_plane[0] = static_cast<float>(n.x);
    out_plane[1] = static_cast<float>(n.y);
    out_plane[2] = static_cast<float>(n.z);
    out_plane[3] = static_cast<float>(-Dot(n, c));
  }
  return true;
}
