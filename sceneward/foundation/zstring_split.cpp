// ZString: splitting at delimiters.
#include <cstring>

#include "platform/text_conversion.h"
#include "sceneward/foundation/zstring.h"

void ZString::SplitByChars(const ZString& delims, std::vector<ZString>& out, bool caseSensitive,
                           int start) const {
  SplitInternal(delims, out, SplitMode::kByChars, caseSensitive, start);
}

void ZString::SplitByString(const ZString& delim, std::vector<ZString>& out, bool caseSensitive,
                            int start) const {
  SplitInternal(delim, out, SplitMode::kByString, caseSensitive, start);
}

void ZString::SplitInternal(const ZString& delim, std::vector<ZString>& out, SplitMode mode,
                            bool caseSensitive, int start) const {
  // Matching runs on copies, lowered when case does not count; the pieces
  // are cut from this string, so they keep their case.
  ZString work(*this);
  ZString key(delim);
  if (!caseSensitive) {
    work.MakeLower();
    key.MakeLower();
  }
  // A string delimiter is stepped over by its length in the form the text
  // is searched in.
  int step = 1;
  if (mode == SplitMode::kByString) {
    step = work.IsUnicode() ? static_cast<int>(platform::WideLength(key.GetAsWChar_T()))
                            : static_cast<int>(std::strlen(key.GetAsMBCS()));
  }
  const int length = GetLength();
  int from = start;
  while (true) {
    const int found = mode == SplitMode::kByChars ? work.FindOneOf(key, from)
                      : step > 0                  ? work.Find(key, from)
                                                  : -1;
    if (found < 0) {
      out.push_back(Mid(static_cast<unsigned>(from), static_cast<unsigned>(length - from)));
      return;
    }
    out.push_back(Mid(static_cast<unsigned>(from), static_cast<unsigned>(found - from)));
    from = found + step;
  }
}
