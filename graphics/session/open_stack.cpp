#include "session/open_stack.h"

#include "database/segment.h"

namespace graphics {

void OpenStack::PushSegment(Segment& segment) {
  frames_.push_back(&segment);
  segment.AddOpenFrame();
}

void OpenStack::PushDead() { frames_.push_back(nullptr); }

void OpenStack::Pop() {
  if (Segment* segment = frames_.back()) segment->RemoveOpenFrame();
  frames_.pop_back();
}

void OpenStack::CloseAll() {
  while (!frames_.empty()) Pop();
}

}  // namespace graphics
