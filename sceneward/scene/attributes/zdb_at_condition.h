#pragma once
// ZDbAtCondition, the handle of a segment's conditions. Conditions are added
// one text at a time and removed; there is no read.
#include "sceneward/scene/attributes/zdb_attribute.h"

class ZDbAtCondition : public ZDbAttribute {
 public:
  explicit ZDbAtCondition(ZDbEnSegment const& segment);

  // Adds the conditions of `conditions`; nothing if empty.
  void SetOne(ZString const& conditions);
  // Removes every local condition; nothing if none is set locally.
  void UnSet();
  // Removes the condition `name`; nothing if no condition is set locally or
  // `name` is empty.
  void UnSetOne(ZString const& name);
};
