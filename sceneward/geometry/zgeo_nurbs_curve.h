#pragma once
// ZGeoNURBSCurve: the record of a NURBS curve as the graphics library takes
// it. No checks: the vectors are stored as given.
#include <vector>

#include "sceneward/geometry/zgeo_point.h"

class ZGeoNURBSCurve {
 public:
  // Degree 1, no points, weights or knots.
  ZGeoNURBSCurve() = default;
  ZGeoNURBSCurve(int degree, std::vector<ZGeoPoint> const& points, std::vector<float> const& weights,
                 std::vector<float> const& knots)
      : degree_(degree), controlPoints_(points), weights_(weights), knots_(knots) {}

  int GetDegree() const { return degree_; }
  void SetDegree(int degree) { degree_ = degree; }
  std::vector<ZGeoPoint> const& GetControlPoints() const { return controlPoints_; }
  std::vector<float> const& GetWeights() const { return weights_; }
  std::vector<float> const& GetKnots() const { return knots_; }

 private:
  int degree_ = 1;
  std::vector<ZGeoPoint> controlPoints_;
  std::vector<float> weights_;
  std::vector<float> knots_;
};
