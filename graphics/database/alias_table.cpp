#include "database/alias_table.h"

#include <algorithm>

#include "database/predefined.h"
#include "strings/quoting.h"
#include "strings/text.h"

namespace graphics {

namespace {

// An expansion may name another alias; a cycle must end somewhere.
constexpr int kMaxExpansions = 16;

}  // namespace

AliasTable::AliasTable()
    : aliases_{{"?picture", std::string(kPicturePath)},
               {"?include library", std::string(kIncludeLibraryPath)},
               {"?style library", std::string(kStyleLibraryPath)}} {}

Result<std::string> AliasTable::Expand(std::string_view path) const {
  std::string expanded(TrimBlanks(path));
  for (int round = 0; round < kMaxExpansions; ++round) {
    if (expanded.empty() || expanded.front() != '?') return expanded;
    size_t end = 0;
    while (end < expanded.size() && expanded[end] != '/') {
      if (IsQuote(expanded[end])) {
        end = FindClosingQuote(expanded, end);
        if (end == std::string::npos) return Error(errc::kBadName, "unclosed quote in '" + std::string(path) + "'");
      }
      ++end;
    }
    const std::string name = NormalizeWord(RemoveQuotes(std::string_view(expanded).substr(0, end)));
    auto found = std::find_if(aliases_.begin(), aliases_.end(), [&](const auto& a) { return a.first == name; });
    if (found == aliases_.end()) return Error(errc::kBadName, "unknown alias '" + name + "'");
    expanded = found->second + expanded.substr(end);
  }
  return Error(errc::kBadName, "aliases in '" + std::string(path) + "' expand without end");
}

}  // namespace graphics
