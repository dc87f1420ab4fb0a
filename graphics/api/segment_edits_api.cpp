// Renaming, moving, copying and flushing parts of the tree.
#include <string>
#include <utility>
#include <vector>

#include "api/arguments.h"
#include "api/call.h"
#include "database/attribute_parts.h"
#include "database/segment_path.h"
#include "hc/hc.h"
#include "search/contents_filter.h"
#include "search/segment_spec.h"
#include "strings/quoting.h"
#include "strings/text.h"

using graphics::ContentsFilter;
using graphics::Database;
using graphics::Done;
using graphics::Entity;
using graphics::EntityKind;
using graphics::Error;
using graphics::Result;
using graphics::Segment;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::Require;
using graphics::api::Run;
namespace errc = graphics::errc;

namespace {

// Where a rename or copy puts a segment: the owner, and the leaf name,
// unless the destination ended in "/*", which keeps each source's own. A
// path that ends in a step rather than a name (".", "..", "^", a key)
// names an existing segment itself, which only a copy can go into.
struct Destination {
  Segment* owner = nullptr;
  std::optional<std::string> leaf;  // stored form; empty for anonymous
  Segment* itself = nullptr;
};

// The position of the last "/" outside quotes, or npos.
size_t LastSlash(std::string_view path) {
  size_t last = std::string_view::npos;
  for (size_t i = 0; i < path.size(); ++i) {
    if (graphics::IsQuote(path[i])) {
      i = graphics::FindClosingQuote(path, i);
      if (i == std::string_view::npos) break;
    } else if (path[i] == '/') {
      last = i;
    }
  }
  return last;
}

// Reads a destination path; its owner is created when missing. A blank
// path stands for an anonymous segment beside `source_owner`.
Result<Destination> ReadDestination(Session& session, std::string_view path, Segment* source_owner) {
  auto expanded = session.database().aliases().Expand(path);
  if (!expanded.ok()) return expanded.error();
  const std::string_view text = graphics::TrimBlanks(expanded.value());
  if (text.empty()) return Destination{source_owner, std::string()};
  const size_t slash = LastSlash(text);
  const std::string_view leaf = graphics::TrimBlanks(slash == std::string_view::npos ? text : text.substr(slash + 1));
  const std::string owner_path =
      slash == std::string_view::npos ? "." : slash == 0 ? "/" : std::string(text.substr(0, slash));
  auto owner = session.Resolve(owner_path, graphics::Creation::kCreateMissing);
  if (!owner.ok()) return owner.error();
  if (owner.value() == nullptr) return Error(errc::kRelativeWithNothingOpen, "nothing is open");
  if (leaf == "*") return Destination{owner.value(), std::nullopt};
  auto component = graphics::ParseComponent(path, leaf);
  if (!component.ok()) return component.error();
  if (component.value().kind != graphics::PathComponent::Kind::kName) {
    auto itself = session.Resolve(text, graphics::Creation::kCreateMissing);
    if (!itself.ok()) return itself.error();
    return Destination{nullptr, std::nullopt, itself.value()};
  }
  return Destination{owner.value(), component.value().name, nullptr};
}

// The segments a specification names: at least one must exist.
Result<std::vector<Segment*>> Sources(Session& session, const char* spec) {
  auto required = Require(spec, "segment specification");
  if (!required.ok()) return required.error();
  auto matched = graphics::MatchSegments(session.database(), session.current(), spec);
  if (!matched.ok()) return matched.error();
  if (matched.value().empty()) return Error(errc::kNoSuchSegment, "no segment matches '" + std::string(spec) + "'");
  return matched;
}

// The local attributes `segment` keeps after the flush's removals; an
// unknown part is an error.
Result<graphics::AttributeStore> FlushedAttributes(const Segment& segment,
                                                   const std::vector<ContentsFilter::AttributeRemoval>& removals) {
  graphics::AttributeStore kept = segment.attributes();
  for (const ContentsFilter::AttributeRemoval& removal : removals) {
    if (removal.parts.empty()) kept.Remove(removal.kind);
    for (const std::string& part : removal.parts) {
      auto removed = graphics::RemoveAttributePart(kept, removal.kind, part);
      if (!removed.ok()) return removed.error();
    }
  }
  return kept;
}

Status Flush(Session& session, const char* spec, const char* filter) {
  auto required = Require(filter, "type list");
  if (!required.ok()) return required;
  auto parsed = ContentsFilter::Parse(filter);
  if (!parsed.ok()) return parsed.error();
  auto required_spec = Require(spec, "segment specification");
  if (!required_spec.ok()) return required_spec;
  auto segments = graphics::MatchSegments(session.database(), session.current(), spec);
  if (!segments.ok()) return segments.error();
  // Every segment's attributes are worked out first, so an unknown part
  // leaves everything as it was.
  std::vector<std::pair<Segment*, graphics::AttributeStore>> attribute_changes;
  for (Segment* segment : segments.value()) {
    const auto removals = parsed.value().Removals(*segment);
    if (removals.empty()) continue;
    auto kept = FlushedAttributes(*segment, removals);
    if (!kept.ok()) return kept.error();
    attribute_changes.emplace_back(segment, std::move(kept.value()));
  }
  for (auto& [segment, kept] : attribute_changes) segment->MutableAttributes() = std::move(kept);
  Status outcome = Done{};
  for (Segment* segment : segments.value()) {
    // By library key, since deleting a subsegment also deletes the
    // includes of it.
    std::vector<long long> keys;
    for (Entity* item : parsed.value().KeyedItems(*segment)) keys.push_back(item->library_key());
    for (long long key : keys) {
      Entity* item = session.database().FindByLibraryKey(key);
      if (item == nullptr) continue;
      // Open segments stay; the others still go.
      auto deleted = session.database().Delete(*item);
      if (!deleted.ok()) outcome = deleted;
    }
  }
  return outcome;
}

Status BringToFront(Entity& item) {
  if (item.owner() == nullptr) return Error(errc::kRootNotDeletable, "the root segment has no siblings");
  item.owner()->BringToFront(item);
  return Done{};
}

}  // namespace

// Matches are collected before anything moves; a new name ending in "/*"
// keeps each segment's own name, and a blank one makes it anonymous.
extern "C" void HC_Rename_Segment(char const* old_name, char const* new_name) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto sources = Sources(session, old_name);
    if (!sources.ok()) return sources.error();
    auto required = Require(new_name, "new name");
    if (!required.ok()) return required;
    for (Segment* source : sources.value()) {
      auto destination = ReadDestination(session, new_name, source->owner());
      if (!destination.ok()) return destination.error();
      const Destination& d = destination.value();
      if (d.itself != nullptr) {
        return Error(errc::kBadName, "'" + std::string(new_name) + "' does not end in a name");
      }
      auto moved = session.database().Move(*source, *d.owner, d.leaf ? *d.leaf : source->name());
      if (!moved.ok()) return moved;
    }
    return Done{};
  });
}

// The destination is made when missing and must be empty; the key of the
// (last) copy comes back. A destination that holds something is reported
// and left alone, and its key still comes back.
extern "C" long long HC_Copy_Segment(char const* old_seg_name, char const* new_seg_name) {
  long long key = -1;
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto sources = Sources(session, old_seg_name);
    if (!sources.ok()) return sources.error();
    auto required = Require(new_seg_name, "new name");
    if (!required.ok()) return required.error();
    for (Segment* source : sources.value()) {
      auto destination = ReadDestination(session, new_seg_name, source->owner());
      if (!destination.ok()) return destination.error();
      const Destination& d = destination.value();
      const std::string leaf = d.leaf ? *d.leaf : source->name();
      Segment* target = d.itself;
      if (target == nullptr && !leaf.empty()) target = d.owner->FindChild(leaf);
      if (target == nullptr) target = &session.database().CreateChild(*d.owner, leaf);
      auto copied = session.database().CopyContents(*source, *target);
      const bool copy_refused = !copied.ok() && copied.error().specific() != errc::kDestinationNotEmpty.specific;
      key = copy_refused ? -1 : target->key();
      if (!copied.ok()) return copied;
    }
    return Done{};
  });
  return key;
}

extern "C" long long HC_Copy_Geometry(long long key, char const* segment) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto item = session.database().FindItem(key);
    if (!item.ok()) return item.error();
    if (item.value()->kind() != EntityKind::kGeometry) {
      return Error(errc::kWrongKeyKind, "key " + std::to_string(key) + " does not refer to geometry");
    }
    auto required = Require(segment, "segment name");
    if (!required.ok()) return required.error();
    auto owner = session.FindSegment(segment);
    if (!owner.ok()) return owner.error();
    if (owner.value() == nullptr) return -1LL;
    return session.database().CopyGeometry(static_cast<const graphics::Geometry&>(*item.value()), *owner.value()).key();
  });
}

extern "C" void HC_Move_By_Key(long long key, char const* newowner) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto item = session.database().FindItem(key);
    if (!item.ok()) return item.error();
    auto required = Require(newowner, "new owner");
    if (!required.ok()) return required;
    auto owner = session.FindSegment(newowner);
    if (!owner.ok()) return owner.error();
    if (owner.value() == nullptr) return Done{};
    const std::string name = item.value()->kind() == EntityKind::kSegment ? static_cast<Segment*>(item.value())->name() : "";
    return session.database().Move(*item.value(), *owner.value(), name);
  });
}

extern "C" void HC_Move_Key_By_Key(long long key, long long newowner) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto item = session.database().FindItem(key);
    if (!item.ok()) return item.error();
    auto owner = session.database().FindSegment(newowner);
    if (!owner.ok()) return owner.error();
    const std::string name = item.value()->kind() == EntityKind::kSegment ? static_cast<Segment*>(item.value())->name() : "";
    return session.database().Move(*item.value(), *owner.value(), name);
  });
}

// Segments stay; an open subsegment is kept and reported, the rest goes.
extern "C" void HC_Flush_Contents(char const* segment, char const* filter) {
  Run(Access::kWrite, __func__, [&](Session& session) { return Flush(session, segment, filter); });
}

extern "C" void HC_Flush_Geometry(char const* segment) {
  Run(Access::kWrite, __func__, [&](Session& session) { return Flush(session, segment, "geometry"); });
}

// The item goes last in its owner's stored order, which is what searches
// report.
extern "C" void HC_Bring_To_Front(char const* segment) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto sources = Sources(session, segment);
    if (!sources.ok()) return sources.error();
    for (Segment* source : sources.value()) {
      auto brought = BringToFront(*source);
      if (!brought.ok()) return brought;
    }
    return Done{};
  });
}

extern "C" void HC_Bring_To_Front_By_Key(long long key) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto item = session.database().FindItem(key);
    if (!item.ok()) return item.error();
    return BringToFront(*item.value());
  });
}
