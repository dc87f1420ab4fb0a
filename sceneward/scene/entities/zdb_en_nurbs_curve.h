#pragma once
// ZDbEnNURBSCurve: the handle on a NURBS curve of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_nurbs_curve.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnNURBSCurve : public ZDbEntity {
 public:
  // The handle on an existing NURBS curve; the key is not checked.
  ZDbEnNURBSCurve(long long id = -1) : ZDbEntity(id, kEntityNurbsCurve, "") {}

  static ZString GetTypeName() { return "nurbs curve"; }

 private:
  friend class ZDbEnSegment;
  // Inserts `curve` over the parameter range 0 to 1 into `parent`. Empty
  // weights or knots go to the library as null, which then takes its
  // defaults. An invalid `parent` gives an invalid handle and no graphics
  // call.
  ZDbEnNURBSCurve(ZDbEnSegment const& parent, ZGeoNURBSCurve const& curve);
};
