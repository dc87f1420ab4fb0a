#include "traversal/attribute_path.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>

#include "database/reference.h"
#include "traversal/attribute_locks.h"
#include "traversal/condition_expression.h"

namespace graphics {

namespace {

// How deep styles of styles may go; deeper (or circular) ones are ignored.
constexpr int kStyleDepth = 16;

// The segments a style lends: its own styles' first, then itself.
void AddStyle(const Segment& style, const std::function<bool(std::string_view)>& condition_set, int depth,
              std::vector<const Segment*>& out) {
  if (depth > kStyleDepth) return;
  for (const Reference& inner : style.styles()) {
    if (inner.condition().empty() || ConditionHolds(inner.condition(), condition_set)) {
      AddStyle(inner.target(), condition_set, depth + 1, out);
    }
  }
  out.push_back(&style);
}

// Walks up from `from` (inclusive) to `to`; the segments in between, `to`
// excluded. Nothing when `to` is not `from` or one of its owners.
std::optional<std::vector<const Segment*>> Climb(const Segment* from, const Segment* to) {
  std::vector<const Segment*> between;
  for (const Segment* s = from; s != nullptr; s = s->owner()) {
    if (s == to) return between;
    between.push_back(s);
  }
  return std::nullopt;
}

}  // namespace

AttributePath AttributePath::Of(const Segment& leaf) {
  AttributePath path;
  for (const Segment* s = &leaf; s != nullptr; s = s->owner()) path.chain_.push_back(s);
  path.FindStyles();
  return path;
}

void AttributePath::Extend(const std::vector<const Segment*>& climbed, const Segment* top) {
  // The climb starts at the chain's last segment, which is there already.
  if (climbed.empty()) return;
  chain_.insert(chain_.end(), climbed.begin() + 1, climbed.end());
  chain_.push_back(top);
}

void AttributePath::FindStyles() {
  // Conditions in force at the leaf: later (lower) settings win.
  std::map<std::string, bool, std::less<>> conditions;
  for (auto it = chain_.rbegin(); it != chain_.rend(); ++it) {
    const OptionSettings* local = (*it)->attributes().FindOptions(AttributeKind::kConditions);
    if (local == nullptr) continue;
    for (const auto& entry : local->entries()) conditions[entry.name] = entry.value != "off";
  }
  const std::function<bool(std::string_view)> condition_set = [&](std::string_view name) {
    const auto found = conditions.find(name);
    return found != conditions.end() && found->second;
  };
  styles_.assign(chain_.size(), {});
  for (size_t i = 0; i < chain_.size(); ++i) {
    for (const Reference& style : chain_[i]->styles()) {
      if (style.condition().empty() || ConditionHolds(style.condition(), condition_set)) {
        AddStyle(style.target(), condition_set, 1, styles_[i]);
      }
    }
  }
}

Result<AttributePath> AttributePath::FromKeys(const Database& database, std::span<const long long> keys) {
  AttributePath path;
  bool cut = false;
  for (size_t i = 0; i < keys.size(); ++i) {
    if (keys[i] == -1) {
      if (i == 0) return Error(errc::kInvalidKey, "a key path cannot start with -1");
      cut = true;
      break;
    }
    auto item = database.FindItem(keys[i]);
    if (!item.ok()) return item.error();
    const Entity& entity = *item.value();
    if (i == 0) {
      const Segment* segment = entity.kind() == EntityKind::kSegment ? static_cast<const Segment*>(&entity)
                                                                     : entity.owner();
      if (segment == nullptr) return Error(errc::kInvalidKey, "key path item has no segment");
      path.chain_.push_back(segment);
      continue;
    }
    // The lower part of the path continues through the owners up to the
    // included segment, then hops to the includer.
    const Segment* included = nullptr;
    const Segment* includer = nullptr;
    if (entity.kind() == EntityKind::kInclude) {
      included = &static_cast<const Reference&>(entity).target();
      includer = entity.owner();
    } else if (entity.kind() == EntityKind::kSegment) {
      const auto* segment = static_cast<const Segment*>(&entity);
      if (auto between = Climb(path.chain_.back(), segment)) {
        path.Extend(*between, segment);
        continue;
      }
      // A segment key in place of an include key: it must hold exactly one
      // include of a segment on the way up.
      for (const Reference& include : segment->includes()) {
        if (!Climb(path.chain_.back(), &include.target())) continue;
        if (included != nullptr) return Error(errc::kInvalidKey, "key path: the includer is ambiguous");
        included = &include.target();
        includer = segment;
      }
    } else {
      return Error(errc::kWrongKeyKind, "only the first key of a key path may name geometry");
    }
    const auto between = included ? Climb(path.chain_.back(), included) : std::nullopt;
    if (!between || includer == nullptr) {
      return Error(errc::kInvalidKey, "key path: a key is not above the one before it");
    }
    path.Extend(*between, included);
    path.chain_.push_back(includer);
  }
  if (!cut && !path.chain_.empty()) {
    for (const Segment* s = path.chain_.back()->owner(); s != nullptr; s = s->owner()) path.chain_.push_back(s);
  }
  path.FindStyles();
  return path;
}

bool AttributePath::LocksHere(const Segment& segment, AttributeKind kind, std::string_view option) {
  return LocksAttribute(segment, kind, option);
}

bool AttributePath::IgnoresHere(const Segment& segment, AttributeKind kind, std::string_view option) {
  return IgnoresSubsegmentLocks(segment, kind, option);
}

Matrix AttributePath::NetModellingMatrix() const {
  Matrix net;
  for (auto it = chain_.rbegin(); it != chain_.rend(); ++it) {
    if (const auto* local = (*it)->attributes().Find<ModellingMatrix>()) net = local->matrix.Then(net);
  }
  return net;
}

Matrix AttributePath::NetTextureMatrix() const {
  Matrix net;
  for (auto it = chain_.rbegin(); it != chain_.rend(); ++it) {
    if (const auto* local = (*it)->attributes().Find<TextureMatrix>()) net = local->value.Then(net);
  }
  return net;
}

NetOption AttributePath::NetOptionValue(const OptionFamily& family, std::string_view option) const {
  NetOption net;
  for (const OptionDefault& fallback : family.defaults) {
    if (fallback.name == option) net.value = fallback.value;
  }
  WalkHeard(family.kind, option, [&](const Segment& segment) {
    const OptionSettings* local = segment.attributes().FindOptions(family.kind);
    if (const std::string* value = local ? local->Find(option) : nullptr) {
      net.value = *value;
      net.set = true;
    }
  });
  return net;
}

OptionSettings AttributePath::NetOptions(const OptionFamily& family) const {
  OptionSettings net;
  for (const OptionDefault& fallback : family.defaults) net.Put(family, std::string(fallback.name), std::string(fallback.value));
  // Options are heard one by one: a lock may cover some and not others.
  std::vector<std::string> names;
  Walk([&](const Segment& segment) {
    if (const OptionSettings* local = segment.attributes().FindOptions(family.kind)) {
      for (const auto& entry : local->entries()) names.push_back(entry.name);
    }
  });
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  for (const std::string& name : names) {
    const NetOption value = NetOptionValue(family, name);
    if (value.set) net.Put(family, name, value.value);
  }
  return net;
}

}  // namespace graphics
