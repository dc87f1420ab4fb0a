#pragma once
// The path grammar of open, create, delete and show calls: an optional
// leading "/" (absolute), then components separated by "/": a name, "." (this
// segment), ".." or "^" (the owner), or "@" and hex digits (the segment of
// that key). Names hold letters, digits, blanks and # + - $ _ .; anything else
// goes inside quotes. Blanks around components are ignored; case is folded.
// Wildcards and lists are refused here: these calls name one segment.
#include <string>
#include <string_view>
#include <vector>

#include "errors/error.h"

namespace graphics {

struct PathComponent {
  enum class Kind { kName, kSelf, kOwner, kKey };

  Kind kind;
  std::string name;  // kName: stored form
  long long key = 0;  // kKey
};

struct SegmentPath {
  bool absolute = false;
  std::vector<PathComponent> components;
};

// Whether `c` may stand in a name outside quotes.
bool IsPlainNameChar(char c);

// Splits at "/" outside quotes; every quote in `text` must close.
std::vector<std::string_view> SplitComponents(std::string_view text);

// One component of `path` (blanks around it allowed): a name, ".", ".." or
// "^", or a key reference. Wildcards, lists and "..." are errors.
Result<PathComponent> ParseComponent(std::string_view path, std::string_view raw);

// `text` must be alias-free (see AliasTable::Expand) and not blank.
Result<SegmentPath> ParseSegmentPath(std::string_view text);

// A name as paths show it: bare when it reads back as the same name, else in
// single quotes.
std::string DisplayName(std::string_view stored_name);

// "@" and the key as 16 upper-case hex digits: how paths show anonymous
// segments, and a component ParseSegmentPath reads back.
std::string KeyReference(long long key);

}  // namespace graphics
