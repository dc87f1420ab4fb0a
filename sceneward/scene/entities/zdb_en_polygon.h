#pragma once
// ZDbEnPolygon: the handle on a polygon of the graphics database.
#include <vector>

#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_point.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnPolygon : public ZDbEntity {
 public:
  // The handle on an existing polygon; the key is not checked.
  ZDbEnPolygon(long long id = -1) : ZDbEntity(id, kEntityPolygon, "") {}

  static ZString GetTypeName() { return "polygon"; }

  // Writes the polygon's points into the storage of `points`, first raising
  // its capacity to the point count if it is less. The size of `points` is
  // left as it was, so a caller who wants to read the points through the
  // vector sizes it beforehand. Nothing on an invalid handle.
  void Get(std::vector<ZGeoPoint>& points) const;

 private:
  friend class ZDbEnSegment;
  // Inserts the polygon through `points` into `parent`, also when there are
  // none; an invalid `parent` gives an invalid handle and no graphics call.
  ZDbEnPolygon(ZDbEnSegment const& parent, std::vector<ZGeoPoint> const& points);
};
