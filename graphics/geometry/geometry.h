#pragma once
// Base of every geometry item. A kind adds a subclass holding its data and
// its extent; the database only needs the type word and the bounds.
#include <string_view>

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

 protected:
  explicit Geometry(GeometryType type) : Entity(EntityKind::kGeometry), type_(type) {}

 private:
  GeometryType type_;
};

}  // namespace graphics
