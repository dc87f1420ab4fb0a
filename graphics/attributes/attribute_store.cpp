#include "attributes/attribute_store.h"

#include <algorithm>
#include <utility>

namespace graphics {

namespace {

// The store reads a value's kind from its variant index; this proves, for
// every alternative, that the two agree.
template <size_t... I>
constexpr bool KindsMatchIndices(std::index_sequence<I...>) {
  return ((static_cast<size_t>(std::variant_alternative_t<I, AttributeValue>::kKind) == I) && ...);
}
static_assert(KindsMatchIndices(std::make_index_sequence<std::variant_size_v<AttributeValue>>()),
              "AttributeValue alternatives must follow AttributeKind order");

}  // namespace

bool AttributeStore::Remove(AttributeKind kind) {
  auto found = Locate(kind);
  if (found == values_.end()) return false;
  values_.erase(found);
  return true;
}

AttributeStore::Values::const_iterator AttributeStore::Locate(AttributeKind kind) const {
  return std::find_if(values_.begin(), values_.end(),
                      [kind](const AttributeValue& value) { return KindOf(value) == kind; });
}

AttributeStore::Values::iterator AttributeStore::Locate(AttributeKind kind) {
  return std::find_if(values_.begin(), values_.end(),
                      [kind](const AttributeValue& value) { return KindOf(value) == kind; });
}

AttributeStore::Values::iterator AttributeStore::Insertion(AttributeKind kind) {
  return std::find_if(values_.begin(), values_.end(),
                      [kind](const AttributeValue& value) { return KindOf(value) > kind; });
}

}  // namespace graphics
