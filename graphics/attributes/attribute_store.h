#pragma once
// The local attributes of one segment, geometry item or open part: at most
// one value per kind, in one generic store so copying, flushing, listing and
// inheritance treat every family alike. A value type T joins by naming its
// kind as T::kKind and being added to AttributeValue.
#include <variant>
#include <vector>

#include "attributes/attribute_kind.h"
#include "attributes/camera.h"
#include "attributes/color.h"
#include "attributes/modelling_matrix.h"
#include "attributes/regions.h"
#include "attributes/textures.h"
#include "attributes/user_data.h"
#include "attributes/user_options.h"
#include "attributes/value_attributes.h"

namespace graphics {

// Alternatives in AttributeKind order, so a value's index is its kind.
using AttributeValue =
    std::variant<ModellingMatrix, UserOptions, Visibility, Selectability, Heuristics, RenderingOptions, DriverOptions,
                 TextFont, Conditions, Callbacks, LineWeight, EdgeWeight, MarkerSize, LinePattern, EdgePattern,
                 MarkerSymbol, Handedness, TextAlignment, WindowFrame, WindowPattern, TextPath, TextSpacing, Window,
                 TextureMatrix, Camera, UnicodeOptions, UserIndices, UserValue,
                 ColorSettings, ColorMap, LocalTextures, ClipRegion, TextRegion, GeometryOptions, Normal>;

class AttributeStore {
 public:
  template <typename T>
  const T* Find() const {
    auto found = Locate(T::kKind);
    return found == values_.end() ? nullptr : &std::get<T>(*found);
  }

  // The stored value, added default-constructed when absent.
  template <typename T>
  T& FindOrAdd() {
    auto found = Locate(T::kKind);
    if (found == values_.end()) {
      found = values_.insert(Insertion(T::kKind), AttributeValue(std::in_place_type<T>));
    }
    return std::get<T>(*found);
  }

  template <typename T>
  void Set(T value) {
    FindOrAdd<T>() = std::move(value);
  }

  // Whether the kind was there.
  bool Remove(AttributeKind kind);
  bool Has(AttributeKind kind) const { return Locate(kind) != values_.end(); }
  bool empty() const { return values_.empty(); }

  // The option settings of an option-list kind, or null when absent or the
  // kind is not an option list.
  const OptionSettings* FindOptions(AttributeKind kind) const;
  // As above, added empty when absent; the kind must be an option list.
  OptionSettings& FindOrAddOptions(AttributeKind kind);

 private:
  using Values = std::vector<AttributeValue>;

  static AttributeKind KindOf(const AttributeValue& value) { return static_cast<AttributeKind>(value.index()); }
  Values::const_iterator Locate(AttributeKind kind) const;
  Values::iterator Locate(AttributeKind kind);
  Values::iterator Insertion(AttributeKind kind);

  // Sorted by kind; a segment holds few kinds, so a flat vector beats a map.
  Values values_;
};

}  // namespace graphics
