#include "sceneward/scene/entities/zdb_en_nurbs_curve.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnNURBSCurve::ZDbEnNURBSCurve(ZDbEnSegment const& parent, ZGeoNURBSCurve const& curve)
    : ZDbEnNURBSCurve(-1) {
  InsertIntoSegment(parent, [&] {
    // An empty list goes as null, whatever its data() would be: null asks
    // the library for its default weights or knots.
    std::vector<ZGeoPoint> const& points = curve.GetControlPoints();
    std::vector<float> const& weights = curve.GetWeights();
    std::vector<float> const& knots = curve.GetKnots();
    SetID(CurrentManager()->HC_Insert_NURBS_Curve(
              curve.GetDegree(), static_cast<int>(points.size()),
              points.empty() ? nullptr : points.data(), weights.empty() ? nullptr : weights.data(),
              knots.empty() ? nullptr : knots.data(), 0.0, 1.0),
          "");
  });
}
