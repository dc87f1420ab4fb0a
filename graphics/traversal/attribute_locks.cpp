#include "traversal/attribute_locks.h"

#include "attributes/option_string.h"
#include "attributes/value_attributes.h"

namespace graphics {

namespace {

// The state of one lock entry for `option`: on, off, or not named at all.
enum class LockState { kAbsent, kOn, kOff };

LockState EntryState(const OptionItem& item, std::string_view option) {
  if (item.negated) return LockState::kOff;
  if (!item.value) return LockState::kOn;
  if (*item.value == "on") return LockState::kOn;
  if (*item.value == "off") return LockState::kOff;
  const auto body = SubListBody(*item.value);
  if (!body || option.empty()) return LockState::kOn;
  auto members = ParseOptionList(*body);
  if (!members.ok()) return LockState::kOff;
  for (const OptionItem& member : members.value()) {
    if (member.name == option) return member.negated ? LockState::kOff : LockState::kOn;
  }
  return LockState::kOff;
}

bool ListCovers(const Segment& segment, std::string_view which, AttributeKind kind, std::string_view option) {
  const auto* rendering = segment.attributes().Find<RenderingOptions>();
  const std::string* value = rendering ? rendering->Find(which) : nullptr;
  if (value == nullptr) return false;
  const auto body = SubListBody(*value);
  if (!body) return false;  // "off": nothing locked
  auto items = ParseOptionList(*body);
  if (!items.ok()) return false;
  LockState specific = LockState::kAbsent;
  LockState everything = LockState::kAbsent;
  for (const OptionItem& item : items.value()) {
    if (item.name == AttributeName(kind)) specific = EntryState(item, option);
    if (item.name == "everything") everything = EntryState(item, option);
  }
  if (specific != LockState::kAbsent) return specific == LockState::kOn;
  return everything == LockState::kOn;
}

}  // namespace

bool LocksAttribute(const Segment& segment, AttributeKind kind, std::string_view option) {
  return ListCovers(segment, "attribute lock", kind, option);
}

bool IgnoresSubsegmentLocks(const Segment& segment, AttributeKind kind, std::string_view option) {
  return ListCovers(segment, "ignore subsegment locks", kind, option);
}

}  // namespace graphics
