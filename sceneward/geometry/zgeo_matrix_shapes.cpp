// The transforms of the kernel's shapes, kept apart from the matrix proper
// because each needs its shape's class.
#include <cstddef>

#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/geometry/zgeo_hole.h"
#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/geometry/zgeo_matrix.h"
#include "sceneward/geometry/zgeo_plane.h"
#include "sceneward/geometry/zgeo_polyline.h"
#include "sceneward/geometry/zgeo_sphere.h"

ZGeoCircle ZGeoMatrix::TransformCircle(ZGeoCircle const& c) const {
  ZGeoPoint a, b, d;
  c.GetThreePoints(a, b, d);
  ZGeoCircle result;
  result.SetFromThreePoints(TransformPoint(a), TransformPoint(b), TransformPoint(d), c.IsCompleteCircle());
  return result;
}

ZGeoHole ZGeoMatrix::TransformHole(ZGeoHole const& h) const {
  const ZGeoLine axis = TransformLine(h.GetAxis());
  return ZGeoHole(axis.GetStart(), axis.GetEnd(), TransformDistance(h.GetDiameter() * 0.5f) * 2.0f);
}

ZGeoLine ZGeoMatrix::TransformLine(ZGeoLine const& l) const {
  return ZGeoLine(TransformPoint(l.GetStart()), TransformPoint(l.GetEnd()));
}

ZGeoPlane ZGeoMatrix::TransformPlane(ZGeoPlane const& p) const {
  ZGeoPoint normal = TransformDirection(p.GetNormalVec());
  normal.Normalize();
  ZGeoPlane result;
  result.SetOrigin(TransformPoint(p.GetOrigin()));
  result.SetNormalVec(normal);
  return result;
}

ZGeoPolyline ZGeoMatrix::TransformPolyline(ZGeoPolyline const& p) const {
  ZGeoPolyline result;
  result.SetNumberOfPoints(static_cast<int>(p.GetNumberOfPoints()));
  ZGeoPoint const* in = p.GetPointBuffer();
  ZGeoPoint* out = result.GetPointBuffer();
  for (std::size_t i = 0; i < p.GetNumberOfPoints(); ++i) out[i] = TransformPoint(in[i]);
  return result;
}

ZGeoSphere ZGeoMatrix::TransformSphere(ZGeoSphere const& s) const {
  return ZGeoSphere(TransformPoint(s.GetCenter()), TransformDistance(s.GetRadius()));
}
