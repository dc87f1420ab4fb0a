#pragma once
// ZDbEnText: the handle on a text string at a position of the graphics
// database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_point.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnText : public ZDbEntity {
 public:
  // The handle on an existing text; the key is not checked.
  ZDbEnText(long long id = -1) : ZDbEntity(id, kEntityText, "") {}

  static ZString GetTypeName() { return "text"; }

  // The string; "" on an invalid handle, with no graphics call.
  ZString GetText() const;
  // The reference point; zeros on an invalid handle.
  ZGeoPoint GetPosition() const;

 private:
  friend class ZDbEnSegment;
  // Inserts `text` at `position` into `parent`; an invalid `parent` gives an
  // invalid handle and no graphics call.
  ZDbEnText(ZDbEnSegment const& parent, ZString const& text, ZGeoPoint const& position);
};
