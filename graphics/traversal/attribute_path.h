#pragma once
// The one walk that decides net attribute values: the segments whose local
// opinions apply to an item, visited from the root down to the item's
// segment. Inheritance rules live here as they arrive (includes hopping to
// their includer, styles, conditions, attribute locks), so every net query
// and the renderer agree on what applies where.
#include <string>
#include <string_view>
#include <vector>

#include "database/segment.h"
#include "math/matrix.h"

namespace graphics {

class AttributePath {
 public:
  // `leaf` and its owners up to the root.
  static AttributePath Of(const Segment& leaf);

  // Calls visit(const Segment&) from the root down to the leaf.
  template <typename Visit>
  void Walk(Visit&& visit) const {
    for (auto it = chain_.rbegin(); it != chain_.rend(); ++it) visit(**it);
  }

  // Local matrices compose, the lower one applying first; identity if none.
  Matrix NetModellingMatrix() const;
  // The value from the lowest segment setting the option; null if none does.
  const std::string* NetUserOption(std::string_view name) const;

 private:
  std::vector<const Segment*> chain_;  // leaf first
};

}  // namespace graphics
