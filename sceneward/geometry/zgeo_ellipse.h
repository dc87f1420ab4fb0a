#pragma once
// ZGeoEllipse: an ellipse or elliptic arc by its centre and one absolute
// point on each axis, with the fractions of the curve it covers (0 and 1 for
// the whole ellipse).
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/geometry/zgeo_plane.h"
#include "sceneward/geometry/zgeo_point.h"

class ZGeoEllipse {
 public:
  // Centre zero, major (1, 0, 0), minor (0, 1, 0), the whole curve.
  ZGeoEllipse() = default;
  // The whole circle, even for an arc: major at its first point, minor a
  // quarter turn on, along (major - centre) x up.
  explicit ZGeoEllipse(ZGeoCircle const& c);
  ZGeoEllipse(ZGeoPoint const& c, ZGeoPoint const& ma, ZGeoPoint const& mi) : center(c), major(ma), minor(mi) {}
  ZGeoEllipse(ZGeoPoint const& c, ZGeoPoint const& ma, ZGeoPoint const& mi, float s, float e)
      : center(c), major(ma), minor(mi), start(s), end(e) {}

  ZGeoPoint GetCenter() const { return center; }
  void SetCenter(ZGeoPoint const& c) { center = c; }
  ZGeoPoint GetMajor() const { return major; }
  void SetMajor(ZGeoPoint const& p) { major = p; }
  ZGeoPoint GetMinor() const { return minor; }
  void SetMinor(ZGeoPoint const& p) { minor = p; }
  float GetStart() const { return start; }
  void SetStart(float s) { start = s; }
  float GetEnd() const { return end; }
  void SetEnd(float e) { end = e; }

  // Start exactly 0 and end exactly 1.
  bool IsCompleteEllipse() const { return start == 0 && end == 1; }
  // Through the centre, normal along (major - centre) x (minor - centre).
  ZGeoPlane GetPlane() const;
  // When the two axis lengths agree within `ulps` units in the last place,
  // the full circle through major, minor and the point opposite major, and
  // true. Otherwise false with `out` untouched.
  bool GetAsCircle(ZGeoCircle& out, int ulps) const;

  ZGeoPoint center;
  ZGeoPoint major{1, 0, 0};
  ZGeoPoint minor{0, 1, 0};
  float start = 0;
  float end = 1;
};
