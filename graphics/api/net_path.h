#pragma once
// The path a net query walks: a count of 0 means the open geometry (and its
// open part) with its segment, or the open segment (or the default window),
// and their owners; otherwise the keys, lowest item first.
#include "errors/error.h"
#include "session/session.h"
#include "traversal/attribute_path.h"

namespace graphics::api {

// Under a dead frame, or with nothing to read, the path is empty and every
// net value is the default. A negative count, null keys with a positive
// count, or keys that do not join up are errors.
Result<AttributePath> NetPath(Session& session, int count, const long long* keys);

}  // namespace graphics::api
