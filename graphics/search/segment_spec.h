#pragma once
// Segment specifications, as searches, flushes, existence tests, renames and
// copies read them: a comma list of paths; each path absolute ("/..."),
// relative to the current segment, or starting with an alias; components may
// hold wildcards ("*" any run of characters, "%" exactly one), "..." (this
// segment and everything below), ".." or "^" (the owner), "@" key
// references, and parentheses of comma-separated alternatives
// ("/a/(b,c*)/d"). Wildcards match anonymous segments too, whose names are
// empty.
#include <string_view>
#include <vector>

#include "database/database.h"
#include "errors/error.h"

namespace graphics {

// The existing segments `spec` designates, in the order the specification
// names them, each once. `base` is the current segment; null when nothing
// is open, which makes a relative path an error. A specification that
// matches nothing gives an empty list.
Result<std::vector<Segment*>> MatchSegments(Database& database, Segment* base, std::string_view spec);

// Splits at `separator` outside quotes and parentheses.
std::vector<std::string_view> SplitTopLevel(std::string_view text, char separator);

}  // namespace graphics
