// ZString: cutting from either end, and editing in place.
#include <algorithm>
#include <string>

#include "sceneward/foundation/zstring.h"

namespace {

// Replaces every occurrence of `what` in `text`, building the result in one
// pass so that a long text with many matches costs no repeated shifting.
template <typename Unit>
int ReplaceAll(std::basic_string<Unit>& text, const std::basic_string<Unit>& what,
               const std::basic_string<Unit>& with) {
  if (what.empty()) return 0;
  size_t match = text.find(what);
  if (match == std::basic_string<Unit>::npos) return 0;
  std::basic_string<Unit> result;
  size_t copied = 0;
  int count = 0;
  for (; match != std::basic_string<Unit>::npos; match = text.find(what, copied)) {
    result.append(text, copied, match - copied).append(with);
    copied = match + what.size();
    ++count;
  }
  result.append(text, copied);
  text.swap(result);
  return count;
}

}  // namespace

ZString ZString::Left(unsigned n) const { return Mid(0, n); }

ZString ZString::Right(unsigned n) const { return Mid(static_cast<unsigned>(GetLength()) - n); }

int ZString::Delete(unsigned index, int count) {
  const unsigned length = static_cast<unsigned>(GetLength());
  ZString result = Mid(0, index);
  if (count >= 0 && index + static_cast<unsigned>(count) < length) {
    result += Mid(index + static_cast<unsigned>(count));
  }
  *this = result;
  return GetLength();
}

int ZString::Insert(unsigned index, const ZString& s) {
  *this = Mid(0, index) + s + Mid(index);
  return GetLength();
}

int ZString::Replace(const ZString& what, const ZString& with) {
  ForceReferenceIntoCopy();
  if (narrowIsCurrent && !what.IsUnicode() && !with.IsUnicode()) {
    // Copies, since either argument may be this string itself.
    return ReplaceAll(narrowText, std::string(what.GetAsMBCS()), std::string(with.GetAsMBCS()));
  }
  if (narrowIsCurrent) {
    GetAsWChar_T();
    narrowIsCurrent = false;
  }
  return ReplaceAll(wideText, WideString(what.GetAsWChar_T()), WideString(with.GetAsWChar_T()));
}

int ZString::Remove(const ZString& what) { return Replace(what, ""); }

void ZString::MakeReverse() {
  ForceReferenceIntoCopy();
  if (narrowIsCurrent) {
    std::reverse(narrowText.begin(), narrowText.end());
  } else {
    std::reverse(wideText.begin(), wideText.end());
  }
}
