#pragma once
// The one walk that decides net attribute values: the segments whose local
// opinions apply to an item, visited from the root down to the item's
// segment. Inheritance rules live here (owners, includes hopping to their
// includer, styles lending their opinions, conditions choosing conditional
// styles, attribute locks), so every net query and the renderer agree on
// what applies where.
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "attributes/option_family.h"
#include "database/database.h"
#include "database/segment.h"
#include "math/matrix.h"

namespace graphics {

// An option's net value, and whether a segment on the path set it (false
// for the engine's default).
struct NetOption {
  std::string value;
  bool set = false;
};

class AttributePath {
 public:
  // No segments at all: every net value is the default.
  AttributePath() = default;
  // `leaf` and its owners up to the root.
  static AttributePath Of(const Segment& leaf);
  // The attributes of a geometry item (and of one part of it, when given),
  // heard below those of its segment and the segment's owners.
  static AttributePath Of(const Geometry& leaf, const AttributeStore* part = nullptr);
  // A key path, lowest item first: each later key must be the segment of
  // the one before or one of its owners, or an include (or the including
  // segment) of it, and the walk goes on through the owners of the last key
  // up to the root, unless the list ends with -1, which cuts it there. A
  // geometry key first brings its own attributes, then its segment's. An
  // include whose condition does not hold at its includer joins nothing.
  static Result<AttributePath> FromKeys(const Database& database, std::span<const long long> keys);

  // Calls visit from the root down to the leaf: for each segment of the
  // path first its active styles (the earliest made first, so the latest
  // wins), then the segment itself, whose own opinion wins, then the leaf
  // geometry's attributes. `visit` takes a const AttributeStore&, or a const
  // Segment& to be shown segments only.
  template <typename Visit>
  void Walk(Visit&& visit) const {
    ForEachLevel([&](const Level& level) { VisitLevel(level, visit); });
  }

  // As Walk, but only what is heard for option `option` of `kind` ("" for
  // the attribute as a whole) under attribute locks: below a lock only
  // segments that lock it again (and are not overruled by an "ignore
  // subsegment locks" above) are heard; geometry below a lock is not.
  template <typename Visit>
  void WalkHeard(AttributeKind kind, std::string_view option, Visit&& visit) const {
    ForEachLevel([&](const Level& level) { VisitLevel(level, visit); }, kind, option);
  }

  // The lowest heard local value of T; null if none.
  template <typename T>
  const T* NetLocal() const {
    const T* found = nullptr;
    WalkHeard(T::kKind, "", [&](const AttributeStore& store) {
      if (const T* local = store.Find<T>()) found = local;
    });
    return found;
  }

  // Heard local matrices compose, the lower one applying first; identity if
  // none. At each segment its own matrix is its opinion, else that of its
  // latest active style holding one.
  Matrix NetModellingMatrix() const;
  Matrix NetTextureMatrix() const;
  // Whether a heard segment on the path, or one of its styles, sets the
  // matrix of `kind` (kModellingMatrix or kTextureMatrix).
  bool HasMatrix(AttributeKind kind) const;
  // The value from the lowest heard segment setting the option in the
  // store T (UserOptions or UnicodeOptions); null if none does.
  template <typename T = UserOptions>
  const std::string* NetUserOption(std::string_view name) const {
    const std::string* value = nullptr;
    WalkHeard(AttributeKind::kUserOptions, "", [&](const AttributeStore& store) {
      const T* options = store.Find<T>();
      if (const std::string* local = options ? options->Find(name) : nullptr) value = local;
    });
    return value;
  }

  // One option of an option-list family: the lowest heard setting, else the
  // family's default, else "" and not set. `option` is canonical.
  NetOption NetOptionValue(const OptionFamily& family, std::string_view option) const;
  // Every option with a net value: defaults, overridden by heard settings.
  OptionSettings NetOptions(const OptionFamily& family) const;

  bool empty() const { return chain_.empty(); }
  const Segment* leaf() const { return chain_.empty() ? nullptr : chain_.front(); }

 private:
  // One step of the walk: a segment with its active styles, or (segment
  // null) a store of the leaf geometry.
  struct Level {
    const Segment* segment;
    const std::vector<const Segment*>& styles;
    const AttributeStore& store;
  };

  template <typename Visit>
  static void VisitLevel(const Level& level, Visit& visit) {
    if constexpr (std::is_invocable_v<Visit&, const AttributeStore&>) {
      for (const Segment* style : level.styles) visit(style->attributes());
      visit(level.store);
    } else {
      if (level.segment == nullptr) return;
      for (const Segment* style : level.styles) visit(*style);
      visit(*level.segment);
    }
  }

  // Calls level(const Level&) from the root down; given a kind, only for
  // the levels heard for (kind, option) under attribute locks.
  void ForEachLevel(const std::function<void(const Level&)>& level, std::optional<AttributeKind> heard = std::nullopt,
                    std::string_view option = "") const;
  Matrix NetMatrix(AttributeKind kind) const;
  static bool LocksHere(const Segment& segment, AttributeKind kind, std::string_view option);
  static bool IgnoresHere(const Segment& segment, AttributeKind kind, std::string_view option);
  // The conditions in force at chain_[index]: a test of a name.
  std::function<bool(std::string_view)> ConditionsAt(size_t index) const;
  // Fills styles_ once the chain is known: the conditions in force at the
  // leaf choose the conditional styles.
  void FindStyles();
  // Appends a climb found from the chain's last segment, then `top`.
  void Extend(const std::vector<const Segment*>& climbed, const Segment* top);

  std::vector<const Segment*> chain_;                // leaf first
  std::vector<std::vector<const Segment*>> styles_;  // per chain segment
  // The leaf geometry's store, then its part's, heard after the leaf segment.
  std::vector<const AttributeStore*> below_;
};

}  // namespace graphics
