#pragma once
// What the single-value attributes accept, in stored form. Each returns an
// error naming the rejected text; the stored form is what shows give back.
#include <string_view>

#include "attributes/value_attributes.h"
#include "errors/error.h"

namespace graphics {

// A line or edge pattern: "---", "- -", "...", "-.", "-..", "-...", "-- --",
// "center", "phantom", "...fine" (also "finedot"), or a defined line
// style's name. Blanks around it are ignored; an empty or unknown pattern is
// an error.
Result<std::string> ParseLinePattern(std::string_view text);
// A marker symbol, shown in its first published spelling ("o" shows "()").
Result<std::string> ParseMarkerSymbol(std::string_view text);
// "left" or "right", any case; shown lower case.
Result<std::string> ParseHandedness(std::string_view text);
// One or two of "<", ">", "*", "^", "v" (not two of one axis), then
// optionally one of "[", "|", "]"; kept as given.
Result<std::string> ParseTextAlignment(std::string_view text);
// "on", "off" or "single", with optional "inset" and "decorative" after
// commas; shown lower case, the modifiers in that order.
Result<std::string> ParseWindowFrame(std::string_view text);
// "solid", "clear", "invisible", "blend" or a hatching ("##", "||", "==",
// "//", "\\", "::", "<><>", "[] []").
Result<std::string> ParseWindowPattern(std::string_view text);
// A positive size: a bare number (a plain factor) or a number and one of
// the units oru, sru, wru, wsu, pixels, points.
Result<Measure> ParseMeasure(std::string_view text);
// A plain factor, which must be finite and positive.
Result<Measure> PlainMeasure(double factor, std::string_view what);

}  // namespace graphics
