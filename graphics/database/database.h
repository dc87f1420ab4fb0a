#pragma once
// The one segment tree of the process, its keys and its aliases. Not
// thread-safe by itself: the engine guards it with one reader/writer lock.
// Operations return errors instead of reporting them.
#include <cstdint>
#include <map>
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

  // The live item of `key`, or null: a library key, or one the program gave
  // with Renumber. A program's key is looked for first among the local
  // keys of the items the calling thread's current segment owns (see
  // LocalKeyScope), then among the global keys.
  Entity* Find(long long key) const;
  // The live item the library issued `key` to, renumbered or not; null
  // once it is deleted. For holding on to items across deletions.
  Entity* FindByLibraryKey(long long key) const { return keys_.Find(key); }
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
  // the root, for open geometry, for a move below itself, when a sibling
  // already has the name and when the item's local key is taken there.
  Status Move(Entity& item, Segment& new_owner, std::string name = "");
  // A copy of `item` in `owner`, with a new key.
  Geometry& CopyGeometry(const Geometry& item, Segment& owner);
  // Copies the contents of `from` (attributes, includes, styles, geometry,
  // subsegments, recursively) into `to`, which must be empty and not lie in
  // `from`'s subtree. References are copied, not their targets.
  Status CopyContents(Segment& from, Segment& to);

  AliasTable& mutable_aliases() { return aliases_; }

  // Gives `item` the program's key `new_key` (0 or more) in `scope`, or
  // with -1 its library key back; the key it had stops working. A global
  // key is unique in the whole database; a local one among the items of
  // the item's owner (the root cannot take one), and there it hides a
  // global key of the same value. Gives the key in force.
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
  // Forgets the program's key of `item`, if it has one.
  void DropProgramKey(const Entity& item);
  // Files a local key of `item` under `new_owner`, where it is about to
  // move; refused when an item there already answers to it.
  Status RehomeLocalKey(Entity& item, const Segment& new_owner);
  void RetireSubtree(Segment& top);

  KeyTable keys_;
  std::unordered_map<long long, Entity*> global_keys_;
  // Local keys, by the owner they are local to.
  std::map<std::pair<const Segment*, long long>, Entity*> local_keys_;
  AliasTable aliases_;
  std::unique_ptr<Segment> root_;
  uint64_t generation_ = 0;
};

// While it lives, local keys the calling thread looks up resolve among the
// items `current` owns: the current segment of the call being served (null
// when nothing is open). Scopes nest; the innermost counts.
class LocalKeyScope {
 public:
  explicit LocalKeyScope(const Segment* current);
  ~LocalKeyScope();
  LocalKeyScope(const LocalKeyScope&) = delete;
  LocalKeyScope& operator=(const LocalKeyScope&) = delete;

  // The segment of the innermost scope on this thread; null outside any.
  static const Segment* Current();

 private:
  const Segment* previous_;
};

// Whether drawing `from` would reach `goal`: `goal` is `from` or lies below
// it, directly or through includes.
bool ReachesSegment(Segment& from, const Segment& goal);

}  // namespace graphics
