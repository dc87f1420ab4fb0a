#include "session/open_stack.h"

#include "database/segment.h"

namespace graphics {

void OpenStack::PushSegment(Segment& segment) {
  frames_.push_back(OpenFrame{OpenFrame::Kind::kSegment, &segment, nullptr, 0, 0});
  segment.AddOpenFrame();
}

void OpenStack::PushDead() { frames_.push_back(OpenFrame{}); }

// The owner counts the frame too, so the segment holding open geometry
// cannot be deleted under it.
void OpenStack::PushGeometry(OpenFrame::Kind kind, Geometry& geometry, int first, int second) {
  frames_.push_back(OpenFrame{kind, nullptr, &geometry, first, second});
  geometry.owner()->AddOpenFrame();
  geometry.AddOpenFrame();
}

void OpenStack::Pop() {
  const OpenFrame& frame = frames_.back();
  if (frame.segment != nullptr) frame.segment->RemoveOpenFrame();
  if (frame.geometry != nullptr) {
    frame.geometry->owner()->RemoveOpenFrame();
    frame.geometry->RemoveOpenFrame();
  }
  frames_.pop_back();
}

void OpenStack::CloseAll() {
  while (!frames_.empty()) Pop();
}

}  // namespace graphics
