// ZString: searching for substrings and for elements of a set.
#include <algorithm>
#include <array>
#include <string>
#include <type_traits>

#include "sceneward/foundation/zstring.h"

namespace {

int Position(size_t index) { return index == std::string::npos ? -1 : static_cast<int>(index); }

// A negative start becomes a position beyond any text.
size_t Index(int start) { return static_cast<size_t>(start); }

// The elements of a search set. Elements below 256 are looked up in a
// table, which covers every narrow set and most wide ones; a wide set with
// a larger unit is scanned element by element instead.
template <typename Unit>
class ElementSet {
 public:
  explicit ElementSet(const Unit* set) : set_(set) {
    for (const Unit* p = set; *p != 0; ++p) {
      const auto value = Value(*p);
      if (value >= table_.size()) {
        tabled_ = false;
        return;
      }
      table_[value] = true;
    }
  }

  bool Contains(Unit element) const {
    const auto value = Value(element);
    if (tabled_) return value < table_.size() && table_[value];
    for (const Unit* p = set_; *p != 0; ++p) {
      if (*p == element) return true;
    }
    return false;
  }

 private:
  static unsigned Value(Unit element) {
    return static_cast<std::make_unsigned_t<Unit>>(element);
  }

  const Unit* set_;
  std::array<bool, 256> table_{};
  bool tabled_ = true;
};

// The first element at or after `start` whose membership in `set` is
// `member`.
template <typename Unit>
int ScanForward(const std::basic_string<Unit>& text, const Unit* set, int start, bool member) {
  const ElementSet<Unit> elements(set);
  for (size_t i = Index(start); i < text.size(); ++i) {
    if (elements.Contains(text[i]) == member) return static_cast<int>(i);
  }
  return -1;
}

// The last such element at or before `start`.
template <typename Unit>
int ScanBackward(const std::basic_string<Unit>& text, const Unit* set, int start, bool member) {
  if (text.empty()) return -1;
  const ElementSet<Unit> elements(set);
  for (size_t i = std::min(Index(start), text.size() - 1) + 1; i-- > 0;) {
    if (elements.Contains(text[i]) == member) return static_cast<int>(i);
  }
  return -1;
}

// The run of `s` from `start` to `end`, or to the end of `s` if `end` is -1.
ZString Span(const ZString& s, int start, int end) {
  if (end >= 0) return s.Mid(static_cast<unsigned>(start), static_cast<unsigned>(end - start));
  return s.Mid(static_cast<unsigned>(start));
}

ZString Lowered(const ZString& s) {
  ZString copy(s);
  copy.MakeLower();
  return copy;
}

}  // namespace

int ZString::Find(const ZString& what, int start) const {
  ForceReferenceIntoCopy();
  if (narrowIsCurrent) return Position(narrowText.find(what.GetAsMBCS(), Index(start)));
  return Position(wideText.find(what.GetAsWChar_T(), Index(start)));
}

int ZString::ReverseFind(const ZString& what, int start) const {
  ForceReferenceIntoCopy();
  if (narrowIsCurrent) return Position(narrowText.rfind(what.GetAsMBCS(), Index(start)));
  return Position(wideText.rfind(what.GetAsWChar_T(), Index(start)));
}

int ZString::FindNoCase(const ZString& what, int start) const {
  return Lowered(*this).Find(Lowered(what), start);
}

int ZString::ReverseFindNoCase(const ZString& what, int start) const {
  return Lowered(*this).ReverseFind(Lowered(what), start);
}

int ZString::FindOneOf(const ZString& set, int start) const {
  ForceReferenceIntoCopy();
  if (narrowIsCurrent) return ScanForward(narrowText, set.GetAsMBCS(), start, true);
  return ScanForward(wideText, set.GetAsWChar_T(), start, true);
}

int ZString::ReverseFindOneOf(const ZString& set, int start) const {
  ForceReferenceIntoCopy();
  if (narrowIsCurrent) return ScanBackward(narrowText, set.GetAsMBCS(), start, true);
  return ScanBackward(wideText, set.GetAsWChar_T(), start, true);
}

int ZString::FindOneNotOf(const ZString& set, int start) const {
  ForceReferenceIntoCopy();
  if (narrowIsCurrent) return ScanForward(narrowText, set.GetAsMBCS(), start, false);
  return ScanForward(wideText, set.GetAsWChar_T(), start, false);
}

int ZString::ReverseFindOneNotOf(const ZString& set, int start) const {
  ForceReferenceIntoCopy();
  if (narrowIsCurrent) return ScanBackward(narrowText, set.GetAsMBCS(), start, false);
  return ScanBackward(wideText, set.GetAsWChar_T(), start, false);
}

ZString ZString::SpanExcluding(const ZString& set, int start) const {
  return Span(*this, start, FindOneOf(set, start));
}

ZString ZString::SpanIncluding(const ZString& set, int start) const {
  return Span(*this, start, FindOneNotOf(set, start));
}
