// ZString: ordering.
#include <algorithm>
#include <cstring>

#include "platform/text_conversion.h"
#include "sceneward/foundation/zstring.h"

namespace {

// The order of two texts that agree over the shorter length.
int ByLength(size_t mine, size_t theirs) {
  if (mine < theirs) return -1;
  return mine > theirs ? 1 : 0;
}

}  // namespace

int ZString::Compare(const ZString& other, bool) const {
  ForceReferenceIntoCopy();
  if (narrowIsCurrent && other.narrowIsCurrent) {
    const char* theirs = other.GetAsMBCS();
    const size_t theirLength = std::strlen(theirs);
    const int bytes = std::memcmp(narrowText.data(), theirs, std::min(narrowText.size(), theirLength));
    if (bytes != 0) return bytes;
    return ByLength(narrowText.size(), theirLength);
  }
  GetAsWChar_T();
  const WideChar* theirs = other.GetAsWChar_T();
  const size_t theirLength = platform::WideLength(theirs);
  const size_t common = std::min(wideText.size(), theirLength);
  const auto difference = std::mismatch(wideText.begin(), wideText.begin() + common, theirs);
  if (difference.first != wideText.begin() + common) return *difference.first < *difference.second ? -1 : 1;
  return ByLength(wideText.size(), theirLength);
}

int ZString::CompareNoCase(const ZString& other, bool) const {
  ZString mine(*this);
  ZString theirs(other);
  mine.MakeLower();
  theirs.MakeLower();
  return mine.Compare(theirs);
}
