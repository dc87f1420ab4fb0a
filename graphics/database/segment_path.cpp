#include "database/segment_path.h"

#include <charconv>
#include <cstdint>

#include "strings/quoting.h"
#include "strings/text.h"

namespace graphics {

namespace {

constexpr size_t npos = std::string_view::npos;

}  // namespace

// Bytes above 0x7f count as letters, so names in UTF-8 need no quotes.
bool IsPlainNameChar(char c) {
  const unsigned char u = static_cast<unsigned char>(c);
  return u >= 0x80 || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
         IsBlank(c) || c == '#' || c == '+' || c == '-' || c == '$' || c == '_' || c == '.';
}

namespace {

Error BadName(std::string_view path, std::string_view why) {
  return Error(errc::kBadName, "bad segment name '" + std::string(path) + "': " + std::string(why));
}

}  // namespace

std::vector<std::string_view> SplitComponents(std::string_view text) {
  std::vector<std::string_view> pieces;
  size_t start = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (IsQuote(text[i])) {
      i = FindClosingQuote(text, i);
    } else if (text[i] == '/') {
      pieces.push_back(text.substr(start, i - start));
      start = i + 1;
    }
  }
  pieces.push_back(text.substr(start));
  return pieces;
}

namespace {

Result<PathComponent> ParseKeyReference(std::string_view path, std::string_view digits) {
  uint64_t bits = 0;
  const auto [end, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), bits, 16);
  if (digits.empty() || digits.size() > 16 || ec != std::errc() || end != digits.data() + digits.size()) {
    return BadName(path, "'@' must be followed by up to 16 hex digits");
  }
  return PathComponent{PathComponent::Kind::kKey, "", static_cast<long long>(bits)};
}

}  // namespace

Result<PathComponent> ParseComponent(std::string_view path, std::string_view raw) {
  const std::string_view piece = TrimBlanks(raw);
  if (piece.empty()) return BadName(path, "empty component");
  if (piece == ".") return PathComponent{PathComponent::Kind::kSelf, "", 0};
  if (piece == ".." || piece == "^") return PathComponent{PathComponent::Kind::kOwner, "", 0};
  if (piece.find_first_not_of('.') == npos) {
    if (piece == "...") return Error(errc::kWildcardNotAllowed, "'...' is not allowed in '" + std::string(path) + "'");
    return BadName(path, "a component of dots only");
  }
  if (piece.front() == '@') return ParseKeyReference(path, piece.substr(1));
  std::string name;
  for (size_t i = 0; i < piece.size(); ++i) {
    const char c = piece[i];
    if (IsQuote(c)) {
      const size_t close = FindClosingQuote(piece, i);
      name += QuotedContent(piece, i, close);
      i = close;
    } else if (c == '*' || c == '%') {
      return Error(errc::kWildcardNotAllowed, "wildcards are not allowed in '" + std::string(path) + "'");
    } else if (c == ',' || c == '(' || c == ')') {
      return Error(errc::kWildcardNotAllowed, "lists are not allowed in '" + std::string(path) + "'");
    } else if (!IsPlainNameChar(c)) {
      return BadName(path, std::string("'") + c + "' must be quoted");
    } else {
      name += c;
    }
  }
  if (name.empty()) return BadName(path, "empty quoted name");
  return PathComponent{PathComponent::Kind::kName, ToLowerAscii(name), 0};
}

Result<SegmentPath> ParseSegmentPath(std::string_view text) {
  for (size_t i = 0; i < text.size(); ++i) {
    if (!IsQuote(text[i])) continue;
    i = FindClosingQuote(text, i);
    if (i == npos) return BadName(text, "unclosed quote");
  }
  SegmentPath path;
  std::string_view rest = TrimBlanks(text);
  if (!rest.empty() && rest.front() == '/') {
    path.absolute = true;
    rest = TrimBlanks(rest.substr(1));
    if (rest.empty()) return path;  // the root
  }
  for (std::string_view piece : SplitComponents(rest)) {
    auto component = ParseComponent(text, piece);
    if (!component.ok()) return component.error();
    path.components.push_back(std::move(component.value()));
  }
  return path;
}

std::string DisplayName(std::string_view stored_name) {
  // Outer blanks would be trimmed and dots-only names read as "." or "..".
  bool plain = !stored_name.empty() && !IsBlank(stored_name.front()) && !IsBlank(stored_name.back()) &&
               stored_name.find_first_not_of('.') != npos;
  for (char c : stored_name) plain = plain && IsPlainNameChar(c);
  if (plain) return std::string(stored_name);
  std::string quoted = "'";
  for (char c : stored_name) {
    quoted += c;
    if (c == '\'') quoted += '\'';
  }
  return quoted + "'";
}

std::string KeyReference(long long key) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  uint64_t bits = static_cast<uint64_t>(key);
  std::string digits(16, '0');
  for (int i = 15; i >= 0; --i, bits >>= 4) digits[i] = kHex[bits & 0xf];
  return "@" + digits;
}

}  // namespace graphics
