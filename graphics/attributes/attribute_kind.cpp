#include "attributes/attribute_kind.h"
#include <iterator>

namespace graphics {

namespace {

// Indexed by AttributeKind.
constexpr std::string_view kNames[] = {
    "modelling matrix", "user options", "visibility",     "selectability", "heuristics",     "rendering options",
    "driver options",   "text font",    "conditions",     "callback",      "line weight",    "edge weight",
    "marker size",      "line pattern", "edge pattern",   "marker symbol", "handedness",     "text alignment",
    "window frame",     "window pattern", "text path",    "text spacing",  "window",         "texture matrix",
    "camera",           "unicode options", "user indices",  "user value",
    "color",            "color map",       "local textures",
    "clip region",      "text region",
    "geometry options", "normal",
};
static_assert(std::size(kNames) == static_cast<size_t>(AttributeKind::kNormal) + 1,
              "every attribute kind needs a name");

}  // namespace

std::string_view AttributeName(AttributeKind kind) { return kNames[static_cast<size_t>(kind)]; }

}  // namespace graphics
