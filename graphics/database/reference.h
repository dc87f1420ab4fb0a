#pragma once
// Includes and styles: keyed references from the segment holding them to a
// target segment, each with an optional condition kept as written. An
// include draws the target as if it were a subsegment; a style lends the
// target's attributes to the holder. Deleting the target deletes the
// references to it.
#include <string>
#include <string_view>

#include "database/entity.h"
#include "database/owned_list.h"

namespace graphics {

class Reference final : public Entity, public ListLink<Reference> {
 public:
  // `kind` is kInclude or kStyle; an empty condition means none.
  Reference(EntityKind kind, Segment& target, std::string condition)
      : Entity(kind), target_(&target), condition_(std::move(condition)) {}
  Reference(const Reference& other) = default;

  std::string_view TypeWord() const override { return kind() == EntityKind::kInclude ? "include" : "style"; }

  Segment& target() const { return *target_; }
  const std::string& condition() const { return condition_; }

 private:
  Segment* target_;
  std::string condition_;
};

}  // namespace graphics
