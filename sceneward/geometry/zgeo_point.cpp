#include "sceneward/geometry/zgeo_point.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace {

// Below this magnitude a float counts as zero in FloatEquality.
constexpr float kZeroMagnitude = 1e-6f;
static_assert(std::bit_cast<uint32_t>(kZeroMagnitude) == 0x358637BDu);

// The float's bit pattern as an integer that orders like the floats, with
// +0 and -0 meeting at 0.
int32_t OrderedBits(float f) {
  if (!(std::fabs(f) >= kZeroMagnitude)) return 0;
  const uint32_t bits = std::bit_cast<uint32_t>(f);
  if (static_cast<int32_t>(bits) >= 0) return static_cast<int32_t>(bits);
  return static_cast<int32_t>(0x80000000u - bits);
}

}  // namespace

ZGeoPoint ZGeoPoint::AbsoluteValue() const { return ZGeoPoint(std::fabs(x), std::fabs(y), std::fabs(z)); }

ZGeoPoint ZGeoPoint::Cross(ZGeoPoint const& o) const {
  return ZGeoPoint(y * o.z - z * o.y, z * o.x - x * o.z, x * o.y - y * o.x);
}

ZGeoPoint ZGeoPoint::Direction() const {
  ZGeoPoint copy = *this;
  copy.Normalize();
  return copy;
}

float ZGeoPoint::Length() const { return std::sqrt(Length2()); }

float ZGeoPoint::AngleTo(ZGeoPoint const& o) const { return AngleTo(o, Cross(o)); }

float ZGeoPoint::AngleTo(ZGeoPoint const& o, ZGeoPoint const& normal) const {
  const ZGeoPoint u = Direction();
  const ZGeoPoint w = u.Cross(normal.Direction()).Direction();
  return std::atan2(o.Dot(w), o.Dot(u));
}

void ZGeoPoint::Normalize() {
  const float length = Length();
  if (length < 0 || length > 0) {
    // One division, then multiplications: the rounding callers rely on.
    const float inverse = 1.0f / length;
    x *= inverse;
    y *= inverse;
    z *= inverse;
  }
}

bool ZGeoPoint::FloatEquality(float a, float b, int ulps) {
  const int64_t difference = static_cast<int64_t>(OrderedBits(a)) - OrderedBits(b);
  return std::llabs(difference) <= ulps;
}

bool ZGeoPoint::Equals(ZGeoPoint const& o, int ulps) const {
  return FloatEquality(x, o.x, ulps) && FloatEquality(y, o.y, ulps) && FloatEquality(z, o.z, ulps);
}

bool ZGeoPoint::LessThan(ZGeoPoint const& o, int ulps) const {
  const float mine[] = {x, y, z};
  const float theirs[] = {o.x, o.y, o.z};
  for (int i = 0; i < 3; ++i) {
    if (!FloatEquality(mine[i], theirs[i], ulps)) return mine[i] < theirs[i];
  }
  return false;
}

bool ZGeoPoint::IsZero(float tol) const {
  return !(std::fabs(x) > tol) && !(std::fabs(y) > tol) && !(std::fabs(z) > tol);
}

bool ZGeoPoint::IsParallelTo(ZGeoPoint const& o, float tol) const {
  return tol >= 1.0f - std::fabs(Direction().Dot(o.Direction()));
}

bool ZGeoPoint::IsPerpendicularTo(ZGeoPoint const& o, float tol) const {
  return tol >= std::fabs(Direction().Dot(o.Direction()));
}
