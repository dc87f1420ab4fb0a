#include "sceneward/geometry/zgeo_ellipse.h"

ZGeoEllipse::ZGeoEllipse(ZGeoCircle const& c) : center(c.GetCenter()) {
  ZGeoPoint unused1, unused2;
  c.GetThreePoints(major, unused1, unused2);
  minor = center + (major - center).Cross(c.GetUpVector()).Direction() * c.GetRadius();
}

ZGeoPlane ZGeoEllipse::GetPlane() const { return ZGeoPlane(center, (major - center).Cross(minor - center)); }

bool ZGeoEllipse::GetAsCircle(ZGeoCircle& out, int ulps) const {
  if (!ZGeoPoint::FloatEquality((major - center).Length(), (minor - center).Length(), ulps)) return false;
  out = ZGeoCircle(major, minor, center - (major - center), true);
  return true;
}
