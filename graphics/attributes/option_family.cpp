#include "attributes/option_family.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "attributes/option_parts.h"
#include "strings/quoting.h"
#include "strings/text.h"

namespace graphics {

namespace {

constexpr std::string_view kSelectActionOrder = "v^*O!";

Error UnknownName(const OptionFamily& family, std::string_view name) {
  return Error(errc::kUnknownOption, "unrecognised " + std::string(family.title) + " option '" + std::string(name) + "'");
}

Error WrongValue(std::string_view name, std::string_view value, std::string_view expected) {
  return Error(errc::kUnknownOption, "option '" + std::string(name) + "' takes " + std::string(expected) +
                                         ", not '" + std::string(value) + "'");
}

// The vocabulary position of a canonical name; free families have none.
std::optional<size_t> OptionIndex(const OptionFamily& family, std::string_view name) {
  for (size_t i = 0; i < family.options.size(); ++i) {
    if (family.options[i].name == name) return i;
  }
  return std::nullopt;
}

OptionValue RuleOf(const OptionFamily& family, std::string_view name) {
  const auto index = OptionIndex(family, name);
  return index ? family.options[*index].value : family.free_value;
}

std::optional<bool> ParseSwitch(std::string_view text) {
  const std::string word = NormalizeWord(RemoveQuotes(text));
  if (word == "on") return true;
  if (word == "off") return false;
  return std::nullopt;
}

// A list in stored form: items canonical, joined without blanks. Used for
// the free sub-lists of word options ("lights=(faces,edges)").
Result<std::string> CanonicalSubList(std::string_view body) {
  auto items = ParseOptionList(body);
  if (!items.ok()) return items.error();
  std::string list;
  for (const OptionItem& item : items.value()) {
    if (!list.empty()) list += ',';
    if (item.negated) list += "no ";
    list += FormatOptionText(item.name);
    if (!item.value) continue;
    list += '=';
    if (auto inner = SubListBody(*item.value)) {
      auto canonical = CanonicalSubList(*inner);
      if (!canonical.ok()) return canonical.error();
      list += '(' + canonical.value() + ')';
    } else {
      list += FormatOptionText(NormalizeWord(RemoveQuotes(*item.value)));
    }
  }
  return list;
}

// The types an attribute lock names, each "on", "off" or a sub-list of
// geometry types.
using LockEntries = std::vector<std::pair<std::string, std::string>>;

constexpr std::string_view kLockTypes[] = {
    "everything",   "callback",    "camera",         "color",          "color map",     "driver",
    "driver options", "edge pattern", "edge weight", "face pattern",   "handedness",    "heuristics",
    "line pattern", "line weight", "marker size",    "marker symbol",  "metafile",      "modelling matrix",
    "rendering options", "selectability", "style",   "text alignment", "text font",     "text path",
    "text spacing", "texture matrix", "user options", "user value",    "visibility",    "window",
    "window frame", "window pattern"};

Result<LockEntries> ParseLocks(std::string_view body) {
  auto items = ParseOptionList(body);
  if (!items.ok()) return items.error();
  LockEntries locks;
  for (const OptionItem& item : items.value()) {
    const auto type = FindOptionName(item.name, kLockTypes);
    if (!type) return Error(errc::kUnknownOption, "unrecognised attribute lock type '" + item.name + "'");
    std::string value = item.negated ? "off" : "on";
    if (item.value) {
      if (auto sub = SubListBody(*item.value)) {
        auto canonical = CanonicalSubList(*sub);
        if (!canonical.ok()) return canonical.error();
        value = '(' + canonical.value() + ')';
      } else if (auto on = ParseSwitch(*item.value)) {
        value = *on ? "on" : "off";
      } else {
        return WrongValue(item.name, *item.value, "on, off or a list of geometry types");
      }
    }
    const std::string name(kLockTypes[*type]);
    auto found = std::find_if(locks.begin(), locks.end(), [&](const auto& lock) { return lock.first == name; });
    if (found != locks.end()) {
      found->second = value;
    } else {
      locks.emplace_back(name, value);
    }
  }
  return locks;
}

std::string FormatLocks(LockEntries locks) {
  std::stable_sort(locks.begin(), locks.end(), [](const auto& a, const auto& b) {
    return FindOptionName(a.first, kLockTypes) < FindOptionName(b.first, kLockTypes);
  });
  std::string list;
  for (const auto& [name, value] : locks) {
    if (!list.empty()) list += ',';
    list += name;
    if (value != "on") list += '=' + value;
  }
  return '(' + list + ')';
}

// The lock list `value` adds to the stored one, type by type.
Result<std::string> MergeLocks(const std::string* existing, std::string_view added) {
  LockEntries merged;
  if (existing != nullptr && *existing != "off") {
    auto old = ParseLocks(SubListBody(*existing).value_or(""));
    if (!old.ok()) return old.error();
    merged = std::move(old.value());
  }
  auto fresh = ParseLocks(added);
  if (!fresh.ok()) return fresh.error();
  for (auto& lock : fresh.value()) {
    auto found = std::find_if(merged.begin(), merged.end(), [&](const auto& old) { return old.first == lock.first; });
    if (found != merged.end()) {
      found->second = lock.second;
    } else {
      merged.push_back(lock);
    }
  }
  return FormatLocks(std::move(merged));
}

Result<std::string> NumberValue(std::string_view name, std::string_view text) {
  if (auto on = ParseSwitch(text)) return std::string(*on ? "on" : "off");
  const std::string_view trimmed = TrimBlanks(text);
  const size_t blank = trimmed.find_first_of(" \t");
  const auto number = ParseNumber(trimmed.substr(0, blank));
  if (!number) return WrongValue(name, text, "a number");
  std::string stored = FormatNumber(*number);
  if (blank == std::string_view::npos) return stored;
  // A unit is made of words ("sru", "points", "%"); anything else after the
  // number is no unit, and would not read back once shown.
  const std::string unit = NormalizeWord(trimmed.substr(blank));
  const bool words_only = std::all_of(unit.begin(), unit.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || c == '%' || c == ' ' || (static_cast<unsigned char>(c) & 0x80) != 0;
  });
  if (!words_only) return WrongValue(name, text, "a number with a unit");
  return stored + ' ' + unit;
}

Result<std::string> SelectActionsValue(std::string_view name, std::string_view text) {
  if (auto on = ParseSwitch(text)) return std::string(*on ? "v" : "off");
  const std::string actions = RemoveQuotes(TrimBlanks(text));
  std::string stored;
  for (char action : kSelectActionOrder) {
    const bool present = actions.find(action) != std::string::npos ||
                         (action == 'O' && actions.find('o') != std::string::npos);
    if (present) stored += action;
  }
  const bool only_actions = std::all_of(actions.begin(), actions.end(), [](char c) {
    return c == 'o' || kSelectActionOrder.find(c) != std::string_view::npos;
  });
  if (stored.empty() || !only_actions) return WrongValue(name, text, "on, off or actions from \"v^*O!\"");
  return stored;
}

// The stored form of one item for option `name`.
// A switch with parts: "on", "off", or each part on or off, shown
// "(part,no part,...)" in vocabulary order. A list changes the parts it
// names; the others keep their state, taken from "on" or "off" (unset
// counts as on). When all parts agree the value folds to "on" or "off".
Result<std::string> PartSwitchesValue(std::span<const std::string_view> parts, const std::string& name,
                                      std::string_view body, const std::string* existing) {
  std::vector<bool> state(parts.size(), existing == nullptr || *existing != "off");
  if (const auto stored = existing ? SubListBody(*existing) : std::nullopt) {
    auto before = ParseOptionList(*stored);
    if (!before.ok()) return before.error();
    for (const OptionItem& item : before.value()) {
      if (auto index = FindOptionName(item.name, parts)) state[*index] = !item.negated;
    }
  }
  auto items = ParseOptionList(body);
  if (!items.ok()) return items.error();
  for (const OptionItem& item : items.value()) {
    const auto index = FindOptionName(item.name, parts);
    const auto on = item.value ? ParseSwitch(*item.value) : std::optional<bool>(!item.negated);
    if (!index || !on) return WrongValue(name, std::string(body), "on, off or a list of its parts");
    state[*index] = *on;
  }
  if (std::all_of(state.begin(), state.end(), [&](bool on) { return on == state.front(); })) {
    return std::string(state.front() ? "on" : "off");
  }
  std::string list;
  for (size_t i = 0; i < parts.size(); ++i) {
    if (!list.empty()) list += ',';
    list += (state[i] ? "" : "no ") + std::string(parts[i]);
  }
  return '(' + list + ')';
}

Result<std::string> StoredValue(OptionValue rule, std::span<const std::string_view> parts, const std::string& name,
                                const OptionItem& item, const std::string* existing) {
  if (item.negated) return std::string("off");
  if (!parts.empty() && item.value && SubListBody(*item.value)) {
    return PartSwitchesValue(parts, name, *SubListBody(*item.value), existing);
  }
  if (!item.value) {
    if (rule == OptionValue::kLockList) return MergeLocks(existing, "everything");
    return std::string(rule == OptionValue::kSelectActions ? "v" : "on");
  }
  const std::string& value = *item.value;
  switch (rule) {
    case OptionValue::kSwitch: {
      const auto on = ParseSwitch(value);
      if (!on) return WrongValue(name, value, "on or off");
      return std::string(*on ? "on" : "off");
    }
    case OptionValue::kNumber:
      return NumberValue(name, value);
    case OptionValue::kWord:
      if (auto body = SubListBody(value)) {
        auto canonical = CanonicalSubList(*body);
        if (!canonical.ok()) return canonical.error();
        return '(' + canonical.value() + ')';
      }
      return NormalizeWord(RemoveQuotes(value));
    case OptionValue::kText:
      return RemoveQuotes(value);
    case OptionValue::kSelectActions:
      return SelectActionsValue(name, value);
    case OptionValue::kLockList:
      return MergeLocks(existing, SubListBody(value).value_or(value));
  }
  return Error(errc::kUnknownOption, "unrecognised value for option '" + name + "'");
}

bool IsSubListValue(std::string_view value) { return SubListBody(value).has_value(); }

std::string FormatEntry(std::string_view name, std::string_view value) {
  const std::string shown_name = FormatOptionText(name);
  if (value == "on") return shown_name;
  if (value == "off") return "no " + shown_name;
  if (!IsSubListValue(value)) return shown_name + '=' + FormatOptionText(value);
  const std::string_view body = *SubListBody(value);
  // A list of one bare word loses its parentheses; one holding "=" keeps
  // them, or it would read back as a text with "=" in it.
  auto items = ParseOptionList(body);
  const bool single_word = items.ok() && items.value().size() == 1 && !items.value().front().value;
  return shown_name + '=' + std::string(single_word ? body : value);
}

// The canonical names of a name already normalised (quotes removed once:
// removing them again would eat quote characters the name holds). `written`
// is the name as given, for the error.
Result<std::vector<std::string>> ResolveNormalName(const OptionFamily& family, const std::string& normal,
                                                   std::string_view written) {
  if (family.options.empty()) {
    if (normal.empty()) return UnknownName(family, written);
    return std::vector<std::string>{normal};
  }
  for (const OptionGroup& group : family.groups) {
    const std::string_view names[] = {group.name};
    if (FindOptionName(normal, names)) return std::vector<std::string>(group.members.begin(), group.members.end());
  }
  for (const OptionSpec& spec : family.options) {
    const std::string_view names[] = {spec.name};
    if (FindOptionName(normal, names)) return std::vector<std::string>{std::string(spec.name)};
  }
  return UnknownName(family, written);
}

}  // namespace

Result<std::vector<std::string>> ResolveOptionName(const OptionFamily& family, std::string_view name) {
  return ResolveNormalName(family, NormalizeOptionName(name), name);
}

void OptionSettings::Put(const OptionFamily& family, std::string name, std::string value) {
  auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.name == name; });
  if (found != entries_.end()) {
    found->value = std::move(value);
    return;
  }
  const auto index = OptionIndex(family, name);
  auto position = entries_.end();
  if (index) {
    position = std::find_if(entries_.begin(), entries_.end(),
                            [&](const Entry& e) { return OptionIndex(family, e.name) > index; });
  }
  entries_.insert(position, Entry{std::move(name), std::move(value)});
}

Status OptionSettings::Merge(const OptionFamily& family, std::string_view list) {
  auto items = ParseOptionList(list);
  if (!items.ok()) return items.error();
  OptionSettings updated = *this;
  for (const OptionItem& item : items.value()) {
    std::vector<std::string> names;
    OptionItem effective = item;
    const bool bare_switch = !family.bare_switch_group.empty() && !item.value && !item.negated &&
                             (item.name == "on" || item.name == "off");
    if (bare_switch) {
      auto group = ResolveNormalName(family, std::string(family.bare_switch_group), family.bare_switch_group);
      if (!group.ok()) return group.error();
      names = std::move(group.value());
      effective.negated = item.name == "off";
    } else {
      auto resolved = ResolveNormalName(family, item.name, item.name);
      if (!resolved.ok()) return resolved.error();
      names = std::move(resolved.value());
    }
    for (std::string& name : names) {
      auto value =
          StoredValue(RuleOf(family, name), OptionParts(family.kind, name), name, effective, updated.Find(name));
      if (!value.ok()) return value.error();
      updated.Put(family, std::move(name), std::move(value.value()));
    }
  }
  *this = std::move(updated);
  return Done{};
}

Status OptionSettings::Remove(const OptionFamily& family, std::string_view name) {
  auto items = ParseOptionList(name);
  if (!items.ok()) return items.error();
  for (const OptionItem& item : items.value()) {
    auto names = ResolveNormalName(family, item.name, item.name);
    if (!names.ok()) return names.error();
    for (const std::string& canonical : names.value()) {
      auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.name == canonical; });
      if (found == entries_.end()) continue;
      if (!item.value || RuleOf(family, canonical) != OptionValue::kLockList) {
        entries_.erase(found);
        continue;
      }
      // One lock type out of the list; the option goes when none is left.
      auto locks = ParseLocks(SubListBody(found->value).value_or(""));
      auto removed = ParseLocks(SubListBody(*item.value).value_or(*item.value));
      if (!locks.ok()) return locks.error();
      if (!removed.ok()) return removed.error();
      std::erase_if(locks.value(), [&](const auto& lock) {
        return std::any_of(removed.value().begin(), removed.value().end(),
                           [&](const auto& gone) { return gone.first == lock.first; });
      });
      if (locks.value().empty()) {
        entries_.erase(found);
      } else {
        found->value = FormatLocks(std::move(locks.value()));
      }
    }
  }
  return Done{};
}

const std::string* OptionSettings::Find(std::string_view canonical_name) const {
  auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.name == canonical_name; });
  return found == entries_.end() ? nullptr : &found->value;
}

Result<std::optional<std::string>> OptionSettings::FindOne(const OptionFamily& family, std::string_view name) const {
  auto names = ResolveOptionName(family, name);
  if (!names.ok()) return names.error();
  const std::string* first = Find(names.value().front());
  if (first == nullptr) return std::optional<std::string>();
  for (const std::string& member : names.value()) {
    const std::string* value = Find(member);
    if (value == nullptr || *value != *first) return std::optional<std::string>();
  }
  if (auto body = SubListBody(*first)) return std::optional<std::string>(std::string(*body));
  return std::optional<std::string>(*first);
}

std::string OptionSettings::Format(const OptionFamily& family) const {
  std::vector<bool> shown(entries_.size(), false);
  std::string list;
  auto append = [&](std::string_view name, std::string_view value) {
    if (!list.empty()) list += ',';
    list += FormatEntry(name, value);
  };
  for (const OptionGroup& group : family.groups) {
    if (!group.shown) continue;
    const std::string* value = Find(group.members.front());
    bool alike = value != nullptr;
    for (size_t i = 0; alike && i < group.members.size(); ++i) {
      const std::string* member = Find(group.members[i]);
      const auto at = static_cast<size_t>(
          std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.name == group.members[i]; }) -
          entries_.begin());
      alike = member != nullptr && *member == *value && !shown[at];
    }
    if (!alike) continue;
    for (std::string_view member : group.members) {
      for (size_t i = 0; i < entries_.size(); ++i) {
        if (entries_[i].name == member) shown[i] = true;
      }
    }
    append(group.name, *value);
  }
  for (size_t i = 0; i < entries_.size(); ++i) {
    if (!shown[i]) append(entries_[i].name, entries_[i].value);
  }
  return list;
}

std::string FormatNumber(float value) {
  char buffer[32];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  return std::string(buffer, end);
}

std::optional<float> ParseNumber(std::string_view text) {
  text = TrimBlanks(text);
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  float value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (!std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace graphics
