#include "text/utf16.h"

namespace graphics {

std::string Utf16UnitsToUtf8(std::u16string_view units) {
  std::string text;
  for (char16_t unit : units) {
    const unsigned u = unit;
    if (u < 0x80) {
      text += static_cast<char>(u);
    } else if (u < 0x800) {
      text += static_cast<char>(0xC0 | (u >> 6));
      text += static_cast<char>(0x80 | (u & 0x3F));
    } else {
      text += static_cast<char>(0xE0 | (u >> 12));
      text += static_cast<char>(0x80 | ((u >> 6) & 0x3F));
      text += static_cast<char>(0x80 | (u & 0x3F));
    }
  }
  return text;
}

std::u16string Utf8ToUtf16Units(std::string_view text) {
  std::u16string units;
  for (size_t i = 0; i < text.size(); ++i) {
    const auto b = static_cast<unsigned char>(text[i]);
    auto continuation = [&](size_t at) {
      return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
    };
    if ((b & 0xE0) == 0xC0 && continuation(i + 1)) {
      units += static_cast<char16_t>(((b & 0x1F) << 6) | (text[i + 1] & 0x3F));
      i += 1;
    } else if ((b & 0xF0) == 0xE0 && continuation(i + 1) && continuation(i + 2)) {
      units += static_cast<char16_t>(((b & 0x0F) << 12) | ((text[i + 1] & 0x3F) << 6) | (text[i + 2] & 0x3F));
      i += 2;
    } else {
      units += static_cast<char16_t>(b);
    }
  }
  return units;
}

}  // namespace graphics
