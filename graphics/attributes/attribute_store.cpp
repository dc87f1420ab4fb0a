#include "attributes/attribute_store.h"

#include <algorithm>
#include <type_traits>
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

// A default value of the alternative whose kind is `kind`.
template <size_t... I>
AttributeValue MakeValue(AttributeKind kind, std::index_sequence<I...>) {
  AttributeValue value;
  static_cast<void>(((static_cast<size_t>(kind) == I ? (value.emplace<I>(), true) : false) || ...));
  return value;
}

}  // namespace

const OptionSettings* AttributeStore::FindOptions(AttributeKind kind) const {
  auto found = Locate(kind);
  if (found == values_.end()) return nullptr;
  return std::visit([](const auto& value) -> const OptionSettings* {
    if constexpr (std::is_base_of_v<OptionSettings, std::decay_t<decltype(value)>>) {
      return &value;
    } else {
      return nullptr;
    }
  }, *found);
}

OptionSettings& AttributeStore::FindOrAddOptions(AttributeKind kind) {
  auto found = Locate(kind);
  if (found == values_.end()) {
    found = values_.insert(Insertion(kind), MakeValue(kind, std::make_index_sequence<std::variant_size_v<AttributeValue>>()));
  }
  return *std::visit([](auto& value) -> OptionSettings* {
    if constexpr (std::is_base_of_v<OptionSettings, std::decay_t<decltype(value)>>) {
      return &value;
    } else {
      return nullptr;  // callers pass option-list kinds only
    }
  }, *found);
}

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
