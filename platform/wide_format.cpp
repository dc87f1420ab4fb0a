#include "platform/wide_format.h"

#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <type_traits>

#include "platform/text_conversion.h"

namespace platform {

namespace {

using SignedSize = std::make_signed_t<size_t>;
using UnsignedPtrDiff = std::make_unsigned_t<ptrdiff_t>;

enum class Length { kNone, kChar, kShort, kLong, kLongLong, kSize, kMax, kPtrDiff, kLongDouble };

struct LengthModifier {
  std::string_view text;
  Length length;
};

// Two-letter modifiers first, so that "hh" is not read as "h".
constexpr LengthModifier kLengthModifiers[] = {
    {"hh", Length::kChar}, {"ll", Length::kLongLong}, {"h", Length::kShort},
    {"l", Length::kLong},  {"z", Length::kSize},      {"j", Length::kMax},
    {"t", Length::kPtrDiff}, {"L", Length::kLongDouble},
};

constexpr std::string_view kFlags = "-+ #0'";
constexpr std::string_view kIntegerConversions = "diuoxXn";
constexpr std::string_view kFloatConversions = "fFeEgGaA";
constexpr std::string_view kAllConversions = "diuoxXnfFeEgGaAcsp%";

constexpr WideChar kNullText[] = u"(null)";

bool IsDigit(WideChar unit) { return unit >= u'0' && unit <= u'9'; }

// One conversion of the format, with '*' values already read.
struct Conversion {
  std::string flags;
  int width = -1;      // -1: none
  int precision = -1;  // -1: none
  Length length = Length::kNone;
  std::string_view lengthText;
  char type = 0;

  bool LeftJustified() const { return flags.find('-') != std::string::npos; }

  // The conversion as a narrow printf format, '*' replaced by the values.
  std::string NarrowSpec() const {
    std::string spec = "%" + flags;
    if (width >= 0) spec += std::to_string(width);
    if (precision >= 0) spec += "." + std::to_string(precision);
    spec += lengthText;
    spec += type;
    return spec;
  }

  bool LengthFits() const {
    if (length == Length::kNone) return true;
    if (kIntegerConversions.find(type) != std::string_view::npos) {
      return length != Length::kLongDouble;
    }
    if (kFloatConversions.find(type) != std::string_view::npos) {
      return length == Length::kLong || length == Length::kLongDouble;
    }
    return (type == 'c' || type == 's') && length == Length::kLong;
  }
};

class Formatter {
 public:
  Formatter(const WideChar* format, va_list args) : format_(format) { va_copy(args_, args); }
  ~Formatter() { va_end(args_); }
  Formatter(const Formatter&) = delete;
  Formatter& operator=(const Formatter&) = delete;

  std::optional<WideString> Run() {
    const WideChar* p = format_;
    while (*p != 0) {
      const WideChar* percent = p;
      while (*percent != 0 && *percent != u'%') ++percent;
      out_.append(p, percent);
      if (*percent == 0) break;
      p = percent + 1;
      if (*p == u'%') {
        out_.push_back(u'%');
        ++p;
        continue;
      }
      Conversion conversion;
      if (!Parse(p, conversion) || !Emit(conversion)) return std::nullopt;
    }
    return std::move(out_);
  }

 private:
  // Reads a run of digits into `value`; false if it exceeds INT_MAX.
  static bool ParseNumber(const WideChar*& p, int& value) {
    long long number = 0;
    while (IsDigit(*p)) {
      number = number * 10 + (*p++ - u'0');
      if (number > INT_MAX) return false;
    }
    value = static_cast<int>(number);
    return true;
  }

  // Reads flags, width, precision, length and type from `p`, just behind
  // the '%', and leaves `p` behind the conversion. Reads '*' arguments.
  bool Parse(const WideChar*& p, Conversion& c) {
    while (*p != 0 && *p < 0x80 && kFlags.find(static_cast<char>(*p)) != std::string_view::npos) {
      c.flags += static_cast<char>(*p++);
    }
    if (*p == u'*') {
      ++p;
      const long long width = va_arg(args_, int);
      if (width < 0) c.flags += '-';
      if (-width > INT_MAX) return false;
      c.width = static_cast<int>(width < 0 ? -width : width);
    } else if (IsDigit(*p) && !ParseNumber(p, c.width)) {
      return false;
    }
    if (*p == u'.') {
      ++p;
      if (*p == u'*') {
        ++p;
        const int precision = va_arg(args_, int);
        c.precision = precision < 0 ? -1 : precision;
      } else {
        c.precision = 0;
        if (!ParseNumber(p, c.precision)) return false;
      }
    }
    for (const LengthModifier& modifier : kLengthModifiers) {
      if (MatchesAscii(p, modifier.text)) {
        c.length = modifier.length;
        c.lengthText = modifier.text;
        p += modifier.text.size();
        break;
      }
    }
    // "%%" with anything between the signs is not a conversion.
    if (*p == 0 || *p >= 0x80 || *p == u'%') return false;
    c.type = static_cast<char>(*p++);
    return kAllConversions.find(c.type) != std::string_view::npos && c.LengthFits();
  }

  static bool MatchesAscii(const WideChar* p, std::string_view text) {
    for (size_t i = 0; i < text.size(); ++i) {
      if (p[i] != static_cast<unsigned char>(text[i])) return false;
    }
    return true;
  }

  bool Emit(const Conversion& c) {
    switch (c.type) {
      case 'd':
      case 'i':
        return EmitSigned(c);
      case 'u':
      case 'o':
      case 'x':
      case 'X':
        return EmitUnsigned(c);
      case 'c': {
        const WideChar unit = static_cast<WideChar>(va_arg(args_, int));
        EmitPadded(c, &unit, 1);
        return true;
      }
      case 's':
        EmitText(c, va_arg(args_, const WideChar*));
        return true;
      case 'p':
        return AppendNumber(c, va_arg(args_, void*));
      case 'n':
        StoreCount(c.length);
        return true;
      default:  // a float conversion; Parse lets nothing else through
        if (c.length == Length::kLongDouble) return AppendNumber(c, va_arg(args_, long double));
        return AppendNumber(c, va_arg(args_, double));
    }
  }

  // A length modifier of hh or h still reads an int: that is what the
  // argument was promoted to, and snprintf narrows it the same way.
  bool EmitSigned(const Conversion& c) {
    switch (c.length) {
      case Length::kLong:
        return AppendNumber(c, va_arg(args_, long));
      case Length::kLongLong:
        return AppendNumber(c, va_arg(args_, long long));
      case Length::kSize:
        return AppendNumber(c, va_arg(args_, SignedSize));
      case Length::kMax:
        return AppendNumber(c, va_arg(args_, intmax_t));
      case Length::kPtrDiff:
        return AppendNumber(c, va_arg(args_, ptrdiff_t));
      default:
        return AppendNumber(c, va_arg(args_, int));
    }
  }

  bool EmitUnsigned(const Conversion& c) {
    switch (c.length) {
      case Length::kLong:
        return AppendNumber(c, va_arg(args_, unsigned long));
      case Length::kLongLong:
        return AppendNumber(c, va_arg(args_, unsigned long long));
      case Length::kSize:
        return AppendNumber(c, va_arg(args_, size_t));
      case Length::kMax:
        return AppendNumber(c, va_arg(args_, uintmax_t));
      case Length::kPtrDiff:
        return AppendNumber(c, va_arg(args_, UnsignedPtrDiff));
      default:
        return AppendNumber(c, va_arg(args_, unsigned));
    }
  }

  template <typename T>
  void Store(T count) {
    *va_arg(args_, T*) = count;
  }

  void StoreCount(Length length) {
    const size_t count = out_.size();
    switch (length) {
      case Length::kChar:
        return Store(static_cast<signed char>(count));
      case Length::kShort:
        return Store(static_cast<short>(count));
      case Length::kLong:
        return Store(static_cast<long>(count));
      case Length::kLongLong:
        return Store(static_cast<long long>(count));
      case Length::kSize:
        return Store(count);
      case Length::kMax:
        return Store(static_cast<intmax_t>(count));
      case Length::kPtrDiff:
        return Store(static_cast<ptrdiff_t>(count));
      default:
        return Store(static_cast<int>(count));
    }
  }

  void EmitText(const Conversion& c, const WideChar* text) {
    if (text == nullptr) text = kNullText;
    // Never reads past the precision: the text need not be terminated there.
    size_t length = 0;
    while ((c.precision < 0 || length < static_cast<size_t>(c.precision)) && text[length] != 0) {
      ++length;
    }
    EmitPadded(c, text, length);
  }

  void EmitPadded(const Conversion& c, const WideChar* text, size_t length) {
    const size_t padding = c.width > 0 && static_cast<size_t>(c.width) > length ? c.width - length : 0;
    if (!c.LeftJustified()) out_.append(padding, u' ');
    out_.append(text, length);
    if (c.LeftJustified()) out_.append(padding, u' ');
  }

  // Prints `value` with the narrow snprintf on the conversion's own spec.
  template <typename T>
  bool AppendNumber(const Conversion& c, T value) {
    const std::string spec = c.NarrowSpec();
    char small[128];
    const int length = std::snprintf(small, sizeof small, spec.c_str(), value);
    if (length < 0) return false;
    if (static_cast<size_t>(length) < sizeof small) return AppendNarrow(small, length);
    std::string large(static_cast<size_t>(length) + 1, '\0');
    std::snprintf(large.data(), large.size(), spec.c_str(), value);
    return AppendNarrow(large.data(), length);
  }

  // Widens snprintf's output. It is ASCII except, in some locales, for the
  // decimal point, which then goes through the locale's conversion.
  bool AppendNarrow(const char* text, int length) {
    const std::string_view bytes(text, static_cast<size_t>(length));
    bool ascii = true;
    for (const char byte : bytes) ascii = ascii && static_cast<unsigned char>(byte) < 0x80;
    if (ascii) {
      out_.append(bytes.begin(), bytes.end());
      return true;
    }
    WideString units(bytes.size() + 1, u'\0');
    const size_t count = NarrowToWide(units.data(), std::string(bytes).c_str(), units.size());
    if (count == kConversionFailed) return false;
    out_.append(units.data(), count);
    return true;
  }

  const WideChar* format_;
  va_list args_;
  WideString out_;
};

}  // namespace

std::optional<WideString> FormatWide(const WideChar* format, va_list args) {
  return Formatter(format, args).Run();
}

}  // namespace platform
