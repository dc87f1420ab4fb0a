#pragma once
// ZGeoBox: an axis-aligned box, its sides named for the screen: `top` is the
// smaller y and `bottom` the larger, `back` the smaller z and `front` the
// larger. Every setter keeps left <= right, top <= bottom, back <= front.
#include "sceneward/geometry/zgeo_point.h"
#include "sceneward/geometry/zgeo_rect.h"

class ZGeoBox {
 public:
  ZGeoBox() = default;
  // Each pair of coordinates sorted.
  ZGeoBox(float x1, float y1, float z1, float x2, float y2, float z2) { Set(x1, y1, z1, x2, y2, z2); }
  ZGeoBox(ZGeoPoint const& a, ZGeoPoint const& b) { Set(a, b); }
  // Centred on `center`, with the magnitudes of the three sizes.
  ZGeoBox(ZGeoPoint const& center, float w, float h, float d) { Set(center, w, h, d); }
  void Set(float x1, float y1, float z1, float x2, float y2, float z2);
  void Set(ZGeoPoint const& a, ZGeoPoint const& b) { Set(a.x, a.y, a.z, b.x, b.y, b.z); }
  void Set(ZGeoPoint const& center, float w, float h, float d);

  float GetLeft() const { return left_; }
  float GetRight() const { return right_; }
  float GetTop() const { return top_; }
  float GetBottom() const { return bottom_; }
  float GetBack() const { return back_; }
  float GetFront() const { return front_; }
  // A side set beyond the opposite side swaps the two.
  void SetLeft(float v);
  void SetRight(float v);
  void SetTop(float v);
  void SetBottom(float v);
  void SetBack(float v);
  void SetFront(float v);

  float GetWidth() const { return right_ - left_; }
  float GetHeight() const { return bottom_ - top_; }
  float GetDepth() const { return front_ - back_; }
  ZGeoPoint GetCenter() const;
  float GetDiagonalLength() const;

  ZGeoPoint GetBackTopLeft() const { return ZGeoPoint(left_, top_, back_); }
  ZGeoPoint GetBackTopRight() const { return ZGeoPoint(right_, top_, back_); }
  ZGeoPoint GetBackBottomLeft() const { return ZGeoPoint(left_, bottom_, back_); }
  ZGeoPoint GetBackBottomRight() const { return ZGeoPoint(right_, bottom_, back_); }
  ZGeoPoint GetFrontTopLeft() const { return ZGeoPoint(left_, top_, front_); }
  ZGeoPoint GetFrontTopRight() const { return ZGeoPoint(right_, top_, front_); }
  ZGeoPoint GetFrontBottomLeft() const { return ZGeoPoint(left_, bottom_, front_); }
  ZGeoPoint GetFrontBottomRight() const { return ZGeoPoint(right_, bottom_, front_); }

  // The faces as rectangles in x and y. The back and front faces are the
  // same rectangle, since a rectangle has no z. The left and right faces
  // keep their x, and so have zero width; the top and bottom faces have zero
  // height.
  ZGeoRect GetBackRect() const { return ZGeoRect(left_, top_, right_, bottom_); }
  ZGeoRect GetFrontRect() const { return GetBackRect(); }
  ZGeoRect GetLeftRect() const { return ZGeoRect(left_, top_, left_, bottom_); }
  ZGeoRect GetRightRect() const { return ZGeoRect(right_, top_, right_, bottom_); }
  ZGeoRect GetTopRect() const { return ZGeoRect(left_, top_, right_, top_); }
  ZGeoRect GetBottomRect() const { return ZGeoRect(left_, bottom_, right_, bottom_); }

  void ExpandToInclude(ZGeoPoint const& p);
  void ExpandToInclude(ZGeoBox const& o);

 private:
  float left_ = 0;
  float right_ = 0;
  float top_ = 0;
  float bottom_ = 0;
  float front_ = 0;
  float back_ = 0;
};
