#pragma once
// One thread's stack of open segments. A failed open pushes a dead frame
// instead of nothing, so the caller's close stays paired with its open;
// calls made under a dead frame change nothing and answer empty.
#include <cstddef>
#include <vector>

namespace graphics {

class Segment;

class OpenStack {
 public:
  OpenStack() = default;
  OpenStack(const OpenStack&) = delete;
  OpenStack& operator=(const OpenStack&) = delete;

  void PushSegment(Segment& segment);
  void PushDead();
  // Removes the top frame; the stack must not be empty.
  void Pop();
  // Pops every frame, as closing them one by one would.
  void CloseAll();
  // Forgets every frame without touching their segments, which belong to a
  // tree that no longer exists.
  void Abandon() { frames_.clear(); }

  bool empty() const { return frames_.empty(); }
  size_t size() const { return frames_.size(); }
  bool top_is_dead() const { return !frames_.empty() && frames_.back() == nullptr; }
  // The top segment: null when nothing is open or the top frame is dead.
  Segment* top() const { return frames_.empty() ? nullptr : frames_.back(); }

 private:
  std::vector<Segment*> frames_;  // null: a dead frame
};

}  // namespace graphics
