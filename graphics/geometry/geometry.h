#pragma once
// Base of every geometry item. A kind adds a subclass holding its data and
// its extent; the database only needs the type word, the bounds and a copy.
#include <array>
#include <map>
#include <memory>
#include <string_view>

#include "attributes/attribute_store.h"
#include "database/entity.h"
#include "database/owned_list.h"
#include "geometry/geometry_type.h"
#include "math/bounds.h"

namespace graphics {

class Geometry : public Entity, public ListLink<Geometry> {
 public:
  GeometryType type() const { return type_; }
  std::string_view TypeWord() const override { return GeometryTypeWord(type_); }

  // The item's extent in its segment's coordinates.
  virtual Bounds ComputeBounds() const = 0;

  // An unkeyed, unplaced copy with the same data, for copying into another
  // segment.
  virtual std::unique_ptr<Geometry> Clone() const = 0;

  // Open frames of all threads on this item; open geometry cannot be
  // deleted or moved.
  int open_frames() const { return open_frames_; }
  void AddOpenFrame() { ++open_frames_; }
  void RemoveOpenFrame() { --open_frames_; }

  // Attributes set on the item through HC_Open_Geometry: they apply to this
  // item only, below its segment's.
  const AttributeStore& attributes() const { return attributes_; }
  AttributeStore& MutableAttributes() { return attributes_; }
  // Attributes of one open part: the open frame's kind and its one or two
  // numbers (a face, an edge's two vertices...). Null when none was set.
  using PartId = std::array<int, 3>;
  const AttributeStore* PartAttributes(const PartId& part) const {
    auto found = part_attributes_.find(part);
    return found == part_attributes_.end() ? nullptr : &found->second;
  }
  AttributeStore& MutablePartAttributes(const PartId& part) { return part_attributes_[part]; }

 protected:
  explicit Geometry(GeometryType type) : Entity(EntityKind::kGeometry), type_(type) {}
  // A copy is closed, whatever the original.
  Geometry(const Geometry& other)
      : Entity(other),
        ListLink<Geometry>(other),
        type_(other.type_),
        attributes_(other.attributes_),
        part_attributes_(other.part_attributes_) {}

  // Every change of shape goes through here so the owner's cached bounds
  // are recomputed when next asked for and the owner is marked for redraw.
  void MarkChanged();

 private:
  GeometryType type_;
  int open_frames_ = 0;
  AttributeStore attributes_;
  std::map<PartId, AttributeStore> part_attributes_;
};

// The Clone of a final geometry class that copies as a value.
template <typename Derived>
class CopyableGeometry : public Geometry {
 public:
  std::unique_ptr<Geometry> Clone() const override {
    return std::make_unique<Derived>(static_cast<const Derived&>(*this));
  }

 protected:
  using Geometry::Geometry;
};

}  // namespace graphics
