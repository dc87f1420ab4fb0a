#pragma once
// ZDbAtDriverOptions, the handle of a segment's driver options: option texts
// handed through unchanged.
#include "sceneward/scene/attributes/zdb_attribute.h"

class ZDbAtDriverOptions : public ZDbAttribute {
 public:
  explicit ZDbAtDriverOptions(ZDbEnSegment const& segment);

  // Merges `options` into the segment's driver options; nothing if empty.
  void Set(ZString const& options);
  // The local driver options, or the local value of `name`; "" if no driver
  // option is set locally.
  ZString Get() const;
  ZString GetOne(ZString const& name) const;
};
