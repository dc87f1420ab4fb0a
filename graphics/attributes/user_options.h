#pragma once
// The program's own "name = value" settings on a segment. Names compare
// without case; values are kept verbatim (quotes included) because the
// engine never interprets them and callers unquote them themselves.
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "attributes/attribute_kind.h"
#include "attributes/option_string.h"

namespace graphics {

class UserOptions {
 public:
  static constexpr AttributeKind kKind = AttributeKind::kUserOptions;

  // Sets each item, later items winning: `name` stores "on", `no name` "off".
  void Merge(const std::vector<OptionItem>& items);
  // Whether an option of that (normalised) name was there.
  bool Remove(std::string_view name);
  // The stored value, or null.
  const std::string* Find(std::string_view name) const;
  bool empty() const { return entries_.empty(); }

  // Canonical list in order of first setting: "on" as `name`, "off" as
  // `no name`, anything else `name=value`.
  std::string Format() const;

  bool operator==(const UserOptions&) const = default;

 private:
  std::vector<std::pair<std::string, std::string>> entries_;
};

}  // namespace graphics
