#include "sceneward/geometry/zgeo_rect.h"

#include <algorithm>
#include <cmath>

#include "sceneward/geometry/extent_sides.h"

using sceneward::geometry::Include;
using sceneward::geometry::SetCentered;
using sceneward::geometry::SetHighSide;
using sceneward::geometry::SetLowSide;
using sceneward::geometry::SetSorted;

namespace {

bool Within(float v, float low, float high) { return low <= v && v <= high; }

}  // namespace

void ZGeoRect::Set(float x1, float y1, float x2, float y2) {
  SetSorted(left_, right_, x1, x2);
  SetSorted(top_, bottom_, y1, y2);
}

void ZGeoRect::Set(ZGeoPoint const& center, float w, float h) {
  SetCentered(left_, right_, center.x, w);
  SetCentered(top_, bottom_, center.y, h);
}

void ZGeoRect::SetLeft(float v) { SetLowSide(left_, right_, v); }
void ZGeoRect::SetTop(float v) { SetLowSide(top_, bottom_, v); }
void ZGeoRect::SetRight(float v) { SetHighSide(left_, right_, v); }
void ZGeoRect::SetBottom(float v) { SetHighSide(top_, bottom_, v); }

void ZGeoRect::SetTopLeft(ZGeoPoint const& p) {
  SetTop(p.y);
  SetLeft(p.x);
}

void ZGeoRect::SetTopRight(ZGeoPoint const& p) {
  SetTop(p.y);
  SetRight(p.x);
}

void ZGeoRect::SetBottomRight(ZGeoPoint const& p) {
  SetBottom(p.y);
  SetRight(p.x);
}

void ZGeoRect::SetBottomLeft(ZGeoPoint const& p) {
  SetBottom(p.y);
  SetLeft(p.x);
}

ZGeoPoint ZGeoRect::GetCenter() const {
  return ZGeoPoint((right_ - left_) * 0.5f + left_, (bottom_ - top_) * 0.5f + top_, 0);
}

void ZGeoRect::Move(ZGeoPoint const& delta) {
  left_ += delta.x;
  right_ += delta.x;
  top_ += delta.y;
  bottom_ += delta.y;
}

void ZGeoRect::ExpandToInclude(ZGeoPoint const& p) {
  Include(left_, right_, p.x);
  Include(top_, bottom_, p.y);
}

void ZGeoRect::ExpandToInclude(ZGeoRect const& o) {
  ExpandToInclude(o.GetTopLeft());
  ExpandToInclude(o.GetBottomRight());
}

bool ZGeoRect::ContainsPoint(ZGeoPoint const& p) const {
  return Within(p.x, left_, right_) && Within(p.y, top_, bottom_);
}

bool ZGeoRect::ContainsRect(ZGeoRect const& o) const {
  return ContainsPoint(o.GetTopLeft()) && ContainsPoint(o.GetBottomRight());
}

bool ZGeoRect::IntersectsRect(ZGeoRect const& o) const {
  if (o.ContainsRect(*this)) return true;
  const bool leftIn = Within(o.left_, left_, right_);
  const bool rightIn = Within(o.right_, left_, right_);
  if ((leftIn || rightIn) && Within(o.top_, top_, bottom_)) return true;
  return (leftIn || rightIn) && Within(o.bottom_, top_, bottom_);
}

ZGeoPoint ZGeoRect::ClosestPointOnRect(ZGeoPoint const& p, bool onBorder) const {
  if (onBorder && ContainsPoint(p)) {
    const float dl = p.x - left_, dr = right_ - p.x, dt = p.y - top_, db = bottom_ - p.y;
    if (dl < dr && dl < dt && dl < db) return ZGeoPoint(left_, p.y, 0);
    if (dr < dt && dr < db) return ZGeoPoint(right_, p.y, 0);
    return dt >= db ? ZGeoPoint(p.x, bottom_, 0) : ZGeoPoint(p.x, top_, 0);
  }
  const float x = !(p.x > left_) ? left_ : std::min(right_, p.x);
  const float y = !(p.y > top_) ? top_ : (p.y >= bottom_ ? bottom_ : p.y);
  return ZGeoPoint(x, y, 0);
}

float ZGeoRect::DistanceToPoint2(ZGeoPoint const& p, bool measureInside) const {
  if (!measureInside && ContainsPoint(p)) return 0;
  return (p - ClosestPointOnRect(p, false)).Length2();
}

float ZGeoRect::DistanceToPoint(ZGeoPoint const& p, bool measureInside) const {
  return std::sqrt(DistanceToPoint2(p, measureInside));
}

bool ZGeoRect::Equals(ZGeoRect const& o, int ulps) const {
  return GetTopLeft().Equals(o.GetTopLeft(), ulps) && GetBottomRight().Equals(o.GetBottomRight(), ulps);
}
