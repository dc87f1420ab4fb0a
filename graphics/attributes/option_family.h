#pragma once
// What one option-list attribute (visibility, heuristics, rendering options,
// text font...) accepts: its vocabulary, the kind of value each option takes,
// group words that stand for several options, and the values in force where
// nothing is set. Every family is one table of this shape, read by the one
// settings class below, so they all merge, show and unset alike.
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "attributes/attribute_kind.h"
#include "attributes/option_string.h"
#include "errors/error.h"

namespace graphics {

enum class OptionValue {
  kSwitch,         // on or off only
  kNumber,         // a number, optionally followed by a unit word
  kWord,           // a word or a parenthesised list; shown lower case
  kText,           // any text; case kept (font names, callback names)
  kSelectActions,  // on, off, or action characters from "v^*O!"
  kLockList,       // the attribute-lock list: lock types, each on or off
};

struct OptionSpec {
  std::string_view name;
  OptionValue value;
};

// A word standing for several options, such as "geometry" for every kind of
// geometry; setting it sets each of them.
struct OptionGroup {
  std::string_view name;
  std::span<const std::string_view> members;
  // Whether lists show the group word in place of members all set alike;
  // false for a mere alias ("hsra").
  bool shown = true;
};

struct OptionDefault {
  std::string_view name;
  std::string_view value;  // in stored form: "on", "off", "10", "entity"
};

struct OptionFamily {
  AttributeKind kind;
  // How messages name the family ("heuristics").
  std::string_view title;
  // The options in canonical order. Empty: any name is accepted, every
  // option takes `free_value`, and lists keep the order of first setting.
  std::span<const OptionSpec> options;
  OptionValue free_value = OptionValue::kSwitch;
  std::span<const OptionGroup> groups = {};
  // Where a bare "on" or "off" item means this group ("off" hides all).
  std::string_view bare_switch_group = {};
  std::span<const OptionDefault> defaults = {};
};

// The family table of an option-list kind; null for other kinds.
const OptionFamily* FamilyOf(AttributeKind kind);

// The local options of one family, each in stored form: switches as "on" or
// "off", numbers in shortest form with their unit, words lower case, lock
// lists as "(type,type=off)".
class OptionSettings {
 public:
  struct Entry {
    std::string name;
    std::string value;
    bool operator==(const Entry&) const = default;
  };

  // Applies `list`, later items winning. A list with any bad item (unknown
  // name, value of the wrong kind, bad syntax) changes nothing and gives the
  // reason.
  Status Merge(const OptionFamily& family, std::string_view list);
  // Removes the option `name` stands for (all members of a group word);
  // "attribute lock=color" removes one lock type. Removing what is not set
  // does nothing; an unknown name is an error.
  Status Remove(const OptionFamily& family, std::string_view name);

  // One option's stored value, shown without "name=" or outer parentheses;
  // a group word answers when all its members are set alike. Null when not
  // set; an error for an unknown name.
  Result<std::optional<std::string>> FindOne(const OptionFamily& family, std::string_view name) const;
  const std::string* Find(std::string_view canonical_name) const;

  // The canonical list: options in family order, a group word in place of
  // its members when all are set alike, `name`, `no name` or `name=value`.
  std::string Format(const OptionFamily& family) const;

  // Sets one option from its stored form, replacing what was there.
  void Put(const OptionFamily& family, std::string name, std::string value);

  const std::vector<Entry>& entries() const { return entries_; }
  bool empty() const { return entries_.empty(); }
  bool operator==(const OptionSettings&) const = default;

 private:
  std::vector<Entry> entries_;
};

// The canonical names `name` stands for in `family`: one option, or the
// members of a group word. An unknown name is an error.
Result<std::vector<std::string>> ResolveOptionName(const OptionFamily& family, std::string_view name);

// A family's value as an attribute of its kind.
template <AttributeKind K>
struct OptionAttribute : OptionSettings {
  static constexpr AttributeKind kKind = K;
};

// Formats a value in the shortest decimal that reads back to the same float.
std::string FormatNumber(float value);
// A C-syntax number, possibly with outer blanks; null when `text` is not one.
std::optional<float> ParseNumber(std::string_view text);

}  // namespace graphics
