#include "database/attribute_parts.h"

#include <string>

#include "attributes/option_family.h"
#include "attributes/option_string.h"

namespace graphics {

namespace {

// Applies `remove` to a copy of `local` (null when the attribute is not
// set, where the part is still checked), then stores the copy back with
// `put`, or drops the attribute when nothing of it is left.
template <typename T, typename Remove, typename Put>
Status RemoveFrom(AttributeStore& store, AttributeKind kind, const T* local, Remove&& remove, Put&& put) {
  T changed = local ? *local : T();
  Status removed = remove(changed);
  if (!removed.ok() || local == nullptr) return removed;
  if (changed.empty()) {
    store.Remove(kind);
  } else {
    put(std::move(changed));
  }
  return Done{};
}

}  // namespace

Status RemoveAttributePart(AttributeStore& store, AttributeKind kind, std::string_view part) {
  if (const OptionFamily* family = FamilyOf(kind)) {
    return RemoveFrom(
        store, kind, store.FindOptions(kind), [&](OptionSettings& options) { return options.Remove(*family, part); },
        [&](OptionSettings&& options) { store.FindOrAddOptions(kind) = std::move(options); });
  }
  if (kind == AttributeKind::kColor) {
    return RemoveFrom(
        store, kind, store.Find<ColorSettings>(), [&](ColorSettings& colors) { return colors.Remove(part); },
        [&](ColorSettings&& colors) { store.Set(std::move(colors)); });
  }
  if (kind == AttributeKind::kUserOptions) {
    return RemoveFrom(
        store, kind, store.Find<UserOptions>(),
        [&](UserOptions& options) -> Status {
          options.Remove(NormalizeOptionName(part));
          return Done{};
        },
        [&](UserOptions&& options) { store.Set(std::move(options)); });
  }
  return Error(errc::kUnknownOption,
               "the " + std::string(AttributeName(kind)) + " attribute has no parts to remove one of");
}

}  // namespace graphics
