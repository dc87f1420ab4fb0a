#include "attributes/textures.h"

#include "database/segment.h"

namespace graphics {

namespace {

using V = OptionValue;

constexpr OptionSpec kTextureOptions[] = {
    {"source", V::kText},                 {"tiling", V::kWord},
    {"interpolation filter", V::kWord},   {"decimation filter", V::kWord},
    {"down sampling", V::kSwitch},        {"parameterization source", V::kWord},
    {"parameter offset", V::kNumber},     {"layout", V::kWord},
    {"value scale", V::kWord},            {"red channel mapping", V::kWord},
    {"green channel mapping", V::kWord},  {"blue channel mapping", V::kWord},
    {"alpha channel mapping", V::kWord},  {"transform", V::kText},
    {"decal", V::kSwitch},                {"modulate", V::kSwitch},
    {"caching", V::kSwitch},              {"camera", V::kText},
    {"source callback", V::kText},        {"source callback data", V::kText}};

constexpr OptionFamily kTextureFamily{AttributeKind::kLocalTextures, "texture", kTextureOptions};

}  // namespace

const OptionFamily& TextureDefinitionFamily() { return kTextureFamily; }

Result<TextureDefinition> ParseTextureDefinition(std::string_view definition) {
  TextureDefinition parsed;
  auto merged = parsed.Merge(kTextureFamily, definition);
  if (!merged.ok()) return merged.error();
  const std::string* source = parsed.Find("source");
  if (source == nullptr || *source == "on" || *source == "off") {
    return Error(errc::kBadOptionSyntax, "a texture definition needs a source image");
  }
  return parsed;
}

std::map<std::string, TextureDefinition>& GlobalTextures() {
  static std::map<std::string, TextureDefinition> textures;
  return textures;
}

bool TextureVisible(const Segment* segment, std::string_view name) {
  const std::string key(name);
  for (const Segment* s = segment; s != nullptr; s = s->owner()) {
    const auto* local = s->attributes().Find<LocalTextures>();
    if (local != nullptr && local->textures.contains(key)) return true;
  }
  return GlobalTextures().contains(key);
}

}  // namespace graphics
