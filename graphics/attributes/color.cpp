#include "attributes/color.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "attributes/option_family.h"
#include "attributes/option_string.h"
#include "strings/quoting.h"
#include "strings/text.h"

namespace graphics {

namespace {

constexpr std::string_view kTargets[] = {
    "faces",          "edges",         "lines",          "markers",       "vertices",      "text",
    "lights",         "cut faces",     "cut edges",      "back",          "windows",       "ambient",
    "ambient up",     "ambient down",  "face contrast",  "edge contrast", "line contrast", "marker contrast",
    "vertex contrast", "text contrast", "window contrast", "polygon contrast"};

constexpr std::string_view kGeometry[] = {"faces", "edges", "lines", "markers", "vertices",
                                          "text",  "lights", "cut faces", "cut edges"};
constexpr std::string_view kPolygons[] = {"faces", "edges"};

struct TargetGroup {
  std::string_view name;
  std::vector<std::string_view> members;
};

const std::vector<TargetGroup>& Groups() {
  static const std::vector<TargetGroup> groups = {
      {"geometry", {std::begin(kGeometry), std::end(kGeometry)}},
      {"polygons", {std::begin(kPolygons), std::end(kPolygons)}},
      {"polylines", {"lines"}},
      {"cut geometry", {"cut faces", "cut edges"}},
      {"lighting", {"lights"}},
      {"ambient light", {"ambient"}},
  };
  return groups;
}

constexpr std::string_view kChannels[] = {"diffuse",  "specular", "transmission", "emission", "mirror",
                                          "gloss",    "index",    "environment",  "bump"};

struct NamedColor {
  std::string_view name;
  ColorTriple rgb;
};

constexpr NamedColor kNamedColors[] = {
    {"black", {0, 0, 0}},       {"white", {1, 1, 1}},         {"red", {1, 0, 0}},
    {"green", {0, 1, 0}},       {"blue", {0, 0, 1}},          {"yellow", {1, 1, 0}},
    {"cyan", {0, 1, 1}},        {"magenta", {1, 0, 1}},       {"gray", {0.5f, 0.5f, 0.5f}},
    {"grey", {0.5f, 0.5f, 0.5f}}, {"orange", {1, 0.5f, 0}},   {"pink", {1, 0.6f, 0.7f}},
    {"purple", {0.5f, 0, 0.5f}}, {"violet", {0.55f, 0, 1}},   {"brown", {0.6f, 0.3f, 0.1f}},
    {"gold", {1, 0.84f, 0}},    {"silver", {0.75f, 0.75f, 0.75f}}, {"navy", {0, 0, 0.5f}},
    {"olive", {0.5f, 0.5f, 0}}, {"maroon", {0.5f, 0, 0}},     {"teal", {0, 0.5f, 0.5f}}};

ColorTriple Mix(const ColorTriple& a, const ColorTriple& b, float weight_of_a) {
  return {a[0] * weight_of_a + b[0] * (1 - weight_of_a), a[1] * weight_of_a + b[1] * (1 - weight_of_a),
          a[2] * weight_of_a + b[2] * (1 - weight_of_a)};
}

std::optional<ColorTriple> BaseColor(std::string_view word) {
  for (const NamedColor& named : kNamedColors) {
    if (named.name == word) return named.rgb;
  }
  return std::nullopt;
}

// A named colour with modifiers: "light", "dark", "pale", "bright" before a
// name; "xish y" a quarter x; "x-y" halfway.
std::optional<ColorTriple> NamedRgb(std::string_view word) {
  if (const size_t dash = word.find('-'); dash != std::string_view::npos) {
    const auto a = NamedRgb(TrimBlanks(word.substr(0, dash)));
    const auto b = NamedRgb(TrimBlanks(word.substr(dash + 1)));
    if (!a || !b) return std::nullopt;
    return Mix(*a, *b, 0.5f);
  }
  const size_t blank = word.find(' ');
  if (blank == std::string_view::npos) return BaseColor(word);
  const std::string_view first = word.substr(0, blank);
  const auto rest = NamedRgb(word.substr(blank + 1));
  if (!rest) return std::nullopt;
  constexpr ColorTriple kWhite{1, 1, 1}, kBlack{0, 0, 0};
  if (first == "light") return Mix(kWhite, *rest, 0.5f);
  if (first == "pale") return Mix(kWhite, *rest, 0.75f);
  if (first == "dark") return Mix(kBlack, *rest, 0.5f);
  if (first == "bright") return Mix(kWhite, *rest, 0.25f);
  if (first.size() > 3 && first.ends_with("ish")) {
    const auto tint = BaseColor(first.substr(0, first.size() - 3));
    if (tint) return Mix(*tint, *rest, 0.25f);
  }
  return std::nullopt;
}

// "r=1 g=0.5 b=0" (blanks or commas between), in any of the four spaces.
std::optional<ColorTriple> PrimitiveRgb(std::string_view text) {
  std::string letters;
  ColorTriple values{};
  size_t i = 0;
  while (i < text.size()) {
    while (i < text.size() && (IsBlank(text[i]) || text[i] == ',')) ++i;
    if (i == text.size()) break;
    const char letter = static_cast<char>(std::tolower(static_cast<unsigned char>(text[i++])));
    while (i < text.size() && IsBlank(text[i])) ++i;
    if (i == text.size() || text[i++] != '=' || letters.size() == 3) return std::nullopt;
    while (i < text.size() && IsBlank(text[i])) ++i;
    const size_t end = text.find_first_of(" \t,", i);
    const auto number = ParseNumber(text.substr(i, end == std::string_view::npos ? end : end - i));
    if (!number) return std::nullopt;
    values[letters.size()] = *number;
    letters += letter;
    i = end == std::string_view::npos ? text.size() : end;
  }
  struct Layout {
    std::string_view letters;
    ColorSpace space;
  };
  constexpr Layout kLayouts[] = {
      {"rgb", ColorSpace::kRgb}, {"hsv", ColorSpace::kHsv}, {"hls", ColorSpace::kHls}, {"hic", ColorSpace::kHic}};
  for (const Layout& layout : kLayouts) {
    if (letters.size() != 3) break;
    // Any order of the space's letters; values are put in the space's order.
    if (std::is_permutation(letters.begin(), letters.end(), layout.letters.begin())) {
      ColorTriple ordered{};
      for (size_t k = 0; k < 3; ++k) ordered[layout.letters.find(letters[k])] = values[k];
      return ToRgb(layout.space, ordered);
    }
  }
  return std::nullopt;
}

size_t TopLevelEquals(std::string_view text) {
  int depth = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (IsQuote(c)) {
      i = FindClosingQuote(text, i);
      if (i == std::string_view::npos) return i;
    } else if (c == '(') {
      ++depth;
    } else if (c == ')') {
      --depth;
    } else if (c == '=' && depth == 0) {
      return i;
    }
  }
  return std::string_view::npos;
}

bool IsChannelNumber(std::string_view channel) { return channel == "gloss" || channel == "index"; }

Error BadColor(std::string_view text) {
  return Error(errc::kUnknownOption, "unrecognised colour '" + std::string(text) + "'");
}

struct Assignment {
  std::vector<std::string> targets;
  std::string channel;
  ColorValue value;
};

// One channel's value: a number for gloss and index, a colour otherwise.
Result<ColorValue> ChannelValue(std::string_view channel, std::string_view text, const TextureLookup& is_texture) {
  if (!IsChannelNumber(channel)) return ParseColor(text, is_texture);
  const auto number = ParseNumber(text);
  if (!number) return BadColor(text);
  ColorValue value;
  value.kind = ColorValue::Kind::kNumber;
  value.number = *number;
  value.text = FormatNumber(*number);
  return value;
}

// "targets = [channel =] value" or "targets = (channel = value, …)".
Status ParseItem(std::string_view item, const TextureLookup& is_texture, std::vector<Assignment>& out) {
  std::vector<std::string> targets;
  std::string channel = "diffuse";
  std::string_view rest = item;
  while (true) {
    const size_t equals = TopLevelEquals(rest);
    if (equals == std::string_view::npos) break;
    const std::string left = NormalizeOptionName(rest.substr(0, equals));
    if (auto found = ColorTargets(left); found.ok()) {
      targets.insert(targets.end(), found.value().begin(), found.value().end());
    } else if (auto known = ColorChannel(left); known && !targets.empty()) {
      channel = *known;
    } else {
      return found.error();
    }
    rest = TrimBlanks(rest.substr(equals + 1));
  }
  if (targets.empty()) {
    targets.assign(std::begin(kGeometry), std::end(kGeometry));
  }
  if (rest.empty()) return Error(errc::kBadOptionSyntax, "colour item '" + std::string(item) + "' has no value");
  // A parenthesised list of channels, unless it reads as one colour.
  if (auto body = SubListBody(rest); body && !ParseColor(rest, is_texture).ok()) {
    auto channels = ParseOptionList(*body);
    if (!channels.ok()) return channels.error();
    for (const OptionItem& entry : channels.value()) {
      const auto known = ColorChannel(entry.name);
      if (!known || !entry.value) return Error(errc::kUnknownOption, "unrecognised colour channel '" + entry.name + "'");
      auto value = ChannelValue(*known, *entry.value, is_texture);
      if (!value.ok()) return value.error();
      out.push_back({targets, *known, value.value()});
    }
    return Done{};
  }
  auto value = ChannelValue(channel, rest, is_texture);
  if (!value.ok()) return value.error();
  out.push_back({targets, channel, value.value()});
  return Done{};
}

size_t TargetRank(std::string_view target) {
  return static_cast<size_t>(std::find(std::begin(kTargets), std::end(kTargets), target) - std::begin(kTargets));
}

size_t ChannelRank(std::string_view channel) {
  return static_cast<size_t>(std::find(std::begin(kChannels), std::end(kChannels), channel) - std::begin(kChannels));
}

}  // namespace

ColorValue RgbColor(ColorTriple rgb) {
  ColorValue value;
  value.rgb = rgb;
  value.text = "(r=" + FormatNumber(rgb[0]) + " g=" + FormatNumber(rgb[1]) + " b=" + FormatNumber(rgb[2]) + ")";
  return value;
}

Result<ColorValue> ParseColor(std::string_view text, const TextureLookup& is_texture) {
  const std::string_view trimmed = TrimBlanks(text);
  if (auto body = SubListBody(trimmed)) {
    if (auto rgb = PrimitiveRgb(*body)) return RgbColor(*rgb);
    return ParseColor(*body, is_texture);
  }
  if (auto rgb = PrimitiveRgb(trimmed)) return RgbColor(*rgb);
  const std::string unquoted = RemoveQuotes(trimmed);
  if (!unquoted.empty() && is_texture && is_texture(unquoted)) {
    ColorValue value;
    value.kind = ColorValue::Kind::kTexture;
    value.text = unquoted;
    return value;
  }
  const std::string word = NormalizeWord(unquoted);
  if (auto rgb = NamedRgb(word)) {
    ColorValue value;
    value.rgb = *rgb;
    value.text = word;
    return value;
  }
  return BadColor(text);
}

Result<std::vector<std::string>> ColorTargets(std::string_view word) {
  const std::string normal = NormalizeOptionName(word);
  for (const TargetGroup& group : Groups()) {
    const std::string_view names[] = {group.name};
    if (FindOptionName(normal, names)) return std::vector<std::string>(group.members.begin(), group.members.end());
  }
  if (auto index = FindOptionName(normal, kTargets)) return std::vector<std::string>{std::string(kTargets[*index])};
  return Error(errc::kUnknownOption, "unrecognised colour target '" + std::string(word) + "'");
}

std::optional<std::string> ColorChannel(std::string_view word) {
  std::string normal = NormalizeOptionName(word);
  if (normal == "diffuse color" || normal == "diffuse colour" || normal.starts_with("diffuse texture")) {
    return "diffuse";
  }
  if (auto index = FindOptionName(normal, kChannels)) return std::string(kChannels[*index]);
  return std::nullopt;
}

void ColorSettings::Put(const std::string& target, const std::string& channel, ColorValue value) {
  for (Entry& entry : entries_) {
    if (entry.target == target && entry.channel == channel) {
      entry.value = std::move(value);
      return;
    }
  }
  const auto rank = std::make_pair(TargetRank(target), ChannelRank(channel));
  auto position = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) {
    return std::make_pair(TargetRank(e.target), ChannelRank(e.channel)) > rank;
  });
  entries_.insert(position, Entry{target, channel, std::move(value)});
}

Status ColorSettings::Merge(std::string_view spec, const TextureLookup& is_texture) {
  std::vector<Assignment> assignments;
  if (TopLevelEquals(spec) == std::string_view::npos) {
    // A bare colour colours all geometry.
    if (TrimBlanks(spec).empty()) return Done{};
    auto status = ParseItem(spec, is_texture, assignments);
    if (!status.ok()) return status.error();
  } else {
    auto items = ParseOptionList(spec);
    if (!items.ok()) return items.error();
    // Items are re-read from the text: the colour grammar folds targets
    // ("lines = edges = red") which the generic item split does not know.
    int depth = 0;
    size_t start = 0;
    for (size_t i = 0; i <= spec.size(); ++i) {
      const char c = i < spec.size() ? spec[i] : ',';
      if (i < spec.size() && IsQuote(c)) {
        i = FindClosingQuote(spec, i);
      } else if (c == '(') {
        ++depth;
      } else if (c == ')') {
        --depth;
      } else if (c == ',' && depth == 0) {
        const std::string_view item = TrimBlanks(spec.substr(start, i - start));
        start = i + 1;
        if (item.empty()) continue;
        auto status = ParseItem(item, is_texture, assignments);
        if (!status.ok()) return status.error();
      }
    }
  }
  for (const Assignment& a : assignments) {
    for (const std::string& target : a.targets) Put(target, a.channel, a.value);
  }
  return Done{};
}

Status ColorSettings::Remove(std::string_view which) {
  const size_t equals = TopLevelEquals(which);
  auto targets = ColorTargets(which.substr(0, equals));
  if (!targets.ok()) return targets.error();
  std::optional<std::string> channel;
  if (equals != std::string_view::npos) {
    channel = ColorChannel(which.substr(equals + 1));
    if (!channel) return Error(errc::kUnknownOption, "unrecognised colour channel '" + std::string(which) + "'");
  }
  std::erase_if(entries_, [&](const Entry& e) {
    const bool target = std::find(targets.value().begin(), targets.value().end(), e.target) != targets.value().end();
    return target && (!channel || e.channel == *channel);
  });
  return Done{};
}

const ColorValue* ColorSettings::Find(std::string_view target, std::string_view channel) const {
  for (const Entry& entry : entries_) {
    if (entry.target == target && entry.channel == channel) return &entry.value;
  }
  return nullptr;
}

std::string ColorSettings::FormatTarget(std::string_view target) const {
  std::vector<const Entry*> channels;
  for (const Entry& entry : entries_) {
    if (entry.target == target) channels.push_back(&entry);
  }
  if (channels.empty()) return "";
  if (channels.size() == 1 && channels[0]->channel == "diffuse") return channels[0]->value.text;
  std::string list;
  for (const Entry* entry : channels) {
    if (!list.empty()) list += ',';
    list += entry->channel + '=' + entry->value.text;
  }
  return '(' + list + ')';
}

Result<std::optional<std::string>> ColorSettings::FindOne(std::string_view type) const {
  auto targets = ColorTargets(type);
  if (!targets.ok()) return targets.error();
  const std::string first = FormatTarget(targets.value().front());
  for (const std::string& target : targets.value()) {
    if (FormatTarget(target) != first) return std::optional<std::string>();
  }
  if (first.empty()) return std::optional<std::string>();
  if (auto body = SubListBody(first); body && !PrimitiveRgb(*body)) return std::optional<std::string>(std::string(*body));
  return std::optional<std::string>(first);
}

std::string ColorSettings::Format() const {
  std::vector<std::string> done;
  std::string list;
  auto append = [&](std::string_view name, const std::string& value) {
    if (!list.empty()) list += ',';
    list += std::string(name) + '=' + value;
  };
  for (const TargetGroup& group : Groups()) {
    if (group.members.size() < 2) continue;
    const std::string value = FormatTarget(group.members.front());
    bool alike = !value.empty();
    for (std::string_view member : group.members) {
      alike = alike && FormatTarget(member) == value &&
              std::find(done.begin(), done.end(), member) == done.end();
    }
    if (!alike) continue;
    append(group.name, value);
    done.insert(done.end(), group.members.begin(), group.members.end());
  }
  for (std::string_view target : kTargets) {
    const std::string value = FormatTarget(target);
    if (!value.empty() && std::find(done.begin(), done.end(), target) == done.end()) append(target, value);
  }
  return list;
}

ColorTriple DefaultColor(std::string_view target) {
  if (target == "windows") return {1, 1, 1};
  if (target.starts_with("ambient")) return {0.2f, 0.2f, 0.2f};
  return {0, 0, 0};
}

}  // namespace graphics
