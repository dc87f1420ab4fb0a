#pragma once
// ZDbEnEllipticalArc: the handle on an elliptical arc of the graphics
// database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_ellipse.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnEllipticalArc : public ZDbEntity {
 public:
  // The handle on an existing elliptical arc; the key is not checked.
  ZDbEnEllipticalArc(long long id = -1) : ZDbEntity(id, kEntityEllipticalArc, "") {}

  static ZString GetTypeName() { return "elliptical arc"; }

  // Centre, axis points, start and end from the library; the default
  // ellipse on an invalid handle.
  ZGeoEllipse GetEllipticalArc() const;

 private:
  friend class ZDbEnSegment;
  // Inserts the arc of `ellipse` from its start to its end fraction into
  // `parent`; an invalid `parent` gives an invalid handle and no graphics
  // call.
  ZDbEnEllipticalArc(ZDbEnSegment const& parent, ZGeoEllipse const& ellipse);
};
