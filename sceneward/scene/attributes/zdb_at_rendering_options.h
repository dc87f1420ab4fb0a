#pragma once
// ZDbAtRenderingOptions, the handle of a segment's rendering options. The
// option texts go through unchanged, except for the list of locked
// attributes behind "attribute lock", which the graphics library can only
// replace as a whole and which this handle edits item by item.
#include "sceneward/scene/attributes/zdb_attribute.h"

class ZDbAtRenderingOptions : public ZDbAttribute {
 public:
  explicit ZDbAtRenderingOptions(ZDbEnSegment const& segment);

  // Merges `options` into the segment's rendering options; nothing if empty.
  void Set(ZString const& options);
  // The local rendering options; "" if none is set locally.
  ZString Get() const;
  // Removes the option `name`; nothing if no rendering option is set
  // locally. There is no removal of the whole attribute.
  void UnSetOne(ZString const& name);
  // The local value of the option `name`; "" if none is set locally.
  ZString GetOne(ZString const& name) const;
  // The value of the option `name` in force on the segment, inherited or
  // not.
  ZString GetOneNet(ZString const& name) const;

  // Sets "attribute lock=" followed by `name`, even an empty one, leaving
  // the merge with the locks already set to the graphics library.
  void SetOneAttributeLock(ZString const& name);
  // Removes every item equal to `name`, ignoring case but not blanks, from
  // the comma-separated list of locks. A single lock is compared as a whole
  // and the option removed if it matches. A list of two or more is written
  // back in its order, as "attribute lock=()" if nothing is left. Without
  // any lock the option is removed all the same. Nothing for key -1.
  void UnSetOneAttributeLock(ZString const& name);
  // UnSetOne("attribute lock").
  void UnSetAttributeLock();
};
