#pragma once
// Path aliases ("?picture"): a name standing for the start of a path,
// replaced literally when a path is read. Holds the predefined ones now;
// HC_Define_Alias will add to the same table.
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

 private:
  // Names are stored normalised, "?" included.
  std::vector<std::pair<std::string, std::string>> aliases_;
};

}  // namespace graphics
