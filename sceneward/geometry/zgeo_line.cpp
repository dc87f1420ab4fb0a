#include "sceneward/geometry/zgeo_line.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr int kUlps = ZGeoPoint::kDefaultUlps;
constexpr float kDirectionTolerance = ZGeoPoint::kDefaultDirectionTolerance;

bool IsEndOf(ZGeoLine const& l, ZGeoPoint const& p) { return p.Equals(l.start, kUlps) || p.Equals(l.end, kUlps); }

// The unit direction of the ray along `l` that leaves from whichever end
// `from` is.
ZGeoPoint RayFrom(ZGeoLine const& l, ZGeoPoint const& from) {
  return from.Equals(l.start, kUlps) ? l.Direction() : (l.start - l.end).Direction();
}

}  // namespace

void ZGeoLine::ClearZCoord() {
  start.z = 0;
  end.z = 0;
}

bool ZGeoLine::operator==(ZGeoLine const& o) const { return start.Equals(o.start, kUlps) && end.Equals(o.end, kUlps); }

bool ZGeoLine::IsCoPlanarWith(ZGeoLine const& o) const {
  const ZGeoPoint v = Delta();
  return v.Cross(o.start - start).IsParallelTo(v.Cross(o.end - start), kDirectionTolerance);
}

bool ZGeoLine::IsColinearWith(ZGeoPoint const& p, int ulps) const { return ClosestPointOnLine(p).Equals(p, ulps); }

ZGeoPoint ZGeoLine::ClosestPointOnLine(ZGeoPoint const& p) const {
  const ZGeoPoint d = Direction();
  return start + d * (p - start).Dot(d);
}

ZGeoPoint ZGeoLine::SegmentClosestPointOnLine(ZGeoPoint const& p) const {
  const ZGeoPoint d = Direction();
  const float length = Length();
  float t = (p - start).Dot(d);
  // Written so that a NaN parameter also ends up at the start.
  if (!(std::min(t, length) >= 0)) {
    t = 0;
  } else if (t >= length) {
    t = length;
  }
  return start + d * t;
}

void ZGeoLine::ClosestPointToLine(ZGeoLine const& o, ZGeoPoint& onThis, ZGeoPoint& onOther) const {
  if (IsParallelTo(o, kDirectionTolerance)) {
    onThis = start;
  } else {
    const ZGeoPoint d1 = Direction();
    const ZGeoPoint n = d1.Cross(o.Direction()).Direction();
    // In the plane spanned by d1 and q, the other line projected along n
    // crosses this one where its q coordinate is zero.
    const ZGeoPoint q = d1.Cross(n).Direction();
    const ZGeoPoint a = o.start - start;
    const ZGeoPoint b = o.end - start;
    const float qa = a.Dot(q), qb = b.Dot(q);
    const float ra = a.Dot(d1), rb = b.Dot(d1);
    const float t = rb - qb / (qb - qa) * (rb - ra);
    onThis = start + d1 * t;
  }
  onOther = o.ClosestPointOnLine(onThis);
}

void ZGeoLine::SegmentClosestPointToSegment(ZGeoLine const& o, ZGeoPoint& onThis, ZGeoPoint& onOther) const {
  if (IsParallelTo(o, kDirectionTolerance)) {
    const ZGeoPoint d = Direction();
    const float length = Length();
    const float t1 = (o.start - start).Dot(d);
    const float t2 = (o.end - start).Dot(d);
    if (t1 >= 0 && t1 <= length) {
      onOther = o.start;
    } else if (t2 >= 0 && t2 <= length) {
      onOther = o.end;
    } else {
      // Neither end of `o` lies over this segment.
      onThis = t1 >= 0 ? end : start;
      onOther = o.SegmentClosestPointOnLine(onThis);
      return;
    }
    onThis = SegmentClosestPointOnLine(onOther);
    return;
  }
  ZGeoPoint c1, c2;
  ClosestPointToLine(o, c1, c2);
  onThis = SegmentClosestPointOnLine(c1);
  onOther = o.SegmentClosestPointOnLine(onThis.Equals(c1, kUlps) ? c2 : onThis);
  if (!onOther.Equals(c2, kUlps)) onThis = SegmentClosestPointOnLine(onOther);
}

bool ZGeoLine::FindIntersection(ZGeoLine const& o, ZGeoPoint& out, float tol) const {
  ZGeoPoint a, b;
  ClosestPointToLine(o, a, b);
  // Written so that a NaN gap, which a degenerate line gives, is no
  // intersection either.
  if (!((b - a).Length2() <= tol * tol)) return false;
  out = (a + b) * 0.5f;
  return true;
}

float ZGeoLine::AngleToLine(ZGeoLine const& o) const {
  const float a = std::fabs(Direction().AngleTo(o.Direction()));
  if (a > std::numbers::pi_v<float> / 2) return static_cast<float>(std::numbers::pi - a);
  return a;
}

float ZGeoLine::AngleToLineSegment(ZGeoLine const& o) const {
  ZGeoPoint c1, c2;
  SegmentClosestPointToSegment(o, c1, c2);
  if (!IsEndOf(*this, c1) || !IsEndOf(o, c2)) return AngleToLine(o);
  return std::fabs(RayFrom(*this, c1).AngleTo(RayFrom(o, c2)));
}
