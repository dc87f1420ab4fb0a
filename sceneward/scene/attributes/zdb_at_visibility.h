#pragma once
// ZDbAtVisibility, the handle of a segment's visibility: option texts handed
// through unchanged.
#include "sceneward/scene/attributes/zdb_attribute.h"

class ZDbAtVisibility : public ZDbAttribute {
 public:
  explicit ZDbAtVisibility(ZDbEnSegment const& segment);

  // Merges `options` into the segment's visibility; nothing if empty.
  void Set(ZString const& options);
  // Removes the local visibility, or its option `name`; nothing if no
  // visibility is set locally.
  void UnSet();
  void UnSetOne(ZString const& name) const;
  // The local visibility, or the local value of `name`; "" if no visibility
  // is set locally.
  ZString Get() const;
  ZString GetOne(ZString const& name) const;
  // The value of `name` in force on the segment, inherited or not.
  ZString GetOneNet(ZString const& name) const;
};
