#pragma once
// Named line styles, process-wide: definitions of parallel strokes usable as
// line and edge patterns. Stored as given (outer blanks trimmed) and
// replaced whole on redefinition. Callers hold the engine lock.
#include <string>
#include <string_view>
#include <vector>

#include "errors/error.h"

namespace graphics {

// An empty definition is an error.
Status DefineLineStyle(std::string_view name, std::string_view definition);
// Whether it was defined.
bool UnDefineLineStyle(std::string_view name);
// The definition, or null. Names compare without case.
const std::string* FindLineStyle(std::string_view name);
std::vector<std::string> LineStyleNames();
// Forgets every definition.
void ClearLineStyles();

}  // namespace graphics
