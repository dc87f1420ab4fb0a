#include "database/database.h"

#include <algorithm>
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

Error InvalidKey(long long key) { return Error(errc::kInvalidKey, "invalid key " + std::to_string(key)); }

Error WrongKind(const Entity& item, std::string_view expected) {
  return Error(errc::kWrongKeyKind, "key " + std::to_string(item.key()) + " does not refer to a " +
                                        std::string(expected) + " but to a " + std::string(item.TypeWord()));
}

}  // namespace

Database::Database() { CreatePredefined(); }

void Database::CreatePredefined() {
  root_ = std::make_unique<Segment>("");
  root_->key_ = keys_.Issue(*root_);
  for (std::string_view path : {kIncludeLibraryPath, kStyleLibraryPath, kPicturePath}) {
    // Absolute paths of plain names always resolve.
    static_cast<void>(ResolvePath(*this, nullptr, path, Creation::kCreateMissing));
  }
}

Result<Entity*> Database::FindItem(long long key) const {
  Entity* item = keys_.Find(key);
  if (item == nullptr) return InvalidKey(key);
  return item;
}

Result<Segment*> Database::FindSegment(long long key) const {
  Entity* item = keys_.Find(key);
  if (item == nullptr) return InvalidKey(key);
  if (item->kind() != EntityKind::kSegment) return WrongKind(*item, "segment");
  return static_cast<Segment*>(item);
}

Result<Geometry*> Database::FindGeometry(long long key, GeometryType type) const {
  Entity* item = keys_.Find(key);
  if (item == nullptr) return InvalidKey(key);
  if (item->kind() != EntityKind::kGeometry || static_cast<Geometry*>(item)->type() != type) {
    return WrongKind(*item, GeometryTypeWord(type));
  }
  return static_cast<Geometry*>(item);
}

Segment& Database::CreateChild(Segment& owner, std::string name) {
  Segment& child = owner.AddChild(std::make_unique<Segment>(std::move(name)));
  child.key_ = keys_.Issue(child);
  return child;
}

Geometry& Database::Insert(Segment& owner, std::unique_ptr<Geometry> item) {
  Geometry& inserted = owner.AddGeometry(std::move(item));
  inserted.key_ = keys_.Issue(inserted);
  return inserted;
}

Status Database::Delete(Entity& item) {
  Segment* owner = item.owner();
  if (item.kind() == EntityKind::kGeometry) {
    keys_.Retire(item.key());
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

void Database::RetireSubtree(Segment& top) {
  std::vector<Segment*> pending{&top};
  while (!pending.empty()) {
    Segment* segment = pending.back();
    pending.pop_back();
    keys_.Retire(segment->key());
    for (const Geometry& item : segment->geometry()) keys_.Retire(item.key());
    for (Segment& child : segment->children()) pending.push_back(&child);
  }
}

void Database::Reset() {
  root_.reset();
  keys_.RetireAll();
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
