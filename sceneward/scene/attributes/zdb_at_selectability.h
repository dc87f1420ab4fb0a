#pragma once
// ZDbAtSelectability, the handle of a segment's selectability: option texts
// handed through unchanged, and saved and restored as one text.
#include "sceneward/scene/attributes/zdb_attribute.h"

class ZDbAtSelectability : public ZDbAttribute {
 public:
  explicit ZDbAtSelectability(ZDbEnSegment const& segment);

  // Merges `options` into the segment's selectability; nothing if empty.
  void Set(ZString const& options);
  // Removes the local selectability; nothing if none is set locally.
  void UnSet();
  // The local selectability; "" if none is set locally.
  ZString Get() const;

  // Get(): "" stands for "no local selectability".
  ZString SaveToString() const;
  // Puts back what SaveToString gave: removes the local selectability and
  // sets `saved` unless it is empty.
  void RestoreFromString(ZString const& saved);
};
