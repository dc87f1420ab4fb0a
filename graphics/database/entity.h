#pragma once
// Everything that has a key: segments, geometry, includes and styles. Each
// has one owner segment, except the root.
#include <string_view>

namespace graphics {

class Segment;

enum class EntityKind { kSegment, kGeometry, kInclude, kStyle };

// Whose key an item answers to: the library's, or one the program gave it.
enum class KeyScope { kLibrary, kLocal, kGlobal };

class Entity {
 public:
  Entity& operator=(const Entity&) = delete;
  virtual ~Entity() = default;

  EntityKind kind() const { return kind_; }
  // The key in force: the library key, or the program's after a renumber;
  // 0 until the database registers the item.
  long long key() const { return key_; }
  KeyScope key_scope() const { return scope_; }
  // The key the library issued, kept through renumbering: it names the
  // item unambiguously wherever a program's local key would not.
  long long library_key() const { return library_key_; }
  // Null for the root, and for an item not yet placed in a segment.
  Segment* owner() const { return owner_; }

  // The word HC_Show_Key_Type gives for this item.
  virtual std::string_view TypeWord() const = 0;

 protected:
  explicit Entity(EntityKind kind) : kind_(kind) {}
  // A copy is a new item: no key and no owner until the database places it.
  Entity(const Entity& other) : kind_(other.kind_) {}

 private:
  friend class Database;
  friend class Segment;

  EntityKind kind_;
  long long key_ = 0;
  long long library_key_ = 0;
  KeyScope scope_ = KeyScope::kLibrary;
  Segment* owner_ = nullptr;
};

}  // namespace graphics
