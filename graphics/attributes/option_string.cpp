#include "attributes/option_string.h"

#include "strings/quoting.h"
#include "strings/text.h"

namespace graphics {

namespace {

constexpr size_t npos = std::string_view::npos;

Error SyntaxError(std::string message) {
  return Error(errc::kBadOptionSyntax, std::move(message));
}

// Cuts `text` at top-level commas (outside quotes and parentheses), checking
// quotes and parentheses on the way.
Result<std::vector<std::string_view>> SplitItems(std::string_view text) {
  std::vector<std::string_view> items;
  int depth = 0;
  size_t start = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (IsQuote(c)) {
      const size_t close = FindClosingQuote(text, i);
      if (close == npos) return SyntaxError("unclosed quote in option list '" + std::string(text) + "'");
      i = close;
    } else if (c == '(') {
      ++depth;
    } else if (c == ')') {
      if (--depth < 0) return SyntaxError("unbalanced ')' in option list '" + std::string(text) + "'");
    } else if (c == ',' && depth == 0) {
      items.push_back(text.substr(start, i - start));
      start = i + 1;
    }
  }
  if (depth != 0) return SyntaxError("unbalanced '(' in option list '" + std::string(text) + "'");
  items.push_back(text.substr(start));
  return items;
}

// The position of the first "=" outside quotes and parentheses, or npos.
size_t FindTopLevelEquals(std::string_view item) {
  int depth = 0;
  for (size_t i = 0; i < item.size(); ++i) {
    const char c = item[i];
    if (IsQuote(c)) {
      i = FindClosingQuote(item, i);  // SplitItems already proved it closes
    } else if (c == '(') {
      ++depth;
    } else if (c == ')') {
      --depth;
    } else if (c == '=' && depth == 0) {
      return i;
    }
  }
  return npos;
}

// A leading "no" followed by a blank marks a negated item.
bool StripNegation(std::string_view& name) {
  if (name.size() < 4 || !EqualsIgnoringCase(name.substr(0, 2), "no") || !IsBlank(name[2])) return false;
  name = TrimBlanks(name.substr(3));
  return true;
}

Result<OptionItem> ParseItem(std::string_view item) {
  OptionItem parsed;
  const size_t equals = FindTopLevelEquals(item);
  std::string_view name = TrimBlanks(item.substr(0, equals));
  if (equals != npos) {
    const std::string_view value = TrimBlanks(item.substr(equals + 1));
    if (value.empty()) return SyntaxError("option '" + std::string(name) + "' has '=' but no value");
    parsed.value = std::string(value);
  }
  parsed.negated = StripNegation(name);
  if (parsed.negated && parsed.value) {
    return SyntaxError("option 'no " + std::string(name) + "' cannot take a value");
  }
  for (size_t i = 0; i < name.size(); ++i) {
    if (IsQuote(name[i])) {
      i = FindClosingQuote(name, i);
    } else if (name[i] == '(' || name[i] == ')') {
      return SyntaxError("option name '" + std::string(name) + "' holds a parenthesis");
    }
  }
  parsed.name = NormalizeOptionName(name);
  if (parsed.name.empty()) return SyntaxError("option item '" + std::string(TrimBlanks(item)) + "' has no name");
  return parsed;
}

bool NeedsQuotes(std::string_view text) {
  if (text.empty() || IsBlank(text.front()) || IsBlank(text.back())) return true;
  if (text.find_first_of(",=()'\"`") != npos) return true;
  std::string_view rest = text;
  return StripNegation(rest);
}

}  // namespace

std::string NormalizeOptionName(std::string_view name) { return NormalizeWord(RemoveQuotes(name)); }

Result<std::vector<OptionItem>> ParseOptionList(std::string_view text) {
  auto pieces = SplitItems(text);
  if (!pieces.ok()) return pieces.error();
  std::vector<OptionItem> items;
  for (std::string_view piece : pieces.value()) {
    if (TrimBlanks(piece).empty()) continue;
    auto item = ParseItem(piece);
    if (!item.ok()) return item.error();
    items.push_back(std::move(item.value()));
  }
  return items;
}

std::optional<std::string_view> SubListBody(std::string_view value) {
  if (value.size() < 2 || value.front() != '(' || value.back() != ')') return std::nullopt;
  // "(a)(b)" starts and ends with parentheses but is not one sub-list.
  int depth = 0;
  for (size_t i = 0; i < value.size(); ++i) {
    const char c = value[i];
    if (IsQuote(c)) {
      i = FindClosingQuote(value, i);
      if (i == npos) return std::nullopt;
    } else if (c == '(') {
      ++depth;
    } else if (c == ')' && --depth == 0 && i + 1 != value.size()) {
      return std::nullopt;
    }
  }
  return value.substr(1, value.size() - 2);
}

std::optional<size_t> FindOptionName(std::string_view name,
                                     std::span<const std::string_view> vocabulary) {
  for (size_t i = 0; i < vocabulary.size(); ++i) {
    const std::string_view word = vocabulary[i];
    if (name == word) return i;
    if (name.size() + 1 == word.size() && word.back() == 's' && word.starts_with(name)) return i;
    if (word.size() + 1 == name.size() && name.back() == 's' && name.starts_with(word)) return i;
  }
  return std::nullopt;
}

std::string FormatOptionText(std::string_view text) {
  return NeedsQuotes(text) ? Backquote(text) : std::string(text);
}

}  // namespace graphics
