#include "sceneward/geometry/zgeo_box.h"


#include "sceneward/geometry/extent_sides.h"

using sceneward::geometry::Include;
using sceneward::geometry::SetCentered;
using sceneward::geometry::SetHighSide;
using sceneward::geometry::SetLowSide;
using sceneward::geometry::SetSorted;

void ZGeoBox::Set(float x1, float y1, float z1, float x2, float y2, float z2) {
  SetSorted(left_, right_, x1, x2);
  SetSorted(top_, bottom_, y1, y2);
  SetSorted(back_, front_, z1, z2);
}

void ZGeoBox::Set(ZGeoPoint const& center, float w, float h, float d) {
  SetCentered(left_, right_, center.x, w);
  SetCentered(top_, bottom_, center.y, h);
  SetCentered(back_, front_, center.z, d);
}

void ZGeoBox::SetLeft(float v) { SetLowSide(left_, right_, v); }
void ZGeoBox::SetRight(float v) { SetHighSide(left_, right_, v); }
void ZGeoBox::SetTop(float v) { SetLowSide(top_, bottom_, v); }
void ZGeoBox::SetBottom(float v) { SetHighSide(top_, bottom_, v); }
void ZGeoBox::SetBack(float v) { SetLowSide(back_, front_, v); }
void ZGeoBox::SetFront(float v) { SetHighSide(back_, front_, v); }

ZGeoPoint ZGeoBox::GetCenter() const {
  return ZGeoPoint((left_ + right_) * 0.5f, (top_ + bottom_) * 0.5f, (back_ + front_) * 0.5f);
}

float ZGeoBox::GetDiagonalLength() const { return ZGeoPoint(GetWidth(), GetHeight(), GetDepth()).Length(); }

void ZGeoBox::ExpandToInclude(ZGeoPoint const& p) {
  Include(left_, right_, p.x);
  Include(top_, bottom_, p.y);
  Include(back_, front_, p.z);
}

void ZGeoBox::ExpandToInclude(ZGeoBox const& o) {
  ExpandToInclude(o.GetBackTopLeft());
  ExpandToInclude(o.GetFrontBottomRight());
}
