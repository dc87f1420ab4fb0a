#pragma once
// The one segment tree of the process, its keys and its aliases. Not
// thread-safe by itself: the engine guards it with one reader/writer lock.
// Operations return errors instead of reporting them.
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "database/alias_table.h"
#include "database/key_table.h"
#include "database/segment.h"
#include "errors/error.h"
#include "geometry/geometry.h"

namespace graphics {

class Database {
 public:
  // The predefined segments: "/", "/include library", "/style library" and
  // the null driver's window "/driver/null/window0".
  Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  Segment& root() { return *root_; }
  const AliasTable& aliases() const { return aliases_; }

  // The live item of `key`, or null.
  Entity* Find(long long key) const { return keys_.Find(key); }
  // The live item of `key`, or the error saying the key is invalid.
  Result<Entity*> FindItem(long long key) const;
  // The segment of `key`, or why there is none.
  Result<Segment*> FindSegment(long long key) const;

  // The geometry item of `key`, which must be of `type`, or why there is none.
  Result<Geometry*> FindGeometry(long long key, GeometryType type) const;

  // A new child of `owner`; `name` in stored form, empty for anonymous. The
  // caller has checked no sibling holds the name.
  Segment& CreateChild(Segment& owner, std::string name);
  Geometry& Insert(Segment& owner, std::unique_ptr<Geometry> item);

  // Deletes a segment with its subtree, or one geometry item, retiring every
  // key on the way. Refused for the root and for anything open.
  Status Delete(Entity& item);

  // Back to the predefined segments. Keys issued before stay invalid.
  void Reset();
  // Changes with every reset, so per-thread state can notice its frames
  // point into a tree that is gone.
  uint64_t generation() const { return generation_; }

  // The display form: "/" for the root, else "/" and the components, with
  // quoted names and "@" key references for anonymous segments.
  static std::string FullPath(const Segment& segment);

 private:
  void CreatePredefined();
  void RetireSubtree(Segment& top);

  KeyTable keys_;
  AliasTable aliases_;
  std::unique_ptr<Segment> root_;
  uint64_t generation_ = 0;
};

}  // namespace graphics
