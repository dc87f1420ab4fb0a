#pragma once
// ZDbEnCircularArc: the handle on a circular arc of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnCircularArc : public ZDbEntity {
 public:
  // The handle on an existing circular arc; the key is not checked.
  ZDbEnCircularArc(long long id = -1) : ZDbEntity(id, kEntityCircularArc, "") {}

  static ZString GetTypeName() { return "circular arc"; }

  // The arc (not a complete circle) through its start, middle and end
  // point, read in double precision where the arc was stored so; the
  // default circle on an invalid handle.
  ZGeoCircle GetCircularArc() const;

 private:
  friend class ZDbEnSegment;
  // Inserts the arc through the three points of `circle` into `parent`; an
  // invalid `parent` gives an invalid handle and no graphics call.
  ZDbEnCircularArc(ZDbEnSegment const& parent, ZGeoCircle const& circle);
};
