#pragma once
// ZDbEnCircularWedge: the handle on a circular wedge of the graphics
// database, the arc closed through its centre.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnCircularWedge : public ZDbEntity {
 public:
  // The handle on an existing circular wedge; the key is not checked.
  ZDbEnCircularWedge(long long id = -1) : ZDbEntity(id, kEntityCircularWedge, "") {}

  static ZString GetTypeName() { return "circular wedge"; }

  // The wedge's arc (not a complete circle) through its three points; the
  // default circle on an invalid handle.
  ZGeoCircle GetCircularWedge() const;

 private:
  friend class ZDbEnSegment;
  // Inserts the wedge over the three points of `circle` into `parent`; an
  // invalid `parent` gives an invalid handle and no graphics call.
  ZDbEnCircularWedge(ZDbEnSegment const& parent, ZGeoCircle const& circle);
};
