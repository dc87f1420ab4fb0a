// ZString: taking pieces out of a string.
#include <algorithm>

#include "sceneward/foundation/zstring.h"

ZString ZString::Mid(unsigned start, unsigned count) const {
  ForceReferenceIntoCopy();
  const unsigned length = static_cast<unsigned>(GetLength());
  if (start >= length) return ZString();
  const int taken = static_cast<int>(std::min(length - start, count));
  if (narrowIsCurrent) return ZString(narrowText.data() + start, taken);
  return ZString(wideText.data() + start, taken);
}

ZString ZString::Mid(unsigned start) const {
  return Mid(start, static_cast<unsigned>(GetLength()) - start);
}
