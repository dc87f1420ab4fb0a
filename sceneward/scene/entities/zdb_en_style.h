#pragma once
// ZDbEnStyle: the handle on a style, a link through which the segment that
// holds it takes the attributes of another segment.
#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_en_segment.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnStyle : public ZDbEntity {
 public:
  // The handle on an existing style; the key is not checked.
  ZDbEnStyle(long long id = -1) : ZDbEntity(id, kEntityStyle, "") {}

  static ZString GetTypeName() { return "style"; }

  // The style segment; an invalid segment on an invalid handle.
  ZDbEnSegment GetStyleSegment() const;
  // The style's condition as the library writes it ("" when it has none);
  // "" on an invalid handle.
  ZString GetCondition() const;

  // Deletes the styles held directly by `segment`, in search order. The
  // segment's own attributes and the styles of its subsegments stay.
  // Nothing on an invalid segment.
  static void RemoveStylesFromSegment(ZDbEnSegment const& segment);

 private:
  friend class ZDbEnSegment;
  // Styles `parent` with `target`, conditionally when `condition` isn't
  // empty. An invalid `parent` or `target` gives an invalid handle and no
  // graphics call.
  ZDbEnStyle(ZDbEnSegment const& parent, ZDbEnSegment const& target, ZString const& condition);
};
