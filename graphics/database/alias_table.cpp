#include "database/alias_table.h"

#include <algorithm>

#include "database/predefined.h"
#include "strings/quoting.h"
#include "strings/text.h"

namespace graphics {

namespace {

// An expansion may name another alias; a cycle must end somewhere.
constexpr int kMaxExpansions = 16;

constexpr size_t kPredefinedCount = 3;

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

Result<std::string> AliasTable::Normalize(std::string_view name) {
  const std::string_view trimmed = TrimBlanks(name);
  if (trimmed.size() < 2 || trimmed.front() != '?' || trimmed.find('/') != std::string_view::npos) {
    return Error(errc::kBadName, "bad alias name '" + std::string(name) + "'");
  }
  return NormalizeWord(RemoveQuotes(trimmed));
}

Status AliasTable::Define(std::string_view name, std::string_view expansion) {
  auto normal = Normalize(name);
  if (!normal.ok()) return normal.error();
  auto found = std::find_if(aliases_.begin(), aliases_.end(), [&](const auto& a) { return a.first == normal.value(); });
  if (found - aliases_.begin() < static_cast<std::ptrdiff_t>(kPredefinedCount)) {
    return Error(errc::kBadName, "'" + normal.value() + "' is predefined");
  }
  std::string text(TrimBlanks(expansion));
  if (found != aliases_.end()) {
    found->second = std::move(text);
  } else {
    aliases_.emplace_back(normal.value(), std::move(text));
  }
  return Done{};
}

Status AliasTable::UnDefine(std::string_view name) {
  auto normal = Normalize(name);
  if (!normal.ok()) return normal.error();
  auto found = std::find_if(aliases_.begin(), aliases_.end(), [&](const auto& a) { return a.first == normal.value(); });
  if (found == aliases_.end()) return Error(errc::kBadName, "unknown alias '" + normal.value() + "'");
  if (found - aliases_.begin() < static_cast<std::ptrdiff_t>(kPredefinedCount)) {
    return Error(errc::kBadName, "'" + normal.value() + "' is predefined");
  }
  aliases_.erase(found);
  return Done{};
}

std::optional<std::string> AliasTable::Show(std::string_view name) const {
  auto normal = Normalize(name);
  if (!normal.ok()) return std::nullopt;
  for (const auto& [alias, expansion] : aliases_) {
    if (alias == normal.value()) return ToLowerAscii(expansion);
  }
  return std::nullopt;
}

}  // namespace graphics
