#pragma once
// ZDbEnCircularChord: the handle on a circular chord of the graphics
// database, the arc closed by its chord.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnCircularChord : public ZDbEntity {
 public:
  // The handle on an existing circular chord; the key is not checked.
  ZDbEnCircularChord(long long id = -1) : ZDbEntity(id, kEntityCircularChord, "") {}

  static ZString GetTypeName() { return "circular chord"; }

 private:
  friend class ZDbEnSegment;
  // Inserts the chord over the three points of `circle` into `parent`; an
  // invalid `parent` gives an invalid handle and no graphics call.
  ZDbEnCircularChord(ZDbEnSegment const& parent, ZGeoCircle const& circle);
};
