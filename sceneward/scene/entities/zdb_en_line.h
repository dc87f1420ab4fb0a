#pragma once
// ZDbEnLine: the handle on a line of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnLine : public ZDbEntity {
 public:
  // The handle on an existing line; the key is not checked.
  ZDbEnLine(long long id = -1) : ZDbEntity(id, kEntityLine, "") {}

  static ZString GetTypeName() { return "line"; }

  // The two end points as the library keeps them; all zeros on an invalid
  // handle.
  ZGeoLine GetLine() const;

 private:
  friend class ZDbEnSegment;
  // Inserts `line` into `parent`; an invalid `parent` gives an invalid
  // handle and no graphics call.
  ZDbEnLine(ZDbEnSegment const& parent, ZGeoLine const& line);
};
