#pragma once
// Double-precision vector arithmetic on stored points, for the geometric
// facts geometry items derive (circle centres, normals, extents).
#include <cmath>

#include "math/point.h"

namespace graphics {

struct Vec3 {
  double x = 0;
  double y = 0;
  double z = 0;
};

inline Vec3 ToVec(const Point& p) { return Vec3{p.x, p.y, p.z}; }
inline Point ToPoint(const Vec3& v) {
  return Point{static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
}
inline Vec3 operator+(const Vec3& a, const Vec3& b) { return Vec3{a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Vec3 operator-(const Vec3& a, const Vec3& b) { return Vec3{a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Vec3 operator*(const Vec3& a, double s) { return Vec3{a.x * s, a.y * s, a.z * s}; }
inline double Dot(const Vec3& a, const Vec3& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Vec3 Cross(const Vec3& a, const Vec3& b) {
  return Vec3{a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Length(const Vec3& a) { return std::sqrt(Dot(a, a)); }

}  // namespace graphics
