#pragma once
// ZGeoRect: an axis-aligned rectangle in x and y, named for the screen:
// `top` is the smaller y and `bottom` the larger. Every setter keeps
// left <= right and top <= bottom. Points given to it have their z ignored,
// except where an operation says otherwise.
#include "sceneward/geometry/zgeo_point.h"

class ZGeoRect {
 public:
  ZGeoRect() = default;
  // Each pair of coordinates sorted.
  ZGeoRect(float x1, float y1, float x2, float y2) { Set(x1, y1, x2, y2); }
  ZGeoRect(ZGeoPoint const& a, ZGeoPoint const& b) { Set(a, b); }
  // Centred on `center`, with the magnitudes of `w` and `h`.
  ZGeoRect(ZGeoPoint const& center, float w, float h) { Set(center, w, h); }
  void Set(float x1, float y1, float x2, float y2);
  void Set(ZGeoPoint const& a, ZGeoPoint const& b) { Set(a.x, a.y, b.x, b.y); }
  void Set(ZGeoPoint const& center, float w, float h);

  float GetLeft() const { return left_; }
  float GetTop() const { return top_; }
  float GetRight() const { return right_; }
  float GetBottom() const { return bottom_; }
  // A side set beyond the opposite side swaps the two.
  void SetLeft(float v);
  void SetTop(float v);
  void SetRight(float v);
  void SetBottom(float v);

  // Corners with z = 0.
  ZGeoPoint GetTopLeft() const { return ZGeoPoint(left_, top_, 0); }
  ZGeoPoint GetTopRight() const { return ZGeoPoint(right_, top_, 0); }
  ZGeoPoint GetBottomRight() const { return ZGeoPoint(right_, bottom_, 0); }
  ZGeoPoint GetBottomLeft() const { return ZGeoPoint(left_, bottom_, 0); }
  // The two side setters the name says, with the point's x and y.
  void SetTopLeft(ZGeoPoint const& p);
  void SetTopRight(ZGeoPoint const& p);
  void SetBottomRight(ZGeoPoint const& p);
  void SetBottomLeft(ZGeoPoint const& p);

  float GetWidth() const { return right_ - left_; }
  float GetHeight() const { return bottom_ - top_; }
  // The centre, with z = 0.
  ZGeoPoint GetCenter() const;
  // Shifts by delta's x and y.
  void Move(ZGeoPoint const& delta);
  void ExpandToInclude(ZGeoPoint const& p);
  void ExpandToInclude(ZGeoRect const& o);

  // Inclusive of the edges.
  bool ContainsPoint(ZGeoPoint const& p) const;
  bool ContainsRect(ZGeoRect const& o) const;
  // Whether `o` contains this rectangle or one of `o`'s corners lies in this
  // one. Only corners are looked at: two rectangles crossing like a plus
  // sign don't intersect by this test.
  bool IntersectsRect(ZGeoRect const& o) const;
  // With `onBorder` and `p` inside, the nearest point of the border (ties go
  // to the bottom, then top); otherwise `p` clamped into the rectangle. The
  // result has z = 0.
  ZGeoPoint ClosestPointOnRect(ZGeoPoint const& p, bool onBorder) const;
  // The squared distance from `p` to its clamped point, z included. A point
  // inside in x and y gives 0 without `measureInside`, and p.z squared with
  // it.
  float DistanceToPoint2(ZGeoPoint const& p, bool measureInside) const;
  float DistanceToPoint(ZGeoPoint const& p, bool measureInside) const;
  // The corners (left, top) and (right, bottom) equal at `ulps` units in
  // the last place.
  bool Equals(ZGeoRect const& o, int ulps) const;

 private:
  float left_ = 0;
  float top_ = 0;
  float right_ = 0;
  float bottom_ = 0;
};
