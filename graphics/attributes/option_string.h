#pragma once
// The one grammar of every option-list attribute (user options, system
// options, and later rendering options, heuristics, visibility...): items
// separated by commas, each `name`, `no name`, or `name = value`, where a
// value may be a quoted string or a parenthesised sub-list. Families give the
// names meaning; this parser only cuts the text up and checks its shape.
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "errors/error.h"

namespace graphics {

struct OptionItem {
  // Lower case, outer blanks trimmed, inner runs of blanks as one; a quoted
  // name has its quotes removed.
  std::string name;
  // Written as "no name".
  bool negated = false;
  // The text after "=" with outer blanks trimmed and quotes kept, exactly as
  // written: families decide whether it is a word, a number, a string or a
  // sub-list. Absent for `name` and `no name`.
  std::optional<std::string> value;
};

// An option name in stored form: quotes removed, lower case, outer blanks
// trimmed, inner runs of blanks as one.
std::string NormalizeOptionName(std::string_view name);

// Splits `text` into items. Empty items are skipped, so "" gives no items.
// Errors: an unclosed quote, unbalanced parentheses, an item without a name,
// `name =` without a value, `no name = value`.
Result<std::vector<OptionItem>> ParseOptionList(std::string_view text);

// Whether `value` is one parenthesised sub-list, and its inside if so.
std::optional<std::string_view> SubListBody(std::string_view value);

// The index in `vocabulary` of the word `name` stands for, where a trailing
// plural "s" on either side is optional ("warning" finds "warnings").
std::optional<size_t> FindOptionName(std::string_view name,
                                     std::span<const std::string_view> vocabulary);

// `text` as shown in canonical option lists: bare, or in backquotes when it
// holds a comma, "=", a parenthesis, a quote, outer blanks, or would read as
// a negation.
std::string FormatOptionText(std::string_view text);

}  // namespace graphics
