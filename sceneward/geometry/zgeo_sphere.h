#pragma once
// ZGeoSphere: a centre and a radius, stored as given (no check of the sign).
#include "sceneward/geometry/zgeo_point.h"

class ZGeoSphere {
 public:
  ZGeoSphere() = default;
  ZGeoSphere(ZGeoPoint const& center, float radius) : center_(center), radius_(radius) {}

  ZGeoPoint GetCenter() const { return center_; }
  void SetCenter(ZGeoPoint const& c) { center_ = c; }
  float GetRadius() const { return radius_; }
  void SetRadius(float r) { radius_ = r; }
  float GetDiameter() const { return radius_ + radius_; }
  void SetDiameter(float d) { radius_ = d * 0.5f; }
  // The distance from the centre isn't above the radius: the surface counts
  // as inside, and so does a NaN distance.
  bool IsPointInside(ZGeoPoint const& p) const { return !(center_.DistanceTo(p) > radius_); }

 private:
  ZGeoPoint center_;
  float radius_ = 0;
};
