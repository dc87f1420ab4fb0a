#pragma once
// A segment's colours: per target (faces, edges, text, windows...) and
// channel (diffuse, specular, transmission...), each a colour, a texture
// name, a colour-map index or, for gloss and index of refraction, a number.
// Setting merges per (target, channel) pair.
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "attributes/attribute_kind.h"
#include "errors/error.h"
#include "math/color_conversion.h"

namespace graphics {

struct ColorValue {
  enum class Kind { kRgb, kTexture, kIndex, kNumber };
  Kind kind = Kind::kRgb;
  ColorTriple rgb{};
  // As shown: a colour name, "(r=… g=… b=…)", a texture name, "index=n" or
  // a number.
  std::string text;
  float number = 0;  // the map index or the number

  bool operator==(const ColorValue&) const = default;
};

// Whether a name is a texture seen from the segment being coloured.
using TextureLookup = std::function<bool(std::string_view)>;

// A colour in the grammar: a name ("red", "light blue", "pinkish orange",
// "red-blue"), a primitive "(r=1 g=0.5 b=0)" in RGB, HSV, HLS or HIC, a
// parenthesised colour, or a texture name. An error when it is none.
Result<ColorValue> ParseColor(std::string_view text, const TextureLookup& is_texture);
// An RGB colour as shown: "(r=1 g=0.5 b=0)".
ColorValue RgbColor(ColorTriple rgb);

// The targets a colour target word stands for ("polygons": faces and edges);
// an error for an unknown word.
Result<std::vector<std::string>> ColorTargets(std::string_view word);
// The canonical channel of a channel word ("diffuse color" is diffuse).
std::optional<std::string> ColorChannel(std::string_view word);

class ColorSettings {
 public:
  static constexpr AttributeKind kKind = AttributeKind::kColor;

  struct Entry {
    std::string target;
    std::string channel;
    ColorValue value;
    bool operator==(const Entry&) const = default;
  };

  // Applies a colour specification; a bad one changes nothing.
  Status Merge(std::string_view spec, const TextureLookup& is_texture);
  void Put(const std::string& target, const std::string& channel, ColorValue value);
  // "target" removes all its channels, "target=channel" one. Not set: no-op.
  Status Remove(std::string_view which);

  const ColorValue* Find(std::string_view target, std::string_view channel) const;
  // One target's (or an all-alike group's) value as Show_One gives it; null
  // when not set.
  Result<std::optional<std::string>> FindOne(std::string_view type) const;
  // Canonical: targets in vocabulary order, `target=value` when only diffuse
  // is set, else `target=(channel=value,…)`; "geometry" or "polygons" when
  // all their members agree.
  std::string Format() const;

  const std::vector<Entry>& entries() const { return entries_; }
  bool empty() const { return entries_.empty(); }
  bool operator==(const ColorSettings&) const = default;

 private:
  std::string FormatTarget(std::string_view target) const;

  std::vector<Entry> entries_;
};

// The colour map: colours by index for Set_Color_By_Index.
struct ColorMap {
  static constexpr AttributeKind kKind = AttributeKind::kColorMap;
  std::vector<ColorTriple> entries{{0, 0, 0}, {1, 1, 1}};
  bool operator==(const ColorMap&) const = default;
};

// The default diffuse colour of a target: white for windows, grey 0.2 for
// ambient light, black for the rest.
ColorTriple DefaultColor(std::string_view target);

}  // namespace graphics
