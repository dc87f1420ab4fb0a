#pragma once
// ZDbEnInclude: the handle on an include, a link that draws another segment
// inside the segment that holds it.
#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_en_segment.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnInclude : public ZDbEntity {
 public:
  // The handle on an existing include; the key is not checked.
  ZDbEnInclude(long long id = -1) : ZDbEntity(id, kEntityInclude, "") {}

  static ZString GetTypeName() { return "include"; }

  // The included segment; an invalid segment on an invalid handle.
  ZDbEnSegment GetIncludedSegment() const;
  // The include's condition as the library writes it ("" when it has
  // none); "" on an invalid handle.
  ZString GetCondition() const;

 private:
  friend class ZDbEnSegment;
  // Includes `target` in `parent`, conditionally when `condition` isn't
  // empty. An invalid `parent` or `target` gives an invalid handle and no
  // graphics call.
  ZDbEnInclude(ZDbEnSegment const& parent, ZDbEnSegment const& target, ZString const& condition);
};
