#pragma once
// Where attribute calls without a key keep their values: on the open
// geometry, or the open face, edge, vertex or region of it, when one is on
// top of the thread's stack; otherwise on the current segment (the default
// window when nothing is open). Calls that geometry does not take (the
// segment-only attributes) keep using Session::SegmentToChange.
#include "attributes/attribute_store.h"
#include "database/segment.h"
#include "session/session.h"

namespace graphics::api {

struct AttributeTarget {
  // Null under a dead frame: the call stores nothing.
  AttributeStore* store = nullptr;
  // The segment holding the store, or holding the open geometry; names
  // (textures) are looked up from here.
  const Segment* segment = nullptr;
};

// How an open part's attributes are filed on its geometry: by the frame's
// kind and numbers, an edge's two vertices in either order.
Geometry::PartId PartIdOf(const OpenFrame& frame);

// The store to change, made when absent (a part's store appears on its
// first setting). Changing a segment's store marks its bounds stale.
AttributeTarget TargetToChange(Session& session);
// The store to read: null under a dead frame, for a part nothing was set
// on, and when nothing is open and the default window is gone.
const AttributeStore* StoreToRead(Session& session);

}  // namespace graphics::api
