#pragma once
// ZDbEnPolyline: the handle on a polyline of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/geometry/zgeo_polyline.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnPolyline : public ZDbEntity {
 public:
  // The handle on an existing polyline; the key is not checked.
  ZDbEnPolyline(long long id = -1) : ZDbEntity(id, kEntityPolyline, "") {}

  static ZString GetTypeName() { return "polyline"; }

  // The library's point count, asked even on an invalid handle (the
  // library then reports the error and the result is 0).
  int GetNumberOfPoints() const;
  // Replaces the points of `polyline` with the polyline's own. Nothing on
  // an invalid handle.
  void GetPolyline(ZGeoPolyline& polyline) const;
  // The line from point `index` to point `index + 1`; all zeros on an
  // invalid handle. The library answers for an index out of range.
  ZGeoLine GetPolylineSegment(int index) const;

 private:
  friend class ZDbEnSegment;
  // Inserts the polyline through the points of `polyline` into `parent`; an
  // invalid `parent` gives an invalid handle and no graphics call.
  ZDbEnPolyline(ZDbEnSegment const& parent, ZGeoPolyline const& polyline);
};
