#include "database/database.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

#include "database/path_resolver.h"
#include "database/predefined.h"
#include "database/segment_path.h"

namespace graphics {

namespace {

// Whether `top` or anything below it is open in some thread.
bool SubtreeIsOpen(const Segment& top) {
  std::vector<const Segment*> pending{&top};
  while (!pending.empty()) {
    const Segment* segment = pending.back();
    pending.pop_back();
    if (segment->open_frames() > 0) return true;
    for (const Segment& child : segment->children()) pending.push_back(&child);
  }
  return false;
}

}  // namespace

bool ReachesSegment(Segment& from, const Segment& goal) {
  std::vector<Segment*> pending{&from};
  std::unordered_set<const Segment*> seen;
  while (!pending.empty()) {
    Segment* segment = pending.back();
    pending.pop_back();
    if (segment == &goal) return true;
    if (!seen.insert(segment).second) continue;
    for (Segment& child : segment->children()) pending.push_back(&child);
    for (const Reference& include : segment->includes()) pending.push_back(&include.target());
  }
  return false;
}

namespace {

Error InvalidKey(long long key) { return Error(errc::kInvalidKey, "invalid key " + std::to_string(key)); }

Error WrongKind(const Entity& item, std::string_view expected) {
  return Error(errc::kWrongKeyKind, "key " + std::to_string(item.key()) + " does not refer to a " +
                                        std::string(expected) + " but to a " + std::string(item.TypeWord()));
}

}  // namespace

Database::Database() { CreatePredefined(); }

void Database::CreatePredefined() {
  root_ = std::make_unique<Segment>("");
  Register(*root_);
  for (std::string_view path : {kIncludeLibraryPath, kStyleLibraryPath, kPicturePath}) {
    // Absolute paths of plain names always resolve.
    static_cast<void>(ResolvePath(*this, nullptr, path, Creation::kCreateMissing));
  }
}

namespace {

thread_local const Segment* local_key_context = nullptr;

}  // namespace

LocalKeyScope::LocalKeyScope(const Segment* current) : previous_(local_key_context) { local_key_context = current; }

LocalKeyScope::~LocalKeyScope() { local_key_context = previous_; }

const Segment* LocalKeyScope::Current() { return local_key_context; }

Entity* Database::Find(long long key) const {
  if (key >= 0) {
    if (const Segment* context = LocalKeyScope::Current()) {
      auto local = local_keys_.find({context, key});
      if (local != local_keys_.end()) return local->second;
    }
    auto found = global_keys_.find(key);
    return found == global_keys_.end() ? nullptr : found->second;
  }
  Entity* item = keys_.Find(key);
  // A renumbered item no longer answers to its library key.
  return item != nullptr && item->key_ == key ? item : nullptr;
}

void Database::Register(Entity& item) {
  item.key_ = item.library_key_ = keys_.Issue(item);
}

void Database::Retire(const Entity& item) {
  keys_.Retire(item.library_key_);
  DropProgramKey(item);
}

void Database::DropProgramKey(const Entity& item) {
  switch (item.scope_) {
    case KeyScope::kLibrary:
      break;
    case KeyScope::kLocal:
      local_keys_.erase({item.owner_, item.key_});
      break;
    case KeyScope::kGlobal:
      global_keys_.erase(item.key_);
      break;
  }
}

Result<long long> Database::Renumber(Entity& item, long long new_key, KeyScope scope) {
  if (new_key == -1) {
    DropProgramKey(item);
    item.key_ = item.library_key_;
    item.scope_ = KeyScope::kLibrary;
    return item.key_;
  }
  if (new_key < 0) return Error(errc::kOutOfRange, "a program's key must be 0 or more, or -1 to restore");
  if (scope == KeyScope::kLocal && item.owner_ == nullptr) {
    return Error(errc::kWrongKeyKind, "the root segment has no owner to take a local key in");
  }
  const Entity* holder = nullptr;
  if (scope == KeyScope::kLocal) {
    auto taken = local_keys_.find({item.owner_, new_key});
    if (taken != local_keys_.end()) holder = taken->second;
  } else {
    auto taken = global_keys_.find(new_key);
    if (taken != global_keys_.end()) holder = taken->second;
  }
  if (holder != nullptr && holder != &item) {
    return Error(errc::kOutOfRange, "key " + std::to_string(new_key) + " is in use");
  }
  DropProgramKey(item);
  if (scope == KeyScope::kLocal) {
    local_keys_[{item.owner_, new_key}] = &item;
  } else {
    global_keys_[new_key] = &item;
  }
  item.key_ = new_key;
  item.scope_ = scope;
  return new_key;
}

Result<Entity*> Database::FindItem(long long key) const {
  Entity* item = Find(key);
  if (item == nullptr) return InvalidKey(key);
  return item;
}

Result<Segment*> Database::FindSegment(long long key) const {
  Entity* item = Find(key);
  if (item == nullptr) return InvalidKey(key);
  if (item->kind() != EntityKind::kSegment) return WrongKind(*item, "segment");
  return static_cast<Segment*>(item);
}

Result<Geometry*> Database::FindGeometry(long long key, GeometryType type) const {
  Entity* item = Find(key);
  if (item == nullptr) return InvalidKey(key);
  if (item->kind() != EntityKind::kGeometry || static_cast<Geometry*>(item)->type() != type) {
    return WrongKind(*item, GeometryTypeWord(type));
  }
  return static_cast<Geometry*>(item);
}

Segment& Database::CreateChild(Segment& owner, std::string name) {
  Segment& child = owner.AddChild(std::make_unique<Segment>(std::move(name)));
  Register(child);
  return child;
}

Geometry& Database::Insert(Segment& owner, std::unique_ptr<Geometry> item) {
  Geometry& inserted = owner.AddGeometry(std::move(item));
  Register(inserted);
  return inserted;
}

Result<Reference*> Database::AddReference(Segment& owner, EntityKind kind, Segment& target, std::string condition) {
  if (kind == EntityKind::kInclude && ReachesSegment(target, owner)) {
    return Error(errc::kBadName, "including " + FullPath(target) + " in " + FullPath(owner) +
                                     " would make the segment contain itself");
  }
  Reference& added = owner.AddReference(std::make_unique<Reference>(kind, target, std::move(condition)));
  Register(added);
  return &added;
}

Status Database::Delete(Entity& item) {
  Segment* owner = item.owner();
  if (item.kind() == EntityKind::kInclude || item.kind() == EntityKind::kStyle) {
    Retire(item);
    owner->RemoveReference(static_cast<Reference&>(item));
    return Done{};
  }
  if (item.kind() == EntityKind::kGeometry) {
    if (static_cast<Geometry&>(item).open_frames() > 0) {
      return Error(errc::kItemOpen, "the " + std::string(item.TypeWord()) + " is open");
    }
    Retire(item);
    owner->RemoveGeometry(static_cast<Geometry&>(item));
    return Done{};
  }
  Segment& segment = static_cast<Segment&>(item);
  if (owner == nullptr) return Error(errc::kRootNotDeletable, "the root segment cannot be deleted");
  if (SubtreeIsOpen(segment)) {
    return Error(errc::kItemOpen, "segment " + FullPath(segment) + " is open, or holds an open segment");
  }
  RetireSubtree(segment);
  owner->RemoveChild(segment);
  return Done{};
}

// References held inside the subtree let go of their targets, and
// references from outside to segments inside are deleted, so no reference
// outlives its target.
void Database::RetireSubtree(Segment& top) {
  const std::vector<Segment*> subtree = DepthFirst(top);
  for (Segment* segment : subtree) {
    for (const OwnedList<Reference>* list : {&segment->includes(), &segment->styles()}) {
      while (!list->empty()) {
        Reference& reference = *list->begin();
        Retire(reference);
        segment->RemoveReference(reference);
      }
    }
  }
  for (Segment* segment : subtree) {
    while (!segment->referrers().empty()) {
      Reference& reference = *segment->referrers().back();
      Retire(reference);
      reference.owner()->RemoveReference(reference);
    }
    Retire(*segment);
    for (const Geometry& item : segment->geometry()) Retire(item);
  }
}

void Database::Reset() {
  root_.reset();
  keys_.RetireAll();
  global_keys_.clear();
  local_keys_.clear();
  aliases_ = AliasTable();
  ++generation_;
  CreatePredefined();
}

std::string Database::FullPath(const Segment& segment) {
  if (segment.owner() == nullptr) return "/";
  std::vector<const Segment*> chain;
  for (const Segment* s = &segment; s->owner() != nullptr; s = s->owner()) chain.push_back(s);
  std::string path;
  for (auto it = chain.rbegin(); it != chain.rend(); ++it) {
    const Segment& s = **it;
    path += '/';
    path += s.anonymous() ? KeyReference(s.key()) : DisplayName(s.name());
  }
  return path;
}

}  // namespace graphics
