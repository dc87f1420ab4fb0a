#include "platform/text_conversion.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "support/scoped_locale.h"

namespace {

using platform::kConversionFailed;
using platform::NarrowToWide;
using platform::WideToNarrow;

TEST(WideLengthTest, CountsUnitsBeforeTheFirstZero) {
  EXPECT_EQ(platform::WideLength(u""), 0u);
  EXPECT_EQ(platform::WideLength(u"ab\xD800" u"c"), 4u);
  const WideChar embedded[] = {u'a', 0, u'b', 0};
  EXPECT_EQ(platform::WideLength(embedded), 1u);
}

class Utf8ConversionTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(locale_.applied()); }
  ScopedLocale locale_{"C.UTF-8"};
};

TEST_F(Utf8ConversionTest, WideToNarrowEncodesEachUnitAsOneCharacter) {
  char out[16];
  ASSERT_EQ(WideToNarrow(out, u"a\u00E9\u20AC", sizeof out), 6u);
  EXPECT_STREQ(out, "a\xC3\xA9\xE2\x82\xAC");
  EXPECT_EQ(WideToNarrow(nullptr, u"a\u00E9\u20AC", 0), 6u);
}

TEST_F(Utf8ConversionTest, WideToNarrowNeverSplitsACharacterAndOnlyTerminatesWhenThereIsRoom) {
  char out[8];
  std::memset(out, '#', sizeof out);
  EXPECT_EQ(WideToNarrow(out, u"\u00E9\u20AC", 4), 2u);
  EXPECT_EQ(std::string(out, 3), "\xC3\xA9#");

  std::memset(out, '#', sizeof out);
  EXPECT_EQ(WideToNarrow(out, u"\u00E9", 2), 2u);
  EXPECT_EQ(out[2], '#');
}

TEST_F(Utf8ConversionTest, LoneSurrogateUnitsCannotBeRepresented) {
  char out[16];
  EXPECT_EQ(WideToNarrow(out, u"a\xD83D\xDE00", sizeof out), kConversionFailed);
  EXPECT_EQ(WideToNarrow(nullptr, u"\xDC00", 0), kConversionFailed);
}

TEST_F(Utf8ConversionTest, NarrowToWideDecodesToUnits) {
  WideChar out[8];
  ASSERT_EQ(NarrowToWide(out, "a\xC3\xA9\xE2\x82\xAC", 8), 3u);
  EXPECT_EQ(WideString(out), u"a\u00E9\u20AC");
  EXPECT_EQ(NarrowToWide(nullptr, "a\xC3\xA9", 0), 2u);
}

TEST_F(Utf8ConversionTest, NarrowToWideStopsWhenFullWithoutTerminating) {
  WideChar out[4] = {u'#', u'#', u'#', u'#'};
  EXPECT_EQ(NarrowToWide(out, "abc", 2), 2u);
  EXPECT_EQ(WideString(out, 3), u"ab#");
}

TEST_F(Utf8ConversionTest, NarrowToWideRejectsWhatNoSingleUnitHolds) {
  WideChar out[8];
  EXPECT_EQ(NarrowToWide(out, "\xF0\x9F\x98\x80", 8), kConversionFailed);  // above 0xFFFF
  EXPECT_EQ(NarrowToWide(out, "a\xC3", 8), kConversionFailed);              // cut short
  EXPECT_EQ(NarrowToWide(nullptr, "\xFF", 0), kConversionFailed);
}

TEST(CLocaleConversionTest, OnlyAsciiIsRepresentable) {
  ScopedLocale locale("C");
  ASSERT_TRUE(locale.applied());
  char narrow[8];
  WideChar wide[8];
  EXPECT_EQ(WideToNarrow(narrow, u"abc", sizeof narrow), 3u);
  EXPECT_EQ(WideToNarrow(narrow, u"a\u00E9", sizeof narrow), kConversionFailed);
  EXPECT_EQ(NarrowToWide(wide, "abc", 8), 3u);
  EXPECT_EQ(NarrowToWide(wide, "a\xE9", 8), kConversionFailed);
}

}  // namespace
