#pragma once
// Removing one part of a local attribute, as a flush naming
// "attribute = part" does ("rendering options = attribute lock",
// "color = faces", "user options = owner").
#include <string_view>

#include "attributes/attribute_kind.h"
#include "attributes/attribute_store.h"
#include "errors/error.h"

namespace graphics {

// Removes `part` from the `kind` attribute of `store`: one option or group
// word of an option-list attribute (one lock type with "attribute lock =
// type"), one colour target or "target = channel", or one user option. The
// attribute goes when nothing of it is left; a part that is not set is no
// error. An unknown option or colour target, or an attribute without parts
// (a matrix, a single value), is an error and changes nothing.
Status RemoveAttributePart(AttributeStore& store, AttributeKind kind, std::string_view part);

}  // namespace graphics
