#pragma once
// The process-wide table of callback names: what "draw text = my_text" on a
// segment refers to. Names compare without case; a name set on a segment
// need not be defined yet, since it is looked up when drawing.
#include <string_view>

#include "errors/error.h"
#include "hc/hc.h"

namespace graphics::callback_names {

// Redefining a name replaces its function. Empty names and null functions
// are errors.
Status Define(std::string_view name, HC_Callback function);
// An unknown name is an error.
Status UnDefine(std::string_view name);
// The function of a defined name; an error for an unknown one.
Result<HC_Callback> Find(std::string_view name);
// Forgets every name.
void Clear();

}  // namespace graphics::callback_names
