#pragma once
// Switches with parts: a visibility type that also takes a list of its
// parts, each on or off ("edges = (hard = off, silhouettes)", "lights =
// (faces, no markers)").
#include <span>
#include <string_view>

#include "attributes/attribute_kind.h"

namespace graphics {

// The parts option `name` (canonical) of `kind` takes; empty for a plain
// option.
std::span<const std::string_view> OptionParts(AttributeKind kind, std::string_view name);

}  // namespace graphics
