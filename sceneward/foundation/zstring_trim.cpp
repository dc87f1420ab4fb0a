// ZString: trimming a set of elements off either end.
#include "sceneward/foundation/zstring.h"

ZString& ZString::Trim(const ZString& set) {
  TrimLeft(set);
  return TrimRight(set);
}

ZString& ZString::TrimLeft(const ZString& set) {
  const int first = FindOneNotOf(set, 0);
  if (first > 0) {
    *this = Mid(static_cast<unsigned>(first));
  } else if (first < 0) {
    Empty();
  }
  return *this;
}

ZString& ZString::TrimRight(const ZString& set) {
  const int last = ReverseFindOneNotOf(set, -1);
  if (last >= 0) {
    *this = Mid(0, static_cast<unsigned>(last) + 1);
  } else {
    Empty();
  }
  return *this;
}
