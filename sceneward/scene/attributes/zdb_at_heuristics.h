#pragma once
// ZDbAtHeuristics, the handle of a segment's heuristics: option texts handed
// through unchanged.
#include "sceneward/scene/attributes/zdb_attribute.h"

class ZDbAtHeuristics : public ZDbAttribute {
 public:
  explicit ZDbAtHeuristics(ZDbEnSegment const& segment);

  // Merges `options` into the segment's heuristics; nothing if empty.
  void Set(ZString const& options);
  // Removes the heuristic `name`; nothing if no heuristic is set locally.
  void UnSetOne(ZString const& name);
  // The local heuristics, or the local value of `name`; "" if no heuristic
  // is set locally.
  ZString Get() const;
  ZString GetOne(ZString const& name) const;
};
