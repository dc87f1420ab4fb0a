#include "attributes/line_styles.h"

#include <map>

#include "strings/text.h"

namespace graphics {

namespace {

std::map<std::string, std::string, std::less<>>& Styles() {
  static std::map<std::string, std::string, std::less<>> styles;
  return styles;
}

}  // namespace

Status DefineLineStyle(std::string_view name, std::string_view definition) {
  const std::string_view trimmed = TrimBlanks(definition);
  if (trimmed.empty()) return Error(errc::kBadOptionSyntax, "a line style needs a definition");
  Styles()[NormalizeWord(name)] = std::string(trimmed);
  return Done{};
}

bool UnDefineLineStyle(std::string_view name) { return Styles().erase(NormalizeWord(name)) > 0; }

const std::string* FindLineStyle(std::string_view name) {
  const auto found = Styles().find(NormalizeWord(name));
  return found == Styles().end() ? nullptr : &found->second;
}

void ClearLineStyles() { Styles().clear(); }

std::vector<std::string> LineStyleNames() {
  std::vector<std::string> names;
  for (const auto& [name, definition] : Styles()) names.push_back(name);
  return names;
}

}  // namespace graphics
