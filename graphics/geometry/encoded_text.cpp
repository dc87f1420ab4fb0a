#include "geometry/encoded_text.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

#include "strings/text.h"

namespace graphics {

namespace {

struct EncodingEntry {
  TextEncoding encoding;
  std::string_view word;
  size_t unit_size;
};

constexpr std::array<EncodingEntry, 5> kEncodings{{
    {TextEncoding::kIsoLatinOne, "iso latin one", 1},
    {TextEncoding::kUnicode, "unicode", 2},
    {TextEncoding::kUtf8, "utf8", 1},
    {TextEncoding::kUtf16, "utf16", 2},
    {TextEncoding::kUtf32, "utf32", 4},
}};

const EncodingEntry& EntryOf(TextEncoding encoding) {
  for (const EncodingEntry& entry : kEncodings) {
    if (entry.encoding == encoding) return entry;
  }
  return kEncodings[0];
}

// The units of `bytes` as numbers; reads through memcpy since callers' text
// need not be aligned.
std::vector<uint32_t> Units(const std::string& bytes, size_t unit_size) {
  std::vector<uint32_t> units;
  for (size_t at = 0; at + unit_size <= bytes.size(); at += unit_size) {
    if (unit_size == 1) {
      units.push_back(static_cast<unsigned char>(bytes[at]));
    } else if (unit_size == 2) {
      uint16_t unit;
      std::memcpy(&unit, bytes.data() + at, 2);
      units.push_back(unit);
    } else {
      uint32_t unit;
      std::memcpy(&unit, bytes.data() + at, 4);
      units.push_back(unit);
    }
  }
  return units;
}

constexpr uint32_t kReplacement = '?';

std::vector<uint32_t> DecodeUtf16(const std::vector<uint32_t>& units) {
  std::vector<uint32_t> code_points;
  for (size_t i = 0; i < units.size(); ++i) {
    const uint32_t u = units[i];
    const bool high = u >= 0xd800 && u < 0xdc00;
    if (high && i + 1 < units.size() && units[i + 1] >= 0xdc00 && units[i + 1] < 0xe000) {
      code_points.push_back(0x10000 + ((u - 0xd800) << 10) + (units[i + 1] - 0xdc00));
      ++i;
    } else {
      code_points.push_back(u >= 0xd800 && u < 0xe000 ? kReplacement : u);
    }
  }
  return code_points;
}

std::vector<uint32_t> DecodeUtf8(const std::vector<uint32_t>& bytes) {
  std::vector<uint32_t> code_points;
  for (size_t i = 0; i < bytes.size();) {
    const uint32_t lead = bytes[i];
    const size_t length = lead < 0x80 ? 1 : (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xe ? 3 : (lead >> 3) == 0x1e ? 4 : 0;
    bool valid = length != 0 && i + length <= bytes.size();
    uint32_t code_point = length == 1 ? lead : lead & (0x7f >> length);
    for (size_t k = 1; valid && k < length; ++k) {
      valid = (bytes[i + k] & 0xc0) == 0x80;
      code_point = (code_point << 6) | (bytes[i + k] & 0x3f);
    }
    code_points.push_back(valid ? code_point : kReplacement);
    i += valid ? length : 1;
  }
  return code_points;
}

}  // namespace

std::optional<TextEncoding> FindTextEncoding(std::string_view word) {
  const std::string normal = NormalizeWord(word);
  for (const EncodingEntry& entry : kEncodings) {
    if (entry.word == normal) return entry.encoding;
  }
  return std::nullopt;
}

std::string_view TextEncodingWord(TextEncoding encoding) { return EntryOf(encoding).word; }

size_t UnitSize(TextEncoding encoding) { return EntryOf(encoding).unit_size; }

EncodedText EncodedText::Read(TextEncoding encoding, const void* units) {
  const size_t unit_size = UnitSize(encoding);
  const char* at = static_cast<const char*>(units);
  static constexpr char kZeroUnit[4] = {0, 0, 0, 0};
  size_t length = 0;
  while (std::memcmp(at + length, kZeroUnit, unit_size) != 0) length += unit_size;
  return EncodedText(encoding, std::string(at, length));
}

void EncodedText::CopyWithTerminator(void* out) const {
  char* bytes = static_cast<char*>(out);
  std::memcpy(bytes, bytes_.data(), bytes_.size());
  std::memset(bytes + bytes_.size(), 0, UnitSize(encoding_));
}

std::u32string EncodedText::ToCodePoints() const {
  const std::vector<uint32_t> units = Units(bytes_, UnitSize(encoding_));
  std::vector<uint32_t> code_points;
  switch (encoding_) {
    case TextEncoding::kIsoLatinOne:
    case TextEncoding::kUtf32:
      code_points = units;
      break;
    case TextEncoding::kUnicode:
    case TextEncoding::kUtf16:
      code_points = DecodeUtf16(units);
      break;
    case TextEncoding::kUtf8:
      code_points = DecodeUtf8(units);
      break;
  }
  return std::u32string(code_points.begin(), code_points.end());
}

std::string EncodedText::ToLatin1() const {
  std::string latin1;
  for (char32_t c : ToCodePoints()) latin1 += static_cast<char>(c <= 0xff ? c : kReplacement);
  return latin1;
}

}  // namespace graphics
