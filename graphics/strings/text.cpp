#include "strings/text.h"

namespace graphics {

namespace {

char LowerAscii(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string ToLowerAscii(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = LowerAscii(c);
  return lower;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (LowerAscii(a[i]) != LowerAscii(b[i])) return false;
  }
  return true;
}

std::string NormalizeWord(std::string_view text) {
  std::string word;
  bool pending_blank = false;
  for (char c : TrimBlanks(text)) {
    if (IsBlank(c)) {
      pending_blank = true;
      continue;
    }
    if (pending_blank) word += ' ';
    pending_blank = false;
    word += LowerAscii(c);
  }
  return word;
}

}  // namespace graphics
