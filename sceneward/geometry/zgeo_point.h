#pragma once
// ZGeoPoint: the kernel's one vector type, for positions and directions
// alike. Three single-precision floats and nothing else, so that an array of
// points is a packed float array the graphics library takes as it is.
//
// Comparisons go through FloatEquality, which measures in units in the last
// place and treats magnitudes below 1e-6 as exact zero. The kernel's own
// callers pass 2000 units and 0.0001 for direction tests; those are the
// defaults here.
#include <type_traits>

#include "sceneward/geometry/hpoint.h"

class ZGeoPoint {
 public:
  static constexpr int kDefaultUlps = 2000;
  static constexpr float kDefaultDirectionTolerance = 0.0001f;

  ZGeoPoint() = default;
  ZGeoPoint(float px, float py, float pz) : x(px), y(py), z(pz) {}
  ZGeoPoint(HPoint const& p) : x(p.x), y(p.y), z(p.z) {}
  operator HPoint() const { return HPoint{x, y, z}; }

  void Set(float px, float py, float pz) {
    x = px;
    y = py;
    z = pz;
  }
  void Set(ZGeoPoint const& p) { *this = p; }

  ZGeoPoint Add(ZGeoPoint const& o) const { return ZGeoPoint(x + o.x, y + o.y, z + o.z); }
  ZGeoPoint Subtract(ZGeoPoint const& o) const { return ZGeoPoint(x - o.x, y - o.y, z - o.z); }
  ZGeoPoint Scale(float s) const { return ZGeoPoint(x * s, y * s, z * s); }
  ZGeoPoint operator+(ZGeoPoint const& o) const { return Add(o); }
  ZGeoPoint operator-(ZGeoPoint const& o) const { return Subtract(o); }
  ZGeoPoint operator*(float s) const { return Scale(s); }
  ZGeoPoint operator-() const { return ZGeoPoint(-x, -y, -z); }
  ZGeoPoint AbsoluteValue() const;
  // Right-handed.
  ZGeoPoint Cross(ZGeoPoint const& o) const;
  // A normalised copy; see Normalize for zero and NaN lengths.
  ZGeoPoint Direction() const;

  float Dot(ZGeoPoint const& o) const { return x * o.x + y * o.y + z * o.z; }
  float Length() const;
  float Length2() const { return Dot(*this); }
  float DistanceTo(ZGeoPoint const& o) const { return Subtract(o).Length(); }
  // The signed angle from this vector to `o` about this x o, which is always
  // at most 0 (see the two-argument form); 0 for the same direction and pi
  // for the opposite one.
  float AngleTo(ZGeoPoint const& o) const;
  // The angle from this vector to `o`, in [-pi, pi], measured positive from
  // this vector towards this x `normal`: clockwise seen from the tip of
  // `normal`.
  float AngleTo(ZGeoPoint const& o, ZGeoPoint const& normal) const;

  // Scales to unit length. A zero vector stays zero and a vector whose length
  // is NaN is left alone.
  void Normalize();

  // True if `a` and `b` lie at most `ulps` representable floats apart.
  // Magnitudes below 1e-6, and NaN, count as zero (of either sign).
  static bool FloatEquality(float a, float b, int ulps);
  // FloatEquality of x, y and z.
  bool Equals(ZGeoPoint const& o, int ulps = kDefaultUlps) const;
  // Lexicographic on x, y, z; a component decides only where FloatEquality
  // says the two differ. Equal points give false.
  bool LessThan(ZGeoPoint const& o, int ulps = kDefaultUlps) const;
  // No component's magnitude is above `tol`.
  bool IsZero(float tol) const;
  // The directions agree or are opposite within `tol` on 1 - |cos|. A zero
  // vector is parallel to nothing unless `tol` is at least 1.
  bool IsParallelTo(ZGeoPoint const& o, float tol = kDefaultDirectionTolerance) const;
  // |cos| of the angle is at most `tol`. A zero vector is perpendicular to
  // everything.
  bool IsPerpendicularTo(ZGeoPoint const& o, float tol = kDefaultDirectionTolerance) const;

  float x = 0;
  float y = 0;
  float z = 0;
};

// Arrays of points cross the graphics interface as packed float triples.
static_assert(sizeof(ZGeoPoint) == 3 * sizeof(float) && std::is_standard_layout_v<ZGeoPoint> &&
              std::is_trivially_copyable_v<ZGeoPoint>);
