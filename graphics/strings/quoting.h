#pragma once
// Quoted runs, as every grammar of the engine reads them (segment names and
// option strings alike): single and double quotes close at the same
// character; a backquote closes at the next backquote, or at an apostrophe
// when no backquote follows (published examples pair them that way). Inside a
// run, a doubled closing character stands for itself.
#include <cstddef>
#include <string>
#include <string_view>

namespace graphics {

inline bool IsQuote(char c) { return c == '\'' || c == '"' || c == '`'; }

// Index of the character closing the run opened at `open`, or npos when the
// run is never closed.
size_t FindClosingQuote(std::string_view text, size_t open);

// The characters of the run opened at `open` and closed at `close`, with
// doubled closing characters undone.
std::string QuotedContent(std::string_view text, size_t open, size_t close);

// `text` with every quoted run replaced by its content; npos-closed runs are
// the caller's error to detect first.
std::string RemoveQuotes(std::string_view text);

// `text` inside backquotes, doubling any backquote it holds.
std::string Backquote(std::string_view text);

}  // namespace graphics
