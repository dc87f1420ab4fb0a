#pragma once
// ZDbEnEllipse: the handle on a whole ellipse of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_ellipse.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnEllipse : public ZDbEntity {
 public:
  // The handle on an existing ellipse; the key is not checked.
  ZDbEnEllipse(long long id = -1) : ZDbEntity(id, kEntityEllipse, "") {}

  static ZString GetTypeName() { return "ellipse"; }

  // Centre and axis points from the library, always the whole curve (start
  // 0, end 1); the default ellipse on an invalid handle.
  ZGeoEllipse GetEllipse() const;

 private:
  friend class ZDbEnSegment;
  // Inserts the whole ellipse of `ellipse`'s centre and axis points into
  // `parent`; its start and end are not passed. An invalid `parent` gives an
  // invalid handle and no graphics call.
  ZDbEnEllipse(ZDbEnSegment const& parent, ZGeoEllipse const& ellipse);
};
