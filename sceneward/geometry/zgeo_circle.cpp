#include "sceneward/geometry/zgeo_circle.h"

#include <cmath>
#include <numbers>

namespace {

constexpr int kUlps = ZGeoPoint::kDefaultUlps;
constexpr float kDirectionTolerance = ZGeoPoint::kDefaultDirectionTolerance;
// How close the two chord bisectors must come to give a centre.
constexpr float kBisectorTolerance = 0.001f;
constexpr float kFullTurn = 2 * std::numbers::pi_v<float>;

}  // namespace

ZGeoLine ZGeoCircle::ChordBisector(ZGeoPoint const& a, ZGeoPoint const& b, ZGeoPoint const& up) {
  const ZGeoPoint mid = (a + b) * 0.5f;
  return ZGeoLine(mid, mid + (b - a).Cross(up));
}

ZGeoCircle::ZGeoCircle(ZGeoPoint const& c, float d) : center(c), diameter(d) { SetThreePointsOnFullCircle(); }

ZGeoCircle::ZGeoCircle(ZGeoPoint const& c, ZGeoPoint const& u, float d) : center(c), up(u.Direction()), diameter(d) {
  SetThreePointsOnFullCircle();
}

ZGeoCircle::ZGeoCircle(ZGeoPoint const& a, ZGeoPoint const& b, ZGeoPoint const& c, bool isComplete) {
  SetFromThreePoints(a, b, c, isComplete);
}

void ZGeoCircle::SetThreePointsOnFullCircle() {
  ZGeoPoint fourth;
  GetFourPointsOnCircle(first, second, third, fourth);
}

void ZGeoCircle::SetFromThreePoints(ZGeoPoint const& a, ZGeoPoint const& b, ZGeoPoint const& c, bool isComplete) {
  complete = isComplete;
  first = a;
  second = b;
  third = c;
  up = (a - b).Cross(c - b).Direction();
  ChordBisector(a, b, up).FindIntersection(ChordBisector(b, c, up), center, kBisectorTolerance);
  diameter = 2 * (center - a).Length();
}

void ZGeoCircle::GetThreePoints(ZGeoPoint& a, ZGeoPoint& b, ZGeoPoint& c) const {
  a = first;
  b = second;
  c = third;
}

void ZGeoCircle::ClearZCoord() {
  center.z = 0;
  first.z = 0;
  second.z = 0;
  third.z = 0;
}

ZGeoCircle ZGeoCircle::Scale(float s) const { return ZGeoCircle(first * s, second * s, third * s, complete); }

bool ZGeoCircle::Equals(ZGeoCircle const& o) const {
  return center.Equals(o.center, kUlps) && up.Equals(o.up, kUlps) && diameter == o.diameter;
}

ZGeoPoint ZGeoCircle::ClosestPointOnCircle(ZGeoPoint const& p) const {
  const ZGeoPoint unit = (GetPlane().ProjectPointOnPlane(p) - center).Direction();
  return center + unit * (diameter * 0.5f);
}

ZGeoPoint ZGeoCircle::GetTangentAtPoint(ZGeoPoint const& p) const {
  return up.Cross(ClosestPointOnCircle(p) - center).Direction();
}

float ZGeoCircle::GetTotalAngle() const {
  if (complete) return kFullTurn;
  const ZGeoPoint u = first - center;
  float f = u.AngleTo(second - center, up);
  if (f < 0) f += kFullTurn;
  float g = u.AngleTo(third - center, up);
  if (g < 0) g = static_cast<float>(g + 2 * std::numbers::pi);
  return g < f ? kFullTurn - g : g;
}

float ZGeoCircle::GetPerimeterLength() const {
  if (complete) return diameter * std::numbers::pi_v<float>;
  return diameter * GetTotalAngle() * 0.5f;
}

ZGeoPoint ZGeoCircle::GetMidPoint() const {
  if (complete) return first;
  const float half = GetTotalAngle() * 0.5f;
  const ZGeoPoint u = (first - center).Direction();
  const ZGeoPoint w = u.Cross(up).Direction();
  return center + u * (diameter * 0.5f * std::cos(half)) + w * (diameter * -0.5f * std::sin(half));
}

void ZGeoCircle::GetFourPointsOnCircle(ZGeoPoint& p1, ZGeoPoint& p2, ZGeoPoint& p3, ZGeoPoint& p4) const {
  ZGeoPoint seed = up;
  seed.x += 0.5f;
  if (seed.IsParallelTo(up, kDirectionTolerance)) seed.y += 0.5f;
  const ZGeoPoint a = seed.Cross(up).Direction();
  const ZGeoPoint b = a.Cross(up).Direction();
  const float r = diameter * 0.5f;
  p1 = center + a * r;
  p2 = center + b * r;
  p3 = center - a * r;
  p4 = center - b * r;
}

int ZGeoCircle::GetIntersectionWithLine(ZGeoLine const& l, ZGeoPoint& p1, ZGeoPoint& p2) const {
  if (!up.IsParallelTo(ZGeoPoint(0, 0, 1), kDirectionTolerance) || center.z != 0 || l.end.z != 0) return 0;
  const ZGeoPoint s = l.start - center;
  const ZGeoPoint e = l.end - center;
  const float dx = e.x - s.x;
  const float dy = e.y - s.y;
  const float dz = e.z - s.z;
  const float dr2 = dx * dx + dy * dy + dz * dz;
  const float D = s.x * e.y - s.y * e.x;
  const float disc = diameter * diameter * (dr2 * 0.25f) - D * D;
  if (!(disc >= 0)) return 0;
  const float q = std::sqrt(disc);
  const float A = dx * q + dy * D;
  const float B = dy * D - dx * q;
  const float C = std::fabs(dy * q);
  p1 = ZGeoPoint((dy >= 0 ? A : B) / dr2 + center.x, (C - dx * D) / dr2 + center.y, center.z);
  p2 = ZGeoPoint((dy >= 0 ? B : A) / dr2 + center.x, (-dx * D - C) / dr2 + center.y, center.z);
  return disc != 0 ? 2 : 1;
}

int ZGeoCircle::GetIntersectionWithLineSegment(ZGeoLine const& l, ZGeoPoint& p1, ZGeoPoint& p2) const {
  const ZGeoPoint d = l.Direction();
  const float length = l.Length();
  auto parameter = [&](ZGeoPoint const& p) { return (p - l.start).Dot(d); };
  int n = GetIntersectionWithLine(l, p1, p2);
  if (n == 2) {
    const float t = parameter(p2);
    if (t < 0 || t > length) n = 1;
  }
  if (n < 1) return n;
  const float t = parameter(p1);
  if (t >= 0 && t <= length) return n;
  if (n == 2) p1 = p2;
  return n - 1;
}
