#include "attributes/regions.h"

#include <map>

#include "attributes/option_string.h"
#include "strings/quoting.h"
#include "strings/text.h"

namespace graphics {

namespace {

Error Refused(std::string_view what, std::string_view text) {
  return Error(errc::kUnknownOption, "unrecognised " + std::string(what) + " '" + std::string(text) + "'");
}

bool OneOf(std::string_view word, std::initializer_list<std::string_view> words) {
  for (std::string_view w : words) {
    if (w == word) return true;
  }
  return false;
}

}  // namespace

Result<std::string> ParseClipOptions(std::string_view options) {
  auto items = ParseOptionList(options);
  if (!items.ok()) return items.error();
  std::string space = "window";
  std::string type = "clip";
  for (const OptionItem& item : items.value()) {
    if (!item.value && !item.negated && OneOf(item.name, {"window", "world", "object"})) {
      space = item.name;
    } else if (item.name == "type" && item.value && OneOf(NormalizeWord(RemoveQuotes(*item.value)), {"clip", "mask"})) {
      type = NormalizeWord(RemoveQuotes(*item.value));
    } else {
      return Refused("clip region option", item.name);
    }
  }
  return space + ",type=" + type;
}

Result<std::string> ParseTextRegionOptions(std::string_view options) {
  auto items = ParseOptionList(options);
  if (!items.ok()) return items.error();
  // Keyed by display order.
  std::map<int, std::string> shown;
  for (const OptionItem& item : items.value()) {
    const std::string value = item.value ? NormalizeWord(RemoveQuotes(*item.value)) : "";
    if (item.name == "adjust direction" && !item.value) {
      shown[0] = item.negated ? "no adjust direction" : "adjust direction";
    } else if (item.name == "alignment" && OneOf(value, {"top", "center", "bottom"})) {
      shown[1] = "alignment=" + value;
    } else if (item.name == "fitting" && OneOf(value, {"none", "spacing", "size", "auto"})) {
      shown[2] = "fitting=" + value;
    } else if (OneOf(item.name, {"window", "world"}) && !item.value && !item.negated) {
      shown[3] = item.name;
    } else if (item.name == "relative coordinates" && !item.value) {
      shown[4] = item.negated ? "no relative coordinates" : "relative coordinates";
    } else {
      return Refused("text region option", item.name);
    }
  }
  std::string list;
  for (const auto& [order, text] : shown) list += (list.empty() ? "" : ",") + text;
  return list;
}

}  // namespace graphics
