#pragma once
// Texture definitions: named sets of mapping options used as colours.
// Global textures are process-wide; local ones belong to a segment and are
// seen from it and below, over a global one of the same name. Callers hold
// the engine lock, which guards the global table too.
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "attributes/attribute_kind.h"
#include "attributes/option_family.h"

namespace graphics {

class Segment;

// A definition in stored form. Redefining a name replaces it whole.
using TextureDefinition = OptionSettings;

// The option vocabulary of texture definitions ("source" first).
const OptionFamily& TextureDefinitionFamily();

// Checks a definition: the option grammar, known options, and a "source".
Result<TextureDefinition> ParseTextureDefinition(std::string_view definition);

// A segment's own textures, by name as given (names keep their case).
struct LocalTextures {
  static constexpr AttributeKind kKind = AttributeKind::kLocalTextures;
  std::map<std::string, TextureDefinition> textures;
  bool operator==(const LocalTextures&) const = default;
};

// The process-wide textures, by name.
std::map<std::string, TextureDefinition>& GlobalTextures();

// Whether `name` is a texture seen from `segment` (local ones upward, then
// global); `segment` may be null.
bool TextureVisible(const Segment* segment, std::string_view name);

}  // namespace graphics
