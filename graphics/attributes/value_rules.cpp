#include "attributes/value_rules.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>

#include "attributes/line_styles.h"
#include "attributes/option_family.h"
#include "attributes/option_string.h"
#include "strings/text.h"

namespace graphics {

namespace {

Error Refused(std::string_view what, std::string_view text) {
  return Error(errc::kUnknownOption, "unrecognised " + std::string(what) + " '" + std::string(text) + "'");
}

// Spellings of one value, the first being the one shown.
using Spellings = std::initializer_list<std::string_view>;

Result<std::string> FromTable(std::initializer_list<Spellings> table, std::string_view what, std::string_view text,
                              bool ignore_case) {
  const std::string wanted = ignore_case ? NormalizeWord(text) : std::string(TrimBlanks(text));
  for (const Spellings& spellings : table) {
    for (std::string_view spelling : spellings) {
      if (spelling == wanted) return std::string(*spellings.begin());
    }
  }
  return Refused(what, text);
}

}  // namespace

Result<std::string> ParseLinePattern(std::string_view text) {
  // A defined line style serves as a pattern under its own name.
  if (FindLineStyle(text) != nullptr) return NormalizeWord(text);
  return FromTable({{"---", "solid"}, {"- -"}, {"..."}, {"-."}, {"-.."}, {"-..."}, {"-- --"}, {"center"},
                    {"phantom"}, {"...fine", "finedot"}},
                   "line pattern", text, true);
}

Result<std::string> ParseMarkerSymbol(std::string_view text) {
  return FromTable({{"()", "O", "o", "0"}, {"*"}, {"X", "x"}, {"+"}, {"."}, {"(*)", "@"}, {"(.)"}, {"(+)"},
                    {"(x)", "(X)"}, {"(())", "(O)", "(o)"}, {"[]"}, {"[*]"}, {"[.]"}, {"[x]", "[X]"}, {"<>"},
                    {"<*>"}, {"<.>"}, {"<+>"}, {"/\\"}, {"/*\\"}, {"/.\\"}},
                   "marker symbol", text, false);
}

Result<std::string> ParseHandedness(std::string_view text) {
  return FromTable({{"left"}, {"right"}}, "handedness", text, true);
}

Result<std::string> ParseTextAlignment(std::string_view text) {
  const std::string_view trimmed = TrimBlanks(text);
  std::string_view body = trimmed;
  if (!body.empty() && std::string_view("[|]").find(body.back()) != std::string_view::npos) body.remove_suffix(1);
  constexpr std::string_view kHorizontal = "<>";
  constexpr std::string_view kVertical = "^v";
  int horizontal = 0;
  int vertical = 0;
  for (char c : body) {
    if (kHorizontal.find(c) != std::string_view::npos) {
      ++horizontal;
    } else if (kVertical.find(c) != std::string_view::npos) {
      ++vertical;
    } else if (c != '*') {
      return Refused("text alignment", text);
    }
  }
  if (body.empty() || body.size() > 2 || horizontal > 1 || vertical > 1) return Refused("text alignment", text);
  return std::string(trimmed);
}

Result<std::string> ParseWindowFrame(std::string_view text) {
  auto items = ParseOptionList(text);
  if (!items.ok()) return items.error();
  std::string main;
  bool inset = false;
  bool decorative = false;
  for (const OptionItem& item : items.value()) {
    if (item.value || item.negated) return Refused("window frame", text);
    if (item.name == "on" || item.name == "off" || item.name == "single") {
      main = item.name;
    } else if (item.name == "inset") {
      inset = true;
    } else if (item.name == "decorative") {
      decorative = true;
    } else {
      return Refused("window frame", text);
    }
  }
  if (main.empty()) return Refused("window frame", text);
  return main + (inset ? ",inset" : "") + (decorative ? ",decorative" : "");
}

Result<std::string> ParseWindowPattern(std::string_view text) {
  return FromTable({{"solid"}, {"clear"}, {"invisible"}, {"blend"}, {"##"}, {"||"}, {"=="}, {"//"}, {"\\\\"},
                    {"::"}, {"<><>"}, {"[] []"}},
                   "window pattern", text, true);
}

Result<Measure> ParseMeasure(std::string_view text) {
  const std::string_view trimmed = TrimBlanks(text);
  const size_t blank = trimmed.find_first_of(" \t");
  const auto number = ParseNumber(trimmed.substr(0, blank));
  if (!number) return Refused("size", text);
  Measure measure{*number, ""};
  if (blank != std::string_view::npos) {
    measure.unit = NormalizeWord(trimmed.substr(blank));
    constexpr std::string_view kUnits[] = {"oru", "sru", "wru", "wsu", "pixels", "points"};
    const auto unit = FindOptionName(measure.unit, kUnits);
    if (!unit) return Refused("size unit", measure.unit);
    measure.unit = kUnits[*unit];
  }
  if (measure.value <= 0) return Error(errc::kOutOfRange, "a size must be positive, not '" + std::string(text) + "'");
  return measure;
}

Result<Measure> PlainMeasure(double factor, std::string_view what) {
  const auto value = static_cast<float>(factor);
  if (!std::isfinite(value) || value <= 0) {
    return Error(errc::kOutOfRange, std::string(what) + " must be positive and finite");
  }
  return Measure{value, ""};
}

}  // namespace graphics
