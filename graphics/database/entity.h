#pragma once
// Everything that has a key: segments and geometry now; includes and styles
// join as further kinds. Each has one owner segment, except the root.
#include <string_view>

namespace graphics {

class Segment;

enum class EntityKind { kSegment, kGeometry };

class Entity {
 public:
  Entity(const Entity&) = delete;
  Entity& operator=(const Entity&) = delete;
  virtual ~Entity() = default;

  EntityKind kind() const { return kind_; }
  // The library key; 0 until the database registers the item.
  long long key() const { return key_; }
  // Null for the root, and for an item not yet placed in a segment.
  Segment* owner() const { return owner_; }

  // The word HC_Show_Key_Type gives for this item.
  virtual std::string_view TypeWord() const = 0;

 protected:
  explicit Entity(EntityKind kind) : kind_(kind) {}

 private:
  friend class Database;
  friend class Segment;

  EntityKind kind_;
  long long key_ = 0;
  Segment* owner_ = nullptr;
};

}  // namespace graphics
