// ZString: concatenation.
#include "sceneward/foundation/zstring.h"

const ZString& ZString::operator+=(const ZString& other) {
  if (other.IsEmpty()) return *this;
  if (IsEmpty()) {
    CopyFrom(other, -1);
    return *this;
  }
  ForceReferenceIntoCopy();
  if (narrowIsCurrent && other.narrowIsCurrent) {
    narrowText.append(other.GetAsMBCS());
    return *this;
  }
  // Either side wide: the result is wide, so a narrow string first takes
  // its wide view into the wide member.
  GetAsWChar_T();
  wideText.append(other.GetAsWChar_T());
  narrowIsCurrent = false;
  return *this;
}

ZString ZString::operator+(const ZString& other) const {
  ZString result(*this);
  result += other;
  return result;
}
