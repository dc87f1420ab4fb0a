#pragma once
// The one segment tree of the process, its keys and its aliases. Not
// thread-safe by itself: the engine guards it with one reader/writer lock.
// Operations return errors instead of reporting them.
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

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

  // The live item of `key` (a library key, or one the program gave with
  // Renumber), or null.
  Entity* Find(long long key) const;
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
  // A new include or style (`kind`) in `owner`. An include that would let
  // a segment contain itself is refused.
  Result<Reference*> AddReference(Segment& owner, EntityKind kind, Segment& target, std::string condition);

  // Deletes a segment with its subtree (and every include or style naming a
  // segment of it), one geometry item, or one include or style, retiring
  // every key on the way. Refused for the root and for anything open.
  Status Delete(Entity& item);

  // Moves a segment (with its subtree, under `name`, empty for anonymous)
  // or a geometry item into `new_owner`; keys do not change. Refused for
  // the root, for open geometry, for a move below itself and when a sibling
  // already has the name.
  Status Move(Entity& item, Segment& new_owner, std::string name = "");
  // A copy of `item` in `owner`, with a new key.
  Geometry& CopyGeometry(const Geometry& item, Segment& owner);
  // Copies the contents of `from` (attributes, includes, styles, geometry,
  // subsegments, recursively) into `to`, which must be empty and not lie in
  // `from`'s subtree. References are copied, not their targets.
  Status CopyContents(Segment& from, Segment& to);

  AliasTable& mutable_aliases() { return aliases_; }

  // Gives `item` the program's key `new_key` (0 or more) in `scope`, or
  // with -1 its library key back; the key it had stops working. Program
  // keys are unique in the whole database, local ones included. Gives the
  // key in force.
  Result<long long> Renumber(Entity& item, long long new_key, KeyScope scope);

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
  // Issues `item` its library key.
  void Register(Entity& item);
  // Makes every key of `item` invalid for good.
  void Retire(const Entity& item);
  void RetireSubtree(Segment& top);

  KeyTable keys_;
  std::unordered_map<long long, Entity*> user_keys_;
  AliasTable aliases_;
  std::unique_ptr<Segment> root_;
  uint64_t generation_ = 0;
};

// Whether drawing `from` would reach `goal`: `goal` is `from` or lies below
// it, directly or through includes.
bool ReachesSegment(Segment& from, const Segment& goal);

}  // namespace graphics
