// ZString: reading the leading number of the text.
#include <cstdio>
#include <string>

#include "sceneward/foundation/zstring.h"

namespace {

// The narrow text a number is read from. A number is written in ASCII, and
// the C library has no scanf for 16-bit text, so a wide string is read up
// to its first unit of 128 or above, unit by unit.
std::string NumberText(const ZString& s) {
  if (!s.IsUnicode()) return s.GetAsMBCS();
  std::string text;
  for (const WideChar* unit = s.GetAsWChar_T(); *unit != 0 && *unit < 0x80; ++unit) {
    text.push_back(static_cast<char>(*unit));
  }
  return text;
}

// `format` reads one value of type T; one that does not parse leaves 0.
template <typename T>
T Scan(const ZString& s, const char* format) {
  s.ForceReferenceIntoCopy();
  T value{};
  std::sscanf(NumberText(s).c_str(), format, &value);
  return value;
}

}  // namespace

int ZString::GetAsInt() const { return Scan<int>(*this, "%d"); }

long ZString::GetAsLong() const { return Scan<long>(*this, "%ld"); }

double ZString::GetAsDouble() const { return Scan<double>(*this, "%lf"); }

float ZString::GetAsFloat() const { return static_cast<float>(GetAsDouble()); }

long long ZString::GetAsI64() const { return Scan<long long>(*this, "%lld"); }
