#include "system/system_options.h"

#include <array>
#include <charconv>
#include <climits>
#include <iterator>
#include <optional>

#include "attributes/option_string.h"
#include "strings/text.h"

namespace graphics {

namespace {

enum class Kind { kSwitch, kCount, kPairs, kFree };

struct OptionSpec {
  std::string_view name;
  Kind kind;
  std::string_view default_value;  // "" = unset
};

// The published names, alphabetical, with the engine's report-pair rules
// (enable, disable, once) among them. Free options are kept as given until
// the work that gives them meaning arrives.
constexpr OptionSpec kOptions[] = {
    {"application", Kind::kFree, ""},
    {"automatic geometry boundings", Kind::kFree, ""},
    {"bounding volumes", Kind::kSwitch, "on"},
    {"c string length", Kind::kCount, "16777216"},
    {"camera near limit", Kind::kFree, ""},
    {"clear debug", Kind::kFree, ""},
    {"code generation", Kind::kFree, ""},
    {"code generation comment", Kind::kFree, ""},
    {"code generation directory", Kind::kFree, ""},
    {"conserve memory", Kind::kFree, ""},
    {"continuous update", Kind::kFree, ""},
    {"debug", Kind::kFree, ""},
    {"deleted key callback", Kind::kFree, ""},
    {"disable", Kind::kPairs, ""},
    {"disable ambient material", Kind::kFree, ""},
    {"dpi scale factor", Kind::kFree, ""},
    {"driver config file", Kind::kFree, ""},
    {"enable", Kind::kPairs, ""},
    {"errors", Kind::kSwitch, "on"},
    {"event checker", Kind::kFree, ""},
    {"extended font search", Kind::kFree, ""},
    {"fatal errors", Kind::kFree, ""},
    {"font directory", Kind::kFree, ""},
    {"free", Kind::kFree, ""},
    {"info", Kind::kSwitch, "on"},
    {"legacy mesh face numbering", Kind::kFree, ""},
    {"legacy text extent", Kind::kFree, ""},
    {"license", Kind::kFree, ""},
    {"malloc", Kind::kFree, ""},
    {"message limit", Kind::kFree, ""},
    {"metafile directory", Kind::kFree, ""},
    {"multi-threading", Kind::kFree, ""},
    {"near limit update promotion", Kind::kFree, ""},
    {"obsolete checking", Kind::kFree, ""},
    {"old style pathnames", Kind::kFree, ""},
    {"once", Kind::kPairs, ""},
    {"populate memory limit", Kind::kFree, ""},
    {"raw memory", Kind::kFree, ""},
    {"restrip on edit", Kind::kFree, ""},
    {"sanity checking", Kind::kFree, ""},
    {"set debug", Kind::kFree, ""},
    {"soft memory limit", Kind::kFree, ""},
    {"update control", Kind::kSwitch, "on"},
    {"video memory limit", Kind::kFree, ""},
    {"warnings", Kind::kSwitch, "on"},
};
constexpr size_t kOptionCount = std::size(kOptions);

constexpr size_t IndexOf(std::string_view name) {
  for (size_t i = 0; i < kOptionCount; ++i) {
    if (kOptions[i].name == name) return i;
  }
  return kOptionCount;
}
constexpr size_t kCStringLength = IndexOf("c string length");

constexpr auto kNames = [] {
  std::array<std::string_view, kOptionCount> names{};
  for (size_t i = 0; i < kOptionCount; ++i) names[i] = kOptions[i].name;
  return names;
}();

// The switch deciding each severity below fatal; fatal reports always go out.
constexpr size_t kSeveritySwitches[] = {IndexOf("info"), IndexOf("warnings"), IndexOf("errors")};

Error OptionError(std::string message) { return Error(errc::kUnknownOption, std::move(message)); }

std::optional<long long> ParseInteger(std::string_view text) {
  long long value = 0;
  const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (ec != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

// "c/s" into a (category, specific) pair.
std::optional<std::pair<int, int>> ParsePair(std::string_view text) {
  text = TrimBlanks(text);
  const size_t slash = text.find('/');
  if (slash == std::string_view::npos) return std::nullopt;
  const auto category = ParseInteger(TrimBlanks(text.substr(0, slash)));
  const auto specific = ParseInteger(TrimBlanks(text.substr(slash + 1)));
  const auto fits = [](const std::optional<long long>& n) { return n && *n >= INT_MIN && *n <= INT_MAX; };
  if (!fits(category) || !fits(specific)) return std::nullopt;
  return std::pair<int, int>(static_cast<int>(*category), static_cast<int>(*specific));
}

}  // namespace

SystemOptions::SystemOptions() {
  for (const OptionSpec& spec : kOptions) values_.emplace_back(spec.default_value);
}

Status SystemOptions::Define(std::string_view list) {
  auto items = ParseOptionList(list);
  if (!items.ok()) return items.error();
  SystemOptions changed = *this;
  for (const OptionItem& item : items.value()) {
    const auto option = FindOptionName(item.name, kNames);
    if (!option) return OptionError("unrecognised system option '" + item.name + "'");
    auto applied = changed.Apply(*option, item);
    if (!applied.ok()) return applied.error();
  }
  *this = std::move(changed);
  return Done{};
}

Status SystemOptions::Apply(size_t option, const OptionItem& item) {
  const OptionSpec& spec = kOptions[option];
  const std::string name(spec.name);
  switch (spec.kind) {
    case Kind::kSwitch: {
      const std::string value = item.value ? ToLowerAscii(*item.value) : (item.negated ? "off" : "on");
      if (value != "on" && value != "off") return OptionError("system option '" + name + "' takes on or off");
      values_[option] = value;
      return Done{};
    }
    case Kind::kCount: {
      const auto count = item.value ? ParseInteger(*item.value) : std::nullopt;
      if (!count || *count <= 0) return OptionError("system option '" + name + "' takes a positive number");
      values_[option] = std::to_string(*count);
      return Done{};
    }
    case Kind::kPairs: {
      if (!item.value) return OptionError("system option '" + name + "' takes category/specific pairs");
      const PairRule rule = RuleOf(option);
      const std::string_view body = SubListBody(*item.value).value_or(*item.value);
      auto pairs = ParseOptionList(body);
      if (!pairs.ok()) return pairs.error();
      for (const OptionItem& written : pairs.value()) {
        const auto pair = ParsePair(written.name);
        if (!pair || written.value || written.negated) {
          return OptionError("system option '" + name + "': '" + written.name + "' is not a category/specific pair");
        }
        pair_rules_[*pair] = rule;
      }
      return Done{};
    }
    case Kind::kFree:
      values_[option] = item.value ? *item.value : (item.negated ? "off" : "on");
      return Done{};
  }
  return Done{};
}

std::string SystemOptions::FormatValue(size_t option) const {
  const OptionSpec& spec = kOptions[option];
  if (spec.kind != Kind::kPairs) return values_[option];
  const PairRule rule = RuleOf(option);
  std::string pairs;
  for (const auto& [pair, pair_rule] : pair_rules_) {
    if (pair_rule != rule) continue;
    if (!pairs.empty()) pairs += ',';
    pairs += std::to_string(pair.first) + '/' + std::to_string(pair.second);
  }
  return pairs;
}

std::string SystemOptions::Format() const {
  std::string list;
  for (size_t option = 0; option < kOptionCount; ++option) {
    const std::string value = FormatValue(option);
    if (value.empty()) continue;
    if (!list.empty()) list += ',';
    const std::string_view name = kOptions[option].name;
    if (value == "on") {
      list += name;
    } else if (value == "off") {
      list += "no " + std::string(name);
    } else if (kOptions[option].kind == Kind::kPairs && value.find(',') != std::string::npos) {
      list += std::string(name) + "=(" + value + ')';
    } else {
      list += std::string(name) + '=' + value;
    }
  }
  return list;
}

Result<std::string> SystemOptions::FormatOne(std::string_view name) const {
  const auto option = FindOptionName(NormalizeWord(name), kNames);
  if (!option) return OptionError("unrecognised system option '" + std::string(name) + "'");
  return FormatValue(*option);
}

SystemOptions::PairRule SystemOptions::RuleOf(size_t option) {
  const std::string_view name = kOptions[option].name;
  return name == "enable" ? PairRule::kEnable : name == "disable" ? PairRule::kDisable : PairRule::kOnce;
}

bool SystemOptions::Admit(int category, int specific, int severity) {
  auto rule = pair_rules_.find(Pair(category, specific));
  if (rule != pair_rules_.end()) {
    switch (rule->second) {
      case PairRule::kEnable:
        return true;
      case PairRule::kDisable:
        return false;
      case PairRule::kOnce:
        rule->second = PairRule::kDisable;
        return true;
    }
  }
  if (severity < kInfo || severity >= kFatal) return true;
  return values_[kSeveritySwitches[severity]] == "on";
}

size_t SystemOptions::c_string_length() const {
  return static_cast<size_t>(std::stoll(values_[kCStringLength]));
}

}  // namespace graphics
