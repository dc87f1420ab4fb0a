#include "traversal/attribute_path.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
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

AttributePath AttributePath::Of(const Geometry& leaf, const AttributeStore* part) {
  AttributePath path = leaf.owner() ? Of(*leaf.owner()) : AttributePath();
  path.below_.push_back(&leaf.attributes());
  if (part != nullptr) path.below_.push_back(part);
  return path;
}

void AttributePath::Extend(const std::vector<const Segment*>& climbed, const Segment* top) {
  // The climb starts at the chain's last segment, which is there already.
  if (climbed.empty()) return;
  chain_.insert(chain_.end(), climbed.begin() + 1, climbed.end());
  chain_.push_back(top);
}

std::function<bool(std::string_view)> AttributePath::ConditionsAt(size_t index) const {
  // Lower settings win.
  auto conditions = std::make_shared<std::map<std::string, bool, std::less<>>>();
  for (size_t i = chain_.size(); i-- > index;) {
    const OptionSettings* local = chain_[i]->attributes().FindOptions(AttributeKind::kConditions);
    if (local == nullptr) continue;
    for (const auto& entry : local->entries()) (*conditions)[entry.name] = entry.value != "off";
  }
  return [conditions](std::string_view name) {
    const auto found = conditions->find(name);
    return found != conditions->end() && found->second;
  };
}

void AttributePath::FindStyles() {
  const std::function<bool(std::string_view)> condition_set = ConditionsAt(0);
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
  // Conditional includes the path goes through, by their includer's place
  // in the chain: each must hold there once the chain above is known.
  std::vector<std::pair<size_t, const Reference*>> conditional;
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
      if (entity.kind() == EntityKind::kGeometry) path.below_.push_back(&static_cast<const Geometry&>(entity).attributes());
      continue;
    }
    // The lower part of the path continues through the owners up to the
    // included segment, then hops to the includer.
    const Reference* hop = nullptr;
    if (entity.kind() == EntityKind::kInclude) {
      hop = &static_cast<const Reference&>(entity);
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
        if (hop != nullptr) return Error(errc::kInvalidKey, "key path: the includer is ambiguous");
        hop = &include;
      }
    } else {
      return Error(errc::kWrongKeyKind, "only the first key of a key path may name geometry");
    }
    const auto between = hop ? Climb(path.chain_.back(), &hop->target()) : std::nullopt;
    if (!between || hop->owner() == nullptr) {
      return Error(errc::kInvalidKey, "key path: a key is not above the one before it");
    }
    path.Extend(*between, &hop->target());
    path.chain_.push_back(hop->owner());
    if (!hop->condition().empty()) conditional.emplace_back(path.chain_.size() - 1, hop);
  }
  if (!cut && !path.chain_.empty()) {
    for (const Segment* s = path.chain_.back()->owner(); s != nullptr; s = s->owner()) path.chain_.push_back(s);
  }
  for (const auto& [includer, include] : conditional) {
    if (!ConditionHolds(include->condition(), path.ConditionsAt(includer))) {
      return Error(errc::kInvalidKey, "key path: the include's condition does not hold at its includer");
    }
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

void AttributePath::ForEachLevel(const std::function<void(const Level&)>& level, std::optional<AttributeKind> heard,
                                 std::string_view option) const {
  bool locked = false;
  bool ignoring = false;
  for (size_t i = chain_.size(); i-- > 0;) {
    const Segment& segment = *chain_[i];
    const bool locks_here = heard && LocksHere(segment, *heard, option);
    const bool takes_over = locks_here && !ignoring;
    if (!locked || takes_over) level(Level{&segment, styles_[i], segment.attributes()});
    if (locks_here && (!locked || !ignoring)) {
      locked = true;
      ignoring = IgnoresHere(segment, *heard, option);
    }
  }
  if (locked) return;
  static const std::vector<const Segment*> kNoStyles;
  for (const AttributeStore* store : below_) level(Level{nullptr, kNoStyles, *store});
}

namespace {

const Matrix* LocalMatrix(const AttributeStore& store, AttributeKind kind) {
  if (kind == AttributeKind::kModellingMatrix) {
    const auto* local = store.Find<ModellingMatrix>();
    return local ? &local->matrix : nullptr;
  }
  const auto* local = store.Find<TextureMatrix>();
  return local ? &local->value : nullptr;
}

// A level's opinion on a matrix: its own, else its latest style's.
template <typename Level>
const Matrix* MatrixOpinion(const Level& level, AttributeKind kind) {
  if (const Matrix* own = LocalMatrix(level.store, kind)) return own;
  for (auto style = level.styles.rbegin(); style != level.styles.rend(); ++style) {
    if (const Matrix* lent = LocalMatrix((*style)->attributes(), kind)) return lent;
  }
  return nullptr;
}

}  // namespace

Matrix AttributePath::NetMatrix(AttributeKind kind) const {
  Matrix net;
  ForEachLevel([&](const Level& level) {
    if (const Matrix* opinion = MatrixOpinion(level, kind)) net = opinion->Then(net);
  }, kind);
  return net;
}

Matrix AttributePath::NetModellingMatrix() const { return NetMatrix(AttributeKind::kModellingMatrix); }
Matrix AttributePath::NetTextureMatrix() const { return NetMatrix(AttributeKind::kTextureMatrix); }

bool AttributePath::HasMatrix(AttributeKind kind) const {
  bool set = false;
  ForEachLevel([&](const Level& level) { set = set || MatrixOpinion(level, kind) != nullptr; }, kind);
  return set;
}

NetOption AttributePath::NetOptionValue(const OptionFamily& family, std::string_view option) const {
  NetOption net;
  for (const OptionDefault& fallback : family.defaults) {
    if (fallback.name == option) net.value = fallback.value;
  }
  WalkHeard(family.kind, option, [&](const AttributeStore& store) {
    const OptionSettings* local = store.FindOptions(family.kind);
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
  Walk([&](const AttributeStore& store) {
    if (const OptionSettings* local = store.FindOptions(family.kind)) {
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
