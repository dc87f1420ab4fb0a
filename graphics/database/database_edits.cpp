// Moving and copying parts of the tree.
#include "database/database.h"

namespace graphics {

namespace {

bool IsWithin(const Segment& segment, const Segment& top) {
  for (const Segment* s = &segment; s != nullptr; s = s->owner()) {
    if (s == &top) return true;
  }
  return false;
}

}  // namespace

Status Database::Move(Entity& item, Segment& new_owner, std::string name) {
  if (item.kind() == EntityKind::kGeometry) {
    auto& geometry = static_cast<Geometry&>(item);
    if (geometry.open_frames() > 0) return Error(errc::kItemOpen, "open geometry cannot be moved");
    auto rehomed = RehomeLocalKey(item, new_owner);
    if (!rehomed.ok()) return rehomed;
    new_owner.AddGeometry(geometry.owner()->RemoveGeometry(geometry));
    return Done{};
  }
  if (item.kind() != EntityKind::kSegment) {
    return Error(errc::kWrongKeyKind, "an " + std::string(item.TypeWord()) + " cannot be moved");
  }
  auto& segment = static_cast<Segment&>(item);
  if (segment.owner() == nullptr) return Error(errc::kRootNotDeletable, "the root segment cannot be moved");
  if (IsWithin(new_owner, segment)) {
    return Error(errc::kBadName, FullPath(segment) + " cannot move into its own subtree");
  }
  Segment* sibling = name.empty() ? nullptr : new_owner.FindChild(name);
  if (sibling == &segment) return Done{};
  if (sibling != nullptr) return Error(errc::kNameTaken, FullPath(*sibling) + " already exists");
  if (segment.owner() == &new_owner) {
    new_owner.RenameChild(segment, std::move(name));
    return Done{};
  }
  auto rehomed = RehomeLocalKey(item, new_owner);
  if (!rehomed.ok()) return rehomed;
  std::unique_ptr<Segment> moved = segment.owner()->RemoveChild(segment);
  new_owner.RenameChild(*moved, std::move(name));
  new_owner.AddChild(std::move(moved));
  return Done{};
}

Status Database::RehomeLocalKey(Entity& item, const Segment& new_owner) {
  if (item.scope_ != KeyScope::kLocal || item.owner_ == &new_owner) return Done{};
  if (local_keys_.contains({&new_owner, item.key_})) {
    return Error(errc::kOutOfRange, "local key " + std::to_string(item.key_) + " is in use in " + FullPath(new_owner));
  }
  local_keys_.erase({item.owner_, item.key_});
  local_keys_[{&new_owner, item.key_}] = &item;
  return Done{};
}

Geometry& Database::CopyGeometry(const Geometry& item, Segment& owner) { return Insert(owner, item.Clone()); }

Status Database::CopyContents(Segment& from, Segment& to) {
  if (!to.IsEmpty()) return Error(errc::kDestinationNotEmpty, FullPath(to) + " is not empty");
  if (IsWithin(to, from)) return Error(errc::kBadName, FullPath(from) + " cannot be copied into its own subtree");
  for (const Segment* source : DepthFirst(from)) {
    for (const Reference& include : source->includes()) {
      if (ReachesSegment(include.target(), to)) {
        return Error(errc::kBadName, "the copy would make " + FullPath(include.target()) + " contain itself");
      }
    }
  }
  // Pairs still to copy; `from` may be inside `to` only as an ancestor,
  // which this walk never reaches again.
  std::vector<std::pair<const Segment*, Segment*>> pending{{&from, &to}};
  while (!pending.empty()) {
    auto [source, target] = pending.back();
    pending.pop_back();
    target->MutableAttributes() = source->attributes();
    for (const OwnedList<Reference>* list : {&source->includes(), &source->styles()}) {
      for (const Reference& reference : *list) {
        static_cast<void>(AddReference(*target, reference.kind(), reference.target(), reference.condition()));
      }
    }
    for (const Geometry& item : source->geometry()) CopyGeometry(item, *target);
    for (const Segment& child : source->children()) {
      pending.emplace_back(&child, &CreateChild(*target, child.name()));
    }
  }
  return Done{};
}

}  // namespace graphics
