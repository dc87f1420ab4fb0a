#pragma once
// Searches over named definitions (textures, line styles): Begin takes a
// snapshot of the names, Find steps through it, End forgets it. Searches are
// per thread and nest: End closes the innermost one of its kind.
#include <optional>
#include <string>
#include <vector>

#include "errors/error.h"

namespace graphics::name_search {

enum class Kind { kTextures, kLineStyles };

void Begin(Kind kind, std::vector<std::string> names);
// The names the innermost search holds; an error when none is open.
Result<int> Count(Kind kind);
// The next name, or nothing when the search is used up; an error when none
// is open.
Result<std::optional<std::string>> Next(Kind kind);
Status End(Kind kind);

}  // namespace graphics::name_search
