#pragma once
// ZDbEnCircle: the handle on a whole circle of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnCircle : public ZDbEntity {
 public:
  // The handle on an existing circle; the key is not checked.
  ZDbEnCircle(long long id = -1) : ZDbEntity(id, kEntityCircle, "") {}

  static ZString GetTypeName() { return "circle"; }

  // The complete circle through the three points that the library keeps;
  // the default circle on an invalid handle.
  ZGeoCircle GetCircle() const;

 private:
  friend class ZDbEnSegment;
  // Inserts the circle through the three points of `circle` into `parent`;
  // an invalid `parent` gives an invalid handle and no graphics call.
  ZDbEnCircle(ZDbEnSegment const& parent, ZGeoCircle const& circle);
};
