#include "strings/quoting.h"

namespace graphics {

namespace {

// The first `closer` after `from` that is not doubled, or npos.
size_t FindUndoubled(std::string_view text, size_t from, char closer) {
  for (size_t i = from; i < text.size(); ++i) {
    if (text[i] != closer) continue;
    if (i + 1 < text.size() && text[i + 1] == closer) {
      ++i;
      continue;
    }
    return i;
  }
  return std::string_view::npos;
}

}  // namespace

size_t FindClosingQuote(std::string_view text, size_t open) {
  const char quote = text[open];
  const size_t close = FindUndoubled(text, open + 1, quote);
  if (close != std::string_view::npos || quote != '`') return close;
  return FindUndoubled(text, open + 1, '\'');
}

std::string QuotedContent(std::string_view text, size_t open, size_t close) {
  const char closer = text[close];
  std::string content;
  for (size_t i = open + 1; i < close; ++i) {
    content += text[i];
    if (text[i] == closer && i + 1 < close && text[i + 1] == closer) ++i;
  }
  return content;
}

std::string RemoveQuotes(std::string_view text) {
  std::string plain;
  for (size_t i = 0; i < text.size(); ++i) {
    if (!IsQuote(text[i])) {
      plain += text[i];
      continue;
    }
    const size_t close = FindClosingQuote(text, i);
    if (close == std::string_view::npos) {
      plain += text.substr(i);
      break;
    }
    plain += QuotedContent(text, i, close);
    i = close;
  }
  return plain;
}

std::string Backquote(std::string_view text) {
  std::string quoted = "`";
  for (char c : text) {
    quoted += c;
    if (c == '`') quoted += '`';
  }
  quoted += '`';
  return quoted;
}

}  // namespace graphics
