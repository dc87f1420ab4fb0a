#pragma once
// Turns a path into the segment it names, creating missing segments when
// asked. The whole path is checked before anything is created, so a path
// that fails half-way leaves the tree as it was.
#include <string_view>

#include "database/database.h"
#include "errors/error.h"

namespace graphics {

enum class Creation { kMustExist, kCreateMissing };

// `base` is the current segment relative paths start from; null when nothing
// is open, which makes a relative path an error. Aliases are expanded here.
Result<Segment*> ResolvePath(Database& database, Segment* base, std::string_view path, Creation creation);

}  // namespace graphics
