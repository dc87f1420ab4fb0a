#pragma once
// ZDbEnPolyCylinder: the handle on a poly cylinder of the graphics database,
// a tube along a polyline. Its name here, "polycylinder", differs from the
// type-name table's "poly cylinder"; both are kept.
#include <vector>

#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_polyline.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnPolyCylinder : public ZDbEntity {
 public:
  // The handle on an existing poly cylinder; the key is not checked.
  ZDbEnPolyCylinder(long long id = -1) : ZDbEntity(id, kEntityPolyCylinder, "") {}

  static ZString GetTypeName() { return "polycylinder"; }

 private:
  friend class ZDbEnSegment;
  // Inserts a poly cylinder along `polyline` with `radii` and the library's
  // `capping` text into `parent`, but doesn't take its key: the object
  // exists in the database while the handle stays invalid. An invalid
  // `parent` gives no graphics call either.
  ZDbEnPolyCylinder(ZDbEnSegment const& parent, ZGeoPolyline const& polyline,
                    std::vector<float> const& radii, char const* capping);
};
