// The Insert... family of ZDbEnSegment: each hands the work to the insert
// constructor of the class it makes, which brackets its one library call.
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/geometry/zgeo_ellipse.h"
#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/geometry/zgeo_nurbs_curve.h"
#include "sceneward/geometry/zgeo_point.h"
#include "sceneward/geometry/zgeo_polyline.h"
#include "sceneward/geometry/zgeo_rect.h"
#include "sceneward/scene/entities/zdb_en_circle.h"
#include "sceneward/scene/entities/zdb_en_circular_arc.h"
#include "sceneward/scene/entities/zdb_en_circular_chord.h"
#include "sceneward/scene/entities/zdb_en_circular_wedge.h"
#include "sceneward/scene/entities/zdb_en_ellipse.h"
#include "sceneward/scene/entities/zdb_en_elliptical_arc.h"
#include "sceneward/scene/entities/zdb_en_include.h"
#include "sceneward/scene/entities/zdb_en_line.h"
#include "sceneward/scene/entities/zdb_en_marker.h"
#include "sceneward/scene/entities/zdb_en_nurbs_curve.h"
#include "sceneward/scene/entities/zdb_en_poly_cylinder.h"
#include "sceneward/scene/entities/zdb_en_polygon.h"
#include "sceneward/scene/entities/zdb_en_polyline.h"
#include "sceneward/scene/entities/zdb_en_segment.h"
#include "sceneward/scene/entities/zdb_en_shell.h"
#include "sceneward/scene/entities/zdb_en_style.h"
#include "sceneward/scene/entities/zdb_en_text.h"

ZDbEnCircle ZDbEnSegment::InsertCircle(ZGeoCircle const& circle) const {
  return ZDbEnCircle(*this, circle);
}

ZDbEnEllipticalArc ZDbEnSegment::InsertCircleAsArcs(ZGeoCircle const& circle) const {
  return ZDbEnEllipticalArc(*this, ZGeoEllipse(circle));
}

ZDbEnCircularArc ZDbEnSegment::InsertCircularArc(ZGeoCircle const& circle) const {
  return ZDbEnCircularArc(*this, circle);
}

ZDbEnCircularChord ZDbEnSegment::InsertCircularChord(ZGeoCircle const& circle) const {
  return ZDbEnCircularChord(*this, circle);
}

ZDbEnCircularWedge ZDbEnSegment::InsertCircularWedge(ZGeoCircle const& circle) const {
  return ZDbEnCircularWedge(*this, circle);
}

ZDbEnEllipse ZDbEnSegment::InsertEllipse(ZGeoEllipse const& ellipse) const {
  return ZDbEnEllipse(*this, ellipse);
}

ZDbEnEllipticalArc ZDbEnSegment::InsertEllipticalArc(ZGeoEllipse const& ellipse) const {
  return ZDbEnEllipticalArc(*this, ellipse);
}

ZDbEnLine ZDbEnSegment::InsertLine(ZGeoLine const& line) const { return ZDbEnLine(*this, line); }

ZDbEnMarker ZDbEnSegment::InsertMarker(ZGeoPoint const& point) const {
  return ZDbEnMarker(*this, point);
}

ZDbEnNURBSCurve ZDbEnSegment::InsertNURBSCurve(ZGeoNURBSCurve const& curve) const {
  return ZDbEnNURBSCurve(*this, curve);
}

ZDbEnPolygon ZDbEnSegment::InsertPolygon(std::vector<ZGeoPoint> const& points) const {
  return ZDbEnPolygon(*this, points);
}

ZDbEnPolyline ZDbEnSegment::InsertPolyline(ZGeoPolyline const& polyline) const {
  return ZDbEnPolyline(*this, polyline);
}

ZDbEnPolyline ZDbEnSegment::InsertRect(ZGeoRect const& rect, float z) const {
  const float left = rect.GetLeft();
  const float top = rect.GetTop();
  const float right = rect.GetRight();
  const float bottom = rect.GetBottom();
  ZGeoPolyline outline;
  for (ZGeoPoint corner :
       {ZGeoPoint(left, top, z), ZGeoPoint(right, top, z), ZGeoPoint(right, bottom, z),
        ZGeoPoint(left, bottom, z), ZGeoPoint(left, top, z)}) {
    outline.AppendPoint(corner);
  }
  return ZDbEnPolyline(*this, outline);
}

ZDbEnPolyCylinder ZDbEnSegment::InsertPolyCylinder(ZGeoPolyline const& polyline,
                                                   std::vector<float> const& radii,
                                                   char const* capping) const {
  return ZDbEnPolyCylinder(*this, polyline, radii, capping);
}

ZDbEnShell ZDbEnSegment::InsertShell(std::vector<ZGeoPoint> const& points,
                                     std::vector<int> const& faces) const {
  return ZDbEnShell(*this, points, faces);
}

ZDbEnShell ZDbEnSegment::InsertShell(float const* points, int pointCount, int const* faces,
                                     int faceListLength) const {
  return ZDbEnShell(*this, points, pointCount, faces, faceListLength);
}

ZDbEnShell ZDbEnSegment::InsertShellAsTriStrips(float const* points, int pointCount,
                                                int const* strips, int stripListLength,
                                                int const* faceIndices, int faceIndexCount) const {
  return ZDbEnShell(*this, points, pointCount, strips, stripListLength, faceIndices,
                    faceIndexCount);
}

ZDbEnText ZDbEnSegment::InsertText(ZString const& text, ZGeoPoint const& position) const {
  return ZDbEnText(*this, text, position);
}

ZDbEnInclude ZDbEnSegment::IncludeSegment(ZDbEnSegment const& target,
                                          ZString const& condition) const {
  return ZDbEnInclude(*this, target, condition);
}

ZDbEnStyle ZDbEnSegment::StyleSegment(ZDbEnSegment const& target, ZString const& condition) const {
  return ZDbEnStyle(*this, target, condition);
}
