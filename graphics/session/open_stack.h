#pragma once
// One thread's stack of open items: segments, and above them open geometry
// with its open faces, edges, vertices or regions. A failed open pushes a
// dead frame instead of nothing, so the caller's close stays paired with its
// open; calls made under a dead frame change nothing and answer empty.
#include <cstddef>
#include <vector>

namespace graphics {

class Segment;
class Geometry;

struct OpenFrame {
  enum class Kind { kSegment, kGeometry, kFace, kEdge, kVertex, kRegion };

  Kind kind = Kind::kSegment;
  Segment* segment = nullptr;    // kSegment; null for a dead frame
  Geometry* geometry = nullptr;  // the open item, for every other kind
  // The face, region or vertex number; an edge's two vertices.
  int first = 0;
  int second = 0;
};

class OpenStack {
 public:
  OpenStack() = default;
  OpenStack(const OpenStack&) = delete;
  OpenStack& operator=(const OpenStack&) = delete;

  void PushSegment(Segment& segment);
  void PushDead();
  // Opens `geometry` itself (kGeometry) or one of its parts.
  void PushGeometry(OpenFrame::Kind kind, Geometry& geometry, int first = 0, int second = 0);
  // Removes the top frame; the stack must not be empty.
  void Pop();
  // Pops every frame, as closing them one by one would.
  void CloseAll();
  // Forgets every frame without touching their items, which belong to a
  // tree that no longer exists.
  void Abandon() { frames_.clear(); }

  bool empty() const { return frames_.empty(); }
  size_t size() const { return frames_.size(); }
  const std::vector<OpenFrame>& frames() const { return frames_; }
  // The top frame; the stack must not be empty.
  const OpenFrame& top_frame() const { return frames_.back(); }
  bool top_is_dead() const {
    return !frames_.empty() && frames_.back().kind == OpenFrame::Kind::kSegment && frames_.back().segment == nullptr;
  }
  // Whether open geometry (or a part of it) is on top: it hides the open
  // segments, as if none were open.
  bool top_is_geometry() const { return !frames_.empty() && frames_.back().kind != OpenFrame::Kind::kSegment; }
  // The top segment: null when nothing is open, the top frame is dead, or
  // geometry is open on top.
  Segment* top() const { return frames_.empty() ? nullptr : frames_.back().segment; }

 private:
  std::vector<OpenFrame> frames_;
};

}  // namespace graphics
