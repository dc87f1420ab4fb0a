#include "api/attribute_target.h"

namespace graphics::api {

Geometry::PartId PartIdOf(const OpenFrame& frame) {
  const bool swap = frame.kind == OpenFrame::Kind::kEdge && frame.second < frame.first;
  return {static_cast<int>(frame.kind), swap ? frame.second : frame.first, swap ? frame.first : frame.second};
}

AttributeTarget TargetToChange(Session& session) {
  const OpenStack& stack = session.open_stack();
  if (!stack.top_is_geometry()) {
    Segment* segment = session.SegmentToChange();
    return segment ? AttributeTarget{&segment->MutableAttributes(), segment} : AttributeTarget{};
  }
  const OpenFrame& frame = stack.top_frame();
  Geometry& geometry = *frame.geometry;
  AttributeStore& store = frame.kind == OpenFrame::Kind::kGeometry ? geometry.MutableAttributes()
                                                                   : geometry.MutablePartAttributes(PartIdOf(frame));
  return AttributeTarget{&store, geometry.owner()};
}

const AttributeStore* StoreToRead(Session& session) {
  const OpenStack& stack = session.open_stack();
  if (!stack.top_is_geometry()) {
    const Segment* segment = session.SegmentToRead();
    return segment ? &segment->attributes() : nullptr;
  }
  const OpenFrame& frame = stack.top_frame();
  if (frame.kind == OpenFrame::Kind::kGeometry) return &frame.geometry->attributes();
  return frame.geometry->PartAttributes(PartIdOf(frame));
}

}  // namespace graphics::api
