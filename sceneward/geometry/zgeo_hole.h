#pragma once
// ZGeoHole: a cylinder given by its axis segment and diameter.
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/geometry/zgeo_point.h"

class ZGeoHole {
 public:
  ZGeoHole() = default;
  ZGeoHole(ZGeoPoint const& s, ZGeoPoint const& e, float d) : axisStart(s), axisEnd(e), diameter(d) {}

  ZGeoPoint GetAxisStart() const { return axisStart; }
  void SetAxisStart(ZGeoPoint const& p) { axisStart = p; }
  ZGeoPoint GetAxisEnd() const { return axisEnd; }
  void SetAxisEnd(ZGeoPoint const& p) { axisEnd = p; }
  void SetAxis(ZGeoPoint const& s, ZGeoPoint const& e) {
    axisStart = s;
    axisEnd = e;
  }
  float GetDiameter() const { return diameter; }
  void SetDiameter(float d) { diameter = d; }
  float GetRadius() const { return diameter * 0.5f; }
  void SetRadius(float r) { diameter = r * 2; }

  ZGeoLine GetAxis() const { return ZGeoLine(axisStart, axisEnd); }
  float GetDepth() const { return GetAxis().Length(); }
  // The unit vector from the end towards the start: out of the start face.
  ZGeoPoint GetNormal() const { return (axisStart - axisEnd).Direction(); }
  // The rims; both have GetNormal() as their normal.
  ZGeoCircle GetStartCircle() const { return ZGeoCircle(axisStart, GetNormal(), diameter); }
  ZGeoCircle GetEndCircle() const { return ZGeoCircle(axisEnd, GetNormal(), diameter); }
  // Axis and diameter scaled about the world origin.
  ZGeoHole Scale(float s) const { return ZGeoHole(axisStart * s, axisEnd * s, diameter * s); }
  // The nearest of three candidates: the nearest point of either rim and the
  // nearest point of the axis segment. The barrel itself isn't a candidate.
  ZGeoPoint ClosestPointOnHole(ZGeoPoint const& p) const;

  ZGeoPoint axisStart;
  ZGeoPoint axisEnd;
  float diameter = 0;
};
