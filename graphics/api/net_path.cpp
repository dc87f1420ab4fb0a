#include "api/net_path.h"

#include <span>

#include "api/attribute_target.h"

namespace graphics::api {

Result<AttributePath> NetPath(Session& session, int count, const long long* keys) {
  if (count < 0) return Error(errc::kOutOfRange, "a key path cannot have a negative count");
  if (count == 0) {
    const OpenStack& stack = session.open_stack();
    if (stack.top_is_geometry()) {
      const OpenFrame& frame = stack.top_frame();
      return AttributePath::Of(*frame.geometry, frame.kind == OpenFrame::Kind::kGeometry ? nullptr : StoreToRead(session));
    }
    const Segment* segment = session.SegmentToRead();
    return segment ? AttributePath::Of(*segment) : AttributePath();
  }
  if (keys == nullptr) return Error(errc::kNullArgument, "null key path");
  return AttributePath::FromKeys(session.database(), std::span<const long long>(keys, static_cast<size_t>(count)));
}

}  // namespace graphics::api
