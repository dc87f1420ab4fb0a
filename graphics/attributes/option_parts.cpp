#include "attributes/option_parts.h"

namespace graphics {

namespace {

constexpr std::string_view kEdgeParts[] = {"perimeters", "hard",   "adjacent",  "mesh quads",
                                           "silhouettes", "interior silhouettes", "nonculled", "generics"};
// What the lights light.
constexpr std::string_view kLitParts[] = {"faces", "edges", "markers"};

struct PartsEntry {
  AttributeKind kind;
  std::string_view name;
  std::span<const std::string_view> parts;
};

constexpr PartsEntry kPartOptions[] = {
    {AttributeKind::kVisibility, "edges", kEdgeParts},
    {AttributeKind::kVisibility, "lights", kLitParts},
};

}  // namespace

std::span<const std::string_view> OptionParts(AttributeKind kind, std::string_view name) {
  for (const PartsEntry& entry : kPartOptions) {
    if (entry.kind == kind && entry.name == name) return entry.parts;
  }
  return {};
}

}  // namespace graphics
