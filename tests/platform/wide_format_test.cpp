#include "platform/wide_format.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

namespace {

using platform::FormatWide;

std::optional<WideString> Wide(const WideChar* format, ...) {
  va_list args;
  va_start(args, format);
  std::optional<WideString> text = FormatWide(format, args);
  va_end(args);
  return text;
}

// The ASCII `text` as 16-bit units.
WideString Widen(const std::string& text) { return WideString(text.begin(), text.end()); }

// Formats with the narrow snprintf and with FormatWide on the same format,
// which must agree unit for byte.
template <typename... Args>
void ExpectSameAsNarrow(const char* format, Args... args) {
  // One generous buffer: every case here is far shorter, and a measuring
  // call with no buffer upsets the compiler's format checks.
  std::string narrow(8192, '\0');
  const int length = std::snprintf(narrow.data(), narrow.size(), format, args...);
  ASSERT_GE(length, 0) << format;
  ASSERT_LT(static_cast<size_t>(length), narrow.size()) << format;
  narrow.resize(static_cast<size_t>(length));
  const WideString wideFormat = Widen(format);
  EXPECT_EQ(Wide(wideFormat.c_str(), args...), Widen(narrow)) << format;
}

TEST(WideFormatTest, SignedIntegersMatchTheNarrowPrintf) {
  for (const int value : {0, 7, -42, INT_MAX, INT_MIN}) {
    for (const char* format : {"%d", "%i", "%+d", "% d", "%5d|", "%-5d|", "%05d", "%.3d", "%+08.4d",
                               "%'d"}) {
      ExpectSameAsNarrow(format, value);
    }
  }
  ExpectSameAsNarrow("%hhd %hd", 300, 70000);
  ExpectSameAsNarrow("%ld %ld", LONG_MIN, LONG_MAX);
  ExpectSameAsNarrow("%lld %lli", LLONG_MIN, LLONG_MAX);
  ExpectSameAsNarrow("%jd", INTMAX_MIN);
  ExpectSameAsNarrow("%zd", static_cast<std::make_signed_t<size_t>>(-3));
  ExpectSameAsNarrow("%td", static_cast<ptrdiff_t>(PTRDIFF_MIN));
}

TEST(WideFormatTest, UnsignedIntegersMatchTheNarrowPrintf) {
  for (const unsigned value : {0u, 255u, 0xDEADBEEFu, UINT_MAX}) {
    for (const char* format : {"%u", "%o", "%#o", "%x", "%#x", "%X", "%#X", "%12x|", "%-#12X|",
                               "%.10o", "%#.0x"}) {
      ExpectSameAsNarrow(format, value);
    }
  }
  ExpectSameAsNarrow("%hhu %hx", 0x1FFu, 0x12345u);
  ExpectSameAsNarrow("%lu %lx", ULONG_MAX, ULONG_MAX);
  ExpectSameAsNarrow("%llu %llo", ULLONG_MAX, ULLONG_MAX);
  ExpectSameAsNarrow("%zu %jx", SIZE_MAX, UINTMAX_MAX);
  ExpectSameAsNarrow("%tx", static_cast<std::make_unsigned_t<ptrdiff_t>>(PTRDIFF_MAX));
  int object = 0;
  ExpectSameAsNarrow("%p|%20p|%p", static_cast<void*>(&object), static_cast<void*>(&object),
                     static_cast<void*>(nullptr));
}

TEST(WideFormatTest, FloatingPointMatchesTheNarrowPrintf) {
  for (const double value : {0.0, -0.0, 1.5, -2.25e-7, 123456789.125, DBL_MAX, DBL_MIN,
                             HUGE_VAL, -HUGE_VAL, double{NAN}}) {
    for (const char* format : {"%f", "%F", "%lf", "%.2f", "%12.3f|", "%-12.1e|", "%e", "%E", "%g",
                               "%G", "%#g", "%+.0f", "%a", "%A", "%.3a", "%010.2f"}) {
      ExpectSameAsNarrow(format, value);
    }
  }
  for (const long double value : {1.0L / 3.0L, -LDBL_MAX, LDBL_MIN}) {
    for (const char* format : {"%Lf", "%.20Le", "%Lg", "%La"}) ExpectSameAsNarrow(format, value);
  }
}

TEST(WideFormatTest, StarWidthsAndPrecisionsAreReadInOrder) {
  ExpectSameAsNarrow("%*d|", 6, 42);
  ExpectSameAsNarrow("%*d|", -6, 42);
  ExpectSameAsNarrow("%-*d|", -6, 42);
  ExpectSameAsNarrow("%.*f", 2, 3.14159);
  ExpectSameAsNarrow("%.*f", -1, 3.14159);
  ExpectSameAsNarrow("%*.*e|%d", 14, 3, 2.5, 99);
  ExpectSameAsNarrow("%0*d", 8, -17);
  EXPECT_EQ(Wide(u"%*s|%-*s|", 4, u"ab", 4, u"cd"), u"  ab|cd  |");
  EXPECT_EQ(Wide(u"%.*s", 3, u"abcdef"), u"abc");
}

TEST(WideFormatTest, WidthsBeyondAnySmallBufferArePrintedWhole) {
  ExpectSameAsNarrow("%300d|%.400f", 5, 1.0 / 7.0);
  const std::optional<WideString> padded = Wide(u"%1000s", u"x");
  ASSERT_TRUE(padded);
  EXPECT_EQ(padded->size(), 1000u);
  EXPECT_EQ(padded->back(), u'x');
}

TEST(WideFormatTest, TextAndUnitsAreSixteenBitsWide) {
  const WideChar text[] = u"h\u00E9llo \u20AC\xD83D\xDE00";
  EXPECT_EQ(Wide(u"[%s]", text), u"[h\u00E9llo \u20AC\xD83D\xDE00]");
  EXPECT_EQ(Wide(u"[%ls]", text), u"[h\u00E9llo \u20AC\xD83D\xDE00]");
  EXPECT_EQ(Wide(u"%c%lc%c", u'\u20AC', u'\u00E9', u'a'), u"\u20AC\u00E9a");
  EXPECT_EQ(Wide(u"[%3c][%-3c]", u'\u20AC', u'x'), u"[  \u20AC][x  ]");
  EXPECT_EQ(Wide(u"[%8s][%-8s]", text, u"ab"), u"[h\u00E9llo \u20AC\xD83D\xDE00][ab      ]");
  EXPECT_EQ(Wide(u"[%.2s][%5.1s]", u"\u20AC\u20AC\u20AC", u"xyz"), u"[\u20AC\u20AC][    x]");
  EXPECT_EQ(Wide(u"%s", static_cast<const WideChar*>(nullptr)), u"(null)");
  // A precision stops the reading: the text need not be terminated there.
  const WideChar unterminated[] = {u'a', u'b', u'c'};
  EXPECT_EQ(Wide(u"%.3s", unterminated), u"abc");
  // Literal text around the conversions is copied unit for unit.
  EXPECT_EQ(Wide(u"\u4E2D%d\u6587", 1), u"\u4E2D1\u6587");
}

TEST(WideFormatTest, MixedConversionsConsumeTheirArgumentsInOrder) {
  EXPECT_EQ(Wide(u"%d %s %.1f %c %lld %x 100%%", -1, u"two", 3.0, u'4', 5LL, 6u),
            u"-1 two 3.0 4 5 6 100%");
  EXPECT_EQ(Wide(u"%hhd|%Lf|%zu", 1, 2.0L, size_t{3}), u"1|2.000000|3");
}

TEST(WideFormatTest, PercentNStoresUnitsWrittenIntoTheNamedType) {
  int asInt = -1;
  signed char asChar = -1;
  short asShort = -1;
  long long asLongLong = -1;
  size_t asSize = 0;
  EXPECT_EQ(Wide(u"\u20AC%n%s%hhn|%hn%lln%zn", &asInt, u"\u00E9\u00E9", &asChar, &asShort,
                 &asLongLong, &asSize),
            u"\u20AC\u00E9\u00E9|");
  EXPECT_EQ(asInt, 1);
  EXPECT_EQ(asChar, 3);
  EXPECT_EQ(asShort, 4);
  EXPECT_EQ(asLongLong, 4);
  EXPECT_EQ(asSize, 4u);
}

TEST(WideFormatTest, MalformedConversionsFail) {
  for (const WideChar* format :
       {u"abc%", u"%5", u"%.", u"%l", u"%q", u"%hs", u"%hhc", u"%Ld", u"%lp", u"%zf", u"%5%",
        u"%-%", u"%\u00E9", u"%99999999999d", u"%.99999999999d"}) {
    EXPECT_EQ(Wide(format, 1), std::nullopt) << std::string(format, format + 3).c_str();
  }
  EXPECT_EQ(Wide(u"%*d", INT_MIN, 1), std::nullopt);
}

}  // namespace
