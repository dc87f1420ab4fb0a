#pragma once
// A node of the tree: local attributes, subsegments, includes, styles and
// geometry, each kept in creation order. Net attribute walks read includes()
// and styles(): each Reference gives its target segment and its condition
// text (empty when unconditional), in the order they were made. A segment caches the bounds of its contents; any change
// below marks it and its owners dirty, so bounding queries recompute only
// what changed.
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "attributes/attribute_store.h"
#include "database/entity.h"
#include "database/owned_list.h"
#include "database/redraw_marks.h"
#include "database/reference.h"
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
  // Whether the segment holds nothing at all.
  bool IsEmpty() const;
  bool anonymous() const { return name_.empty(); }

  // The named child, or null; anonymous children are found by key only.
  Segment* FindChild(std::string_view name) const;
  Segment& AddChild(std::unique_ptr<Segment> child);
  std::unique_ptr<Segment> RemoveChild(Segment& child);
  // `child` with another name; no sibling may hold it.
  void RenameChild(Segment& child, std::string name);
  const OwnedList<Segment>& children() const { return children_; }

  Geometry& AddGeometry(std::unique_ptr<Geometry> item);
  std::unique_ptr<Geometry> RemoveGeometry(Geometry& item);
  const OwnedList<Geometry>& geometry() const { return geometry_; }

  // Includes and styles held here, each list in creation order.
  const OwnedList<Reference>& includes() const { return includes_; }
  const OwnedList<Reference>& styles() const { return styles_; }
  Reference& AddReference(std::unique_ptr<Reference> reference);
  std::unique_ptr<Reference> RemoveReference(Reference& reference);
  // References elsewhere that name this segment as their target.
  const std::vector<Reference*>& referrers() const { return referrers_; }

  // Moves `item`, a member of one of this segment's lists, to the end of
  // its list, as if made last.
  void BringToFront(Entity& item);

  const AttributeStore& attributes() const { return attributes_; }
  // Writable access marks the bounds of owners and includers dirty: a local
  // attribute (the modelling matrix) may move everything below in their
  // coordinates.
  AttributeStore& MutableAttributes();

  // Bounds of geometry and subsegments in this segment's coordinates, each
  // subsegment placed by its own modelling matrix. Refilling the cache
  // writes, so callers hold the database lock exclusively.
  const Bounds& ContentBounds() const;
  // ContentBounds with this segment's own modelling matrix applied: its
  // extent in its owner's coordinates.
  Bounds PlacedBounds() const;
  void MarkBoundsDirty();

  // What the next update must redraw here. Changes to the segment raise
  // the redraw to partial while the "update control" system option is on.
  const RedrawMarks& redraw_marks() const { return redraw_marks_; }
  RedrawMarks& mutable_redraw_marks() { return redraw_marks_; }
  // Called by everything that changes what the segment draws.
  void NoteChange();

  // A bounding sphere set by the program: it stands for the kept volume
  // until anything in the subtree changes or it is unset.
  struct BoundingSphere {
    Point center;
    float radius;
  };
  const std::optional<BoundingSphere>& explicit_sphere() const { return explicit_sphere_; }
  void SetExplicitSphere(const BoundingSphere& sphere);
  void UnSetExplicitSphere() { explicit_sphere_.reset(); }

  // The key of the polyline ink calls extend, 0 when the next ink call
  // starts a new one. A key that no longer works counts as 0.
  long long ink_key() const { return ink_key_; }
  void set_ink_key(long long key) { ink_key_ = key; }

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
  OwnedList<Reference> includes_;
  OwnedList<Reference> styles_;
  std::vector<Reference*> referrers_;
  AttributeStore attributes_;
  mutable Bounds bounds_;
  mutable bool bounds_dirty_ = true;
  std::optional<BoundingSphere> explicit_sphere_;
  RedrawMarks redraw_marks_;
  int open_frames_ = 0;
  long long ink_key_ = 0;
};

// `top` and every segment below it, depth-first, children in creation order.
std::vector<Segment*> DepthFirst(Segment& top);

}  // namespace graphics
