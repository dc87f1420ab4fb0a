#include "search/contents_filter.h"

#include <variant>

#include "attributes/option_string.h"
#include "database/reference.h"
#include "search/segment_spec.h"
#include "strings/text.h"

namespace graphics {

namespace {

constexpr int kAttributeKinds = static_cast<int>(std::variant_size_v<AttributeValue>);

// One word in singular or plural: "style" and "styles", "condition" and
// "conditions" name the same thing.
bool SameWord(std::string_view word, std::string_view name) {
  auto plural_of = [](std::string_view plural, std::string_view singular) {
    return plural.size() == singular.size() + 1 && plural.back() == 's' && plural.substr(0, singular.size()) == singular;
  };
  return word == name || plural_of(word, name) || plural_of(name, word);
}

std::optional<GeometryType> GeometryWord(std::string_view word) {
  if (auto type = FindGeometryType(word)) return type;
  if (!word.empty() && word.back() == 's') return FindGeometryType(word.substr(0, word.size() - 1));
  return std::nullopt;
}

std::optional<AttributeKind> AttributeWord(std::string_view word) {
  for (int k = 0; k < kAttributeKinds; ++k) {
    const auto kind = static_cast<AttributeKind>(k);
    if (SameWord(word, AttributeName(kind))) return kind;
  }
  return std::nullopt;
}

bool IsLight(GeometryType type) {
  return type == GeometryType::kDistantLight || type == GeometryType::kLocalLight ||
         type == GeometryType::kSpotLight || type == GeometryType::kAreaLight;
}

}  // namespace

Result<ContentsFilter::Rule> ContentsFilter::ParseRule(std::string_view text) {
  Rule rule;
  std::string word = NormalizeWord(text);
  if (word.rfind("no ", 0) == 0) {
    rule.keep = false;
    word = NormalizeWord(std::string_view(word).substr(3));
  }
  // Only the first "=" separates: an option may have a value of its own
  // ("color = edges = diffuse").
  const auto first_part = SplitTopLevel(word, '=')[0];
  const std::string name = NormalizeWord(first_part);
  const bool has_option = first_part.size() < word.size();
  static constexpr std::pair<std::string_view, Target> kWords[] = {
      {"everything", Target::kEverything}, {"geometry", Target::kGeometry},   {"light", Target::kLight},
      {"segment", Target::kSegment},       {"subsegment", Target::kSubsegment}, {"include", Target::kInclude},
      {"style", Target::kStyle},           {"attribute", Target::kAttributes}};
  if (!has_option) {
    for (const auto& [w, target] : kWords) {
      if (SameWord(name, w)) {
        rule.target = target;
        return rule;
      }
    }
    if (auto type = GeometryWord(name)) {
      rule.target = Target::kGeometryType;
      rule.geometry_type = *type;
      return rule;
    }
  }
  if (auto kind = AttributeWord(name)) {
    rule.target = Target::kAttribute;
    rule.attribute = *kind;
    if (has_option) rule.option = NormalizeOptionName(std::string_view(word).substr(first_part.size() + 1));
    return rule;
  }
  return Error(errc::kUnknownOption, "unrecognised type '" + std::string(TrimBlanks(text)) + "'");
}

Result<ContentsFilter> ContentsFilter::Parse(std::string_view list) {
  ContentsFilter filter;
  for (std::string_view word : SplitTopLevel(list, ',')) {
    if (TrimBlanks(word).empty()) continue;
    auto rule = ParseRule(word);
    if (!rule.ok()) return rule.error();
    filter.rules_.push_back(std::move(rule.value()));
  }
  if (filter.rules_.empty()) filter.rules_.push_back(Rule{});
  return filter;
}

bool ContentsFilter::KeepsItem(const Entity& item) const {
  bool keep = false;
  for (const Rule& rule : rules_) {
    bool matches = false;
    switch (rule.target) {
      case Target::kEverything:
        matches = true;
        break;
      case Target::kGeometry:
        matches = item.kind() == EntityKind::kGeometry;
        break;
      case Target::kGeometryType:
        matches = item.kind() == EntityKind::kGeometry && static_cast<const Geometry&>(item).type() == rule.geometry_type;
        break;
      case Target::kLight:
        matches = item.kind() == EntityKind::kGeometry && IsLight(static_cast<const Geometry&>(item).type());
        break;
      case Target::kSegment:
        matches = item.kind() == EntityKind::kSegment;
        break;
      case Target::kSubsegment:
        matches = item.kind() == EntityKind::kSegment || item.kind() == EntityKind::kInclude;
        break;
      case Target::kInclude:
        matches = item.kind() == EntityKind::kInclude;
        break;
      case Target::kStyle:
        matches = item.kind() == EntityKind::kStyle;
        break;
      case Target::kAttributes:
      case Target::kAttribute:
        break;
    }
    if (matches) keep = rule.keep;
  }
  return keep;
}

bool ContentsFilter::KeepsAttribute(const Segment& segment, AttributeKind kind) const {
  const AttributeStore& store = segment.attributes();
  if (!store.Has(kind)) return false;
  bool keep = false;
  for (const Rule& rule : rules_) {
    bool matches = rule.target == Target::kEverything || rule.target == Target::kAttributes;
    if (rule.target == Target::kAttribute && rule.attribute == kind) {
      const OptionSettings* options = rule.option.empty() ? nullptr : store.FindOptions(kind);
      matches = rule.option.empty() || (options != nullptr && options->Find(rule.option) != nullptr);
    }
    if (matches) keep = rule.keep;
  }
  return keep;
}

std::vector<AttributeKind> ContentsFilter::WholeAttributesNamed() const {
  std::vector<AttributeKind> kinds;
  for (const Rule& rule : rules_) {
    if (rule.target != Target::kAttribute || !rule.option.empty()) continue;
    std::erase(kinds, rule.attribute);
    if (rule.keep) kinds.push_back(rule.attribute);
  }
  return kinds;
}

std::vector<AttributeKind> ContentsFilter::Attributes(const Segment& segment) const {
  std::vector<AttributeKind> kinds;
  for (int k = 0; k < kAttributeKinds; ++k) {
    if (KeepsAttribute(segment, static_cast<AttributeKind>(k))) kinds.push_back(static_cast<AttributeKind>(k));
  }
  return kinds;
}

std::vector<ContentsFilter::AttributeRemoval> ContentsFilter::Removals(const Segment& segment) const {
  std::vector<AttributeRemoval> removals;
  for (int k = 0; k < kAttributeKinds; ++k) {
    const auto kind = static_cast<AttributeKind>(k);
    bool whole = false;
    std::vector<std::string> parts;
    for (const Rule& rule : rules_) {
      const bool names_kind = rule.target == Target::kAttribute && rule.attribute == kind;
      if (names_kind && !rule.option.empty()) {
        std::erase(parts, rule.option);
        if (rule.keep && !whole) parts.push_back(rule.option);
      } else if (names_kind || rule.target == Target::kEverything || rule.target == Target::kAttributes) {
        whole = rule.keep;
        parts.clear();
      }
    }
    // Named parts are listed even when the attribute is not set here, so
    // the flush checks them all the same.
    if ((whole && segment.attributes().Has(kind)) || !parts.empty()) {
      removals.push_back(AttributeRemoval{kind, std::move(parts)});
    }
  }
  return removals;
}

std::vector<Entity*> ContentsFilter::KeyedItems(const Segment& segment) const {
  std::vector<Entity*> items;
  auto consider = [&](Entity& item) {
    if (KeepsItem(item)) items.push_back(&item);
  };
  for (Segment& child : segment.children()) consider(child);
  for (Reference& include : segment.includes()) consider(include);
  for (Reference& style : segment.styles()) consider(style);
  for (Geometry& item : segment.geometry()) consider(item);
  return items;
}

std::vector<SearchResult> ContentsFilter::Collect(const Segment& segment) const {
  std::vector<SearchResult> results;
  for (AttributeKind kind : Attributes(segment)) {
    results.push_back(SearchResult{std::string(AttributeName(kind)), segment.key()});
  }
  for (Entity* item : KeyedItems(segment)) results.push_back(SearchResult{std::string(item->TypeWord()), item->key()});
  return results;
}

}  // namespace graphics
