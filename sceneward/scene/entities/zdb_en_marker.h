#pragma once
// ZDbEnMarker: the handle on a marker of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_point.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnMarker : public ZDbEntity {
 public:
  // The handle on an existing marker; the key is not checked.
  ZDbEnMarker(long long id = -1) : ZDbEntity(id, kEntityMarker, "") {}

  static ZString GetTypeName() { return "marker"; }

  // The marker's position; all zeros on an invalid handle.
  ZGeoPoint GetPoint() const;

 private:
  friend class ZDbEnSegment;
  // Inserts a marker at `point` into `parent`; an invalid `parent` gives an
  // invalid handle and no graphics call.
  ZDbEnMarker(ZDbEnSegment const& parent, ZGeoPoint const& point);
};
