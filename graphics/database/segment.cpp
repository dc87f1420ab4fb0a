#include "database/segment.h"

#include <vector>

#include "engine/system_switches.h"

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
  NoteChange();
  return added;
}

std::unique_ptr<Segment> Segment::RemoveChild(Segment& child) {
  if (!child.anonymous()) children_by_name_.erase(child.name_);
  child.owner_ = nullptr;
  MarkBoundsDirty();
  NoteChange();
  return children_.Remove(child);
}

void Segment::RenameChild(Segment& child, std::string name) {
  if (!child.anonymous()) children_by_name_.erase(child.name_);
  child.name_ = std::move(name);
  if (!child.anonymous()) children_by_name_.emplace(child.name_, &child);
  NoteChange();
}

bool Segment::IsEmpty() const {
  return children_.empty() && geometry_.empty() && includes_.empty() && styles_.empty() && attributes_.empty();
}

Geometry& Segment::AddGeometry(std::unique_ptr<Geometry> item) {
  item->owner_ = this;
  MarkBoundsDirty();
  NoteChange();
  return geometry_.PushBack(std::move(item));
}

std::unique_ptr<Geometry> Segment::RemoveGeometry(Geometry& item) {
  item.owner_ = nullptr;
  MarkBoundsDirty();
  NoteChange();
  return geometry_.Remove(item);
}

Reference& Segment::AddReference(std::unique_ptr<Reference> reference) {
  reference->owner_ = this;
  reference->target().referrers_.push_back(reference.get());
  MarkBoundsDirty();
  NoteChange();
  return (reference->kind() == EntityKind::kInclude ? includes_ : styles_).PushBack(std::move(reference));
}

std::unique_ptr<Reference> Segment::RemoveReference(Reference& reference) {
  std::vector<Reference*>& referrers = reference.target().referrers_;
  std::erase(referrers, &reference);
  reference.owner_ = nullptr;
  MarkBoundsDirty();
  NoteChange();
  return (reference.kind() == EntityKind::kInclude ? includes_ : styles_).Remove(reference);
}

void Segment::BringToFront(Entity& item) {
  NoteChange();
  switch (item.kind()) {
    case EntityKind::kSegment:
      children_.PushBack(children_.Remove(static_cast<Segment&>(item)));
      break;
    case EntityKind::kGeometry:
      geometry_.PushBack(geometry_.Remove(static_cast<Geometry&>(item)));
      break;
    case EntityKind::kInclude:
      includes_.PushBack(includes_.Remove(static_cast<Reference&>(item)));
      break;
    case EntityKind::kStyle:
      styles_.PushBack(styles_.Remove(static_cast<Reference&>(item)));
      break;
  }
}

AttributeStore& Segment::MutableAttributes() {
  if (owner() != nullptr) owner()->MarkBoundsDirty();
  for (Reference* referrer : referrers_) {
    if (referrer->kind() == EntityKind::kInclude) referrer->owner()->MarkBoundsDirty();
  }
  NoteChange();
  return attributes_;
}

const Bounds& Segment::ContentBounds() const {
  if (!bounds_dirty_) return bounds_;
  Bounds bounds;
  for (const Geometry& item : geometry_) bounds.Include(item.ComputeBounds());
  for (const Reference& include : includes_) bounds.Include(include.target().PlacedBounds());
  for (const Segment& child : children_) bounds.Include(child.PlacedBounds());
  bounds_ = bounds;
  bounds_dirty_ = false;
  return bounds_;
}

Bounds Segment::PlacedBounds() const {
  const auto* matrix = attributes_.Find<ModellingMatrix>();
  return matrix ? ContentBounds().Transformed(matrix->matrix) : ContentBounds();
}

// Cleaning the cache of the whole subtree first makes the next change
// anywhere below walk up through this segment, which drops the sphere.
void Segment::SetExplicitSphere(const BoundingSphere& sphere) {
  ContentBounds();
  explicit_sphere_ = sphere;
}

// A dirty segment always has dirty owners and dirty includers, so the walk
// stops at the first segment already dirty.
void Segment::MarkBoundsDirty() {
  std::vector<Segment*> pending{this};
  while (!pending.empty()) {
    Segment* start = pending.back();
    pending.pop_back();
    for (Segment* s = start; s != nullptr && !s->bounds_dirty_; s = s->owner()) {
      s->bounds_dirty_ = true;
      s->explicit_sphere_.reset();
      for (Reference* referrer : s->referrers_) {
        if (referrer->kind() == EntityKind::kInclude) pending.push_back(referrer->owner());
      }
    }
  }
}

// Once marked, a segment stays marked until the marks are cleared, so the
// system option is read at most once per segment between clearings.
void Segment::NoteChange() {
  if (redraw_marks_.redraw != RedrawMarks::Redraw::kNone || !UpdateControlOn()) return;
  redraw_marks_.Raise(RedrawMarks::Redraw::kPartial);
}

std::vector<Segment*> DepthFirst(Segment& top) {
  std::vector<Segment*> order;
  std::vector<Segment*> pending{&top};
  while (!pending.empty()) {
    Segment* segment = pending.back();
    pending.pop_back();
    order.push_back(segment);
    std::vector<Segment*> children;
    for (Segment& child : segment->children()) children.push_back(&child);
    pending.insert(pending.end(), children.rbegin(), children.rend());
  }
  return order;
}

}  // namespace graphics
