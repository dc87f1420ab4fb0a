#include "api/net_path.h"

#include <span>

namespace graphics::api {

Result<AttributePath> NetPath(Session& session, int count, const long long* keys) {
  if (count < 0) return Error(errc::kOutOfRange, "a key path cannot have a negative count");
  if (count == 0) {
    const Segment* segment = session.SegmentToRead();
    return segment ? AttributePath::Of(*segment) : AttributePath();
  }
  if (keys == nullptr) return Error(errc::kNullArgument, "null key path");
  return AttributePath::FromKeys(session.database(), std::span<const long long>(keys, static_cast<size_t>(count)));
}

}  // namespace graphics::api
