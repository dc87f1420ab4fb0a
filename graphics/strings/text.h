#pragma once
// Small text helpers shared by the name, path and option parsers. Case folding
// is ASCII only: bytes above 0x7f (Latin-1 or UTF-8) are kept as written.
#include <string>
#include <string_view>

namespace graphics {

// Blank and tab count as blanks everywhere in the engine's grammars.
inline bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view TrimBlanks(std::string_view text);
std::string ToLowerAscii(std::string_view text);
bool EqualsIgnoringCase(std::string_view a, std::string_view b);

// Lower case, outer blanks trimmed, inner runs of blanks read as one blank:
// the form in which the engine compares words of a vocabulary.
std::string NormalizeWord(std::string_view text);

}  // namespace graphics
