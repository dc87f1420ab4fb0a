#pragma once
// Path aliases ("?picture"): a name standing for the start of a path,
// replaced literally when a path is read. The predefined ones cannot be
// undefined; the program adds its own.
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "errors/error.h"

namespace graphics {

class AliasTable {
 public:
  // With the predefined aliases.
  AliasTable();

  // `path` with a leading alias replaced by its expansion (repeatedly, since
  // an expansion may start with another alias); unchanged without one.
  Result<std::string> Expand(std::string_view path) const;

  // Defines or redefines `name` ("?" and a name) as `expansion`, kept as
  // given with outer blanks trimmed.
  Status Define(std::string_view name, std::string_view expansion);
  // Refused for the predefined aliases and unknown names.
  Status UnDefine(std::string_view name);
  // The expansion in lower case; nothing for an unknown name.
  std::optional<std::string> Show(std::string_view name) const;

 private:
  // The stored form of an alias name, or why it is not one.
  static Result<std::string> Normalize(std::string_view name);

  // Names are stored normalised, "?" included; the predefined come first.
  std::vector<std::pair<std::string, std::string>> aliases_;
};

}  // namespace graphics
