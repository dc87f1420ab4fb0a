#pragma once
// A node of the tree: local attributes, subsegments and geometry, each kept
// in creation order. A segment caches the bounds of its contents; any change
// below marks it and its owners dirty, so bounding queries recompute only
// what changed.
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "attributes/attribute_store.h"
#include "database/entity.h"
#include "database/owned_list.h"
#include "geometry/geometry.h"
#include "math/bounds.h"

namespace graphics {

class Segment final : public Entity, public ListLink<Segment> {
 public:
  // `name` in stored form (lower case); empty for an anonymous segment.
  explicit Segment(std::string name);
  ~Segment() override;

  std::string_view TypeWord() const override { return "segment"; }

  const std::string& name() const { return name_; }
  bool anonymous() const { return name_.empty(); }

  // The named child, or null; anonymous children are found by key only.
  Segment* FindChild(std::string_view name) const;
  Segment& AddChild(std::unique_ptr<Segment> child);
  std::unique_ptr<Segment> RemoveChild(Segment& child);
  const OwnedList<Segment>& children() const { return children_; }

  Geometry& AddGeometry(std::unique_ptr<Geometry> item);
  std::unique_ptr<Geometry> RemoveGeometry(Geometry& item);
  const OwnedList<Geometry>& geometry() const { return geometry_; }

  const AttributeStore& attributes() const { return attributes_; }
  // Writable access marks the bounds dirty: a local attribute (the modelling
  // matrix) may move everything below in the owner's coordinates.
  AttributeStore& MutableAttributes();

  // Bounds of geometry and subsegments in this segment's coordinates, each
  // subsegment placed by its own modelling matrix. Refilling the cache
  // writes, so callers hold the database lock exclusively.
  const Bounds& ContentBounds() const;
  void MarkBoundsDirty();

  // Open frames of all threads on this segment; an open segment, or one with
  // an open descendant, cannot be deleted.
  int open_frames() const { return open_frames_; }
  void AddOpenFrame() { ++open_frames_; }
  void RemoveOpenFrame() { --open_frames_; }

 private:
  struct NameHash {
    using is_transparent = void;
    size_t operator()(std::string_view s) const { return std::hash<std::string_view>()(s); }
  };

  std::string name_;
  OwnedList<Segment> children_;
  std::unordered_map<std::string, Segment*, NameHash, std::equal_to<>> children_by_name_;
  OwnedList<Geometry> geometry_;
  AttributeStore attributes_;
  mutable Bounds bounds_;
  mutable bool bounds_dirty_ = true;
  int open_frames_ = 0;
};

}  // namespace graphics
