#pragma once
// A text string in the encoding it was inserted with. The units are kept as
// given, so showing with the encoding returns exactly what was inserted;
// "unicode" and "utf16" are 16-bit units on every platform.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace graphics {

enum class TextEncoding { kIsoLatinOne, kUnicode, kUtf8, kUtf16, kUtf32 };

// The encoding a word names ("iso latin one", "unicode", "utf8", "utf16",
// "utf32"), compared without case and with blanks normalised.
std::optional<TextEncoding> FindTextEncoding(std::string_view word);
std::string_view TextEncodingWord(TextEncoding encoding);
// Bytes per code unit: 1, 2 or 4.
size_t UnitSize(TextEncoding encoding);

class EncodedText {
 public:
  // Reads units of `encoding` from `units` up to the first zero unit.
  static EncodedText Read(TextEncoding encoding, const void* units);

  TextEncoding encoding() const { return encoding_; }
  // Bytes of the stored units, terminator excluded: a 16-bit unit counts 2.
  size_t byte_length() const { return bytes_.size(); }
  // The units followed by one zero unit.
  void CopyWithTerminator(void* out) const;
  // The characters: a surrogate pair or a UTF-8 sequence is one, a
  // malformed unit or sequence one '?'.
  std::u32string ToCodePoints() const;
  // The text in ISO Latin-1: characters beyond it, and malformed sequences,
  // become '?'.
  std::string ToLatin1() const;

 private:
  EncodedText(TextEncoding encoding, std::string bytes) : encoding_(encoding), bytes_(std::move(bytes)) {}

  TextEncoding encoding_;
  std::string bytes_;  // the units in memory order
};

}  // namespace graphics
