#include "database/segment.h"

#include <vector>

namespace graphics {

Segment::Segment(std::string name) : Entity(EntityKind::kSegment), name_(std::move(name)) {}

// Deep trees would recurse once per level while destroying; taking every
// descendant out first keeps the stack flat.
Segment::~Segment() {
  std::vector<std::unique_ptr<Segment>> pending;
  while (!children_.empty()) pending.push_back(children_.Remove(*children_.begin()));
  while (!pending.empty()) {
    std::unique_ptr<Segment> segment = std::move(pending.back());
    pending.pop_back();
    while (!segment->children_.empty()) {
      pending.push_back(segment->children_.Remove(*segment->children_.begin()));
    }
  }
}

Segment* Segment::FindChild(std::string_view name) const {
  auto found = children_by_name_.find(name);
  return found == children_by_name_.end() ? nullptr : found->second;
}

Segment& Segment::AddChild(std::unique_ptr<Segment> child) {
  child->owner_ = this;
  Segment& added = children_.PushBack(std::move(child));
  if (!added.anonymous()) children_by_name_.emplace(added.name_, &added);
  MarkBoundsDirty();
  return added;
}

std::unique_ptr<Segment> Segment::RemoveChild(Segment& child) {
  if (!child.anonymous()) children_by_name_.erase(child.name_);
  child.owner_ = nullptr;
  MarkBoundsDirty();
  return children_.Remove(child);
}

Geometry& Segment::AddGeometry(std::unique_ptr<Geometry> item) {
  item->owner_ = this;
  MarkBoundsDirty();
  return geometry_.PushBack(std::move(item));
}

std::unique_ptr<Geometry> Segment::RemoveGeometry(Geometry& item) {
  item.owner_ = nullptr;
  MarkBoundsDirty();
  return geometry_.Remove(item);
}

AttributeStore& Segment::MutableAttributes() {
  if (owner() != nullptr) owner()->MarkBoundsDirty();
  return attributes_;
}

const Bounds& Segment::ContentBounds() const {
  if (!bounds_dirty_) return bounds_;
  Bounds bounds;
  for (const Geometry& item : geometry_) bounds.Include(item.ComputeBounds());
  for (const Segment& child : children_) {
    const auto* matrix = child.attributes_.Find<ModellingMatrix>();
    bounds.Include(matrix ? child.ContentBounds().Transformed(matrix->matrix) : child.ContentBounds());
  }
  bounds_ = bounds;
  bounds_dirty_ = false;
  return bounds_;
}

// A dirty segment always has dirty owners, so the walk stops at the first
// owner already dirty.
void Segment::MarkBoundsDirty() {
  for (Segment* s = this; s != nullptr && !s->bounds_dirty_; s = s->owner()) s->bounds_dirty_ = true;
}

}  // namespace graphics
