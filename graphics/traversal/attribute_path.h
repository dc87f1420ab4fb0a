#pragma once
// The one walk that decides net attribute values: the segments whose local
// opinions apply to an item, visited from the root down to the item's
// segment. Inheritance rules live here (owners, includes hopping to their
// includer, styles lending their opinions, conditions choosing conditional
// styles, attribute locks), so every net query and the renderer agree on
// what applies where.
#include <optional>
#include <span>
#include <string>
#include <string_view>
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
  // A key path, lowest item first: each later key must be the segment of
  // the one before or one of its owners, and the walk goes on through the
  // owners of the last key up to the root, unless the list ends with -1,
  // which cuts it there. A geometry key stands for its owner segment.
  static Result<AttributePath> FromKeys(const Database& database, std::span<const long long> keys);

  // Calls visit(const Segment&) from the root down to the leaf: for each
  // segment of the path first its active styles (the earliest made first,
  // so the latest wins), then the segment itself, whose own opinion wins.
  template <typename Visit>
  void Walk(Visit&& visit) const {
    for (size_t i = chain_.size(); i-- > 0;) {
      for (const Segment* style : styles_[i]) visit(*style);
      visit(*chain_[i]);
    }
  }

  // Calls visit(const Segment&) from the root down for each segment whose
  // opinion on option `option` of `kind` counts under attribute locks: below
  // a lock only segments that lock it again (and are not overruled by an
  // "ignore subsegment locks" above) are heard.
  template <typename Visit>
  void WalkHeard(AttributeKind kind, std::string_view option, Visit&& visit) const {
    bool locked = false;
    bool ignoring = false;
    for (size_t i = chain_.size(); i-- > 0;) {
      const Segment& segment = *chain_[i];
      const bool locks_here = LocksHere(segment, kind, option);
      const bool takes_over = locks_here && !ignoring;
      if (!locked || takes_over) {
        for (const Segment* style : styles_[i]) visit(*style);
        visit(segment);
      }
      if (locks_here && (!locked || !ignoring)) {
        locked = true;
        ignoring = IgnoresHere(segment, kind, option);
      }
    }
  }

  // The lowest heard local value of T; null if none.
  template <typename T>
  const T* NetLocal() const {
    const T* found = nullptr;
    WalkHeard(T::kKind, "", [&](const Segment& segment) {
      if (const T* local = segment.attributes().Find<T>()) found = local;
    });
    return found;
  }

  // Local matrices compose, the lower one applying first; identity if none.
  // Styles lend no matrices.
  Matrix NetModellingMatrix() const;
  Matrix NetTextureMatrix() const;
  // Whether any segment on the path sets a texture matrix.
  bool HasTextureMatrix() const { return NetLocal<ValueAttribute<AttributeKind::kTextureMatrix, Matrix>>(); }
  // The value from the lowest heard segment setting the option in the
  // store T (UserOptions or UnicodeOptions); null if none does.
  template <typename T = UserOptions>
  const std::string* NetUserOption(std::string_view name) const {
    const std::string* value = nullptr;
    WalkHeard(AttributeKind::kUserOptions, "", [&](const Segment& segment) {
      const T* options = segment.attributes().Find<T>();
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
  static bool LocksHere(const Segment& segment, AttributeKind kind, std::string_view option);
  static bool IgnoresHere(const Segment& segment, AttributeKind kind, std::string_view option);
  // Fills styles_ once the chain is known: the conditions in force at the
  // leaf choose the conditional styles.
  void FindStyles();
  // Appends a climb found from the chain's last segment, then `top`.
  void Extend(const std::vector<const Segment*>& climbed, const Segment* top);

  std::vector<const Segment*> chain_;                // leaf first
  std::vector<std::vector<const Segment*>> styles_;  // per chain segment
};

}  // namespace graphics
