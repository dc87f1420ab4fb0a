// ZString: the views of each form and the conversions behind them.
#include <gtest/gtest.h>

#include <string>

#include "sceneward/foundation/zstring.h"
#include "support/scoped_locale.h"

namespace {

class ZStringUtf8Test : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(locale_.applied()); }
  ScopedLocale locale_{"C.UTF-8"};
};

class ZStringCLocaleTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(locale_.applied()); }
  ScopedLocale locale_{"C"};
};

TEST_F(ZStringUtf8Test, ViewsConvertWithoutChangingTheForm) {
  const ZString wide(u"caf\u00E9");
  EXPECT_STREQ(wide.GetAsMBCS(), "caf\xC3\xA9");
  EXPECT_STREQ(wide.GetAsMBCS(), "caf\xC3\xA9");
  EXPECT_TRUE(wide.IsUnicode());
  EXPECT_EQ(wide.GetLength(), 4);

  const ZString narrow("caf\xC3\xA9");
  EXPECT_EQ(WideString(narrow.GetAsWChar_T()), u"caf\u00E9");
  EXPECT_FALSE(narrow.IsUnicode());
  EXPECT_EQ(narrow.GetLength(), 5);
}

TEST_F(ZStringUtf8Test, ForceToUnicodeSwitchesTheFormAndTheMeaningOfLength) {
  ZString s("caf\xC3\xA9");
  s.ForceToUnicode();
  EXPECT_TRUE(s.IsUnicode());
  EXPECT_EQ(s.GetLength(), 4);
  EXPECT_EQ(WideString(s.GetAsWChar_T()), u"caf\u00E9");

  WideChar text[] = u"lent";
  ZString borrowed;
  borrowed.ReferenceFrom(text);
  borrowed.ForceToUnicode();  // already wide: still borrowing
  EXPECT_EQ(borrowed.GetAsWChar_T(), text);
}

TEST_F(ZStringUtf8Test, StandardStringViewsFoldInAndConvert) {
  WideChar text[] = u"\u00E9t\u00E9";
  ZString s;
  s.ReferenceFrom(text);
  EXPECT_EQ(s.GetAsSTLString(), "\xC3\xA9t\xC3\xA9");
  text[1] = u'x';
  const WideString& wide = s;
  EXPECT_EQ(wide, u"\u00E9t\u00E9");
  const std::string& narrow = s;
  EXPECT_EQ(narrow.size(), 5u);
}

TEST_F(ZStringUtf8Test, EveryWideViewGivesTheSameUnits) {
  const ZString s("ab");
  const unsigned short* shorts = s.GetAsShorts();
  EXPECT_EQ(shorts[0], 'a');
  EXPECT_EQ(shorts[2], 0);
  const WideChar* units = s;
  EXPECT_EQ(WideString(units), u"ab");
  const unsigned short* converted = s;
  EXPECT_EQ(converted[1], 'b');
}

TEST(ZStringViewsTest, RequiresUnicodeOnlyForWideTextBeyondAscii) {
  EXPECT_FALSE(ZString("\xC3\xA9").RequiresUnicode());
  EXPECT_FALSE(ZString(u"plain").RequiresUnicode());
  EXPECT_TRUE(ZString(u"x\u00E9").RequiresUnicode());
  WideChar text[] = u"a\u0080";
  ZString borrowed;
  borrowed.ReferenceFrom(text);
  EXPECT_TRUE(borrowed.RequiresUnicode());
}

TEST(ZStringViewsTest, AsciiViewReplacesUnitsBeyondAsciiAndStaysWide) {
  const ZString wide(u"a\u00E9\u20ACb");
  EXPECT_STREQ(wide.GetAsASCII('?'), "a??b");
  EXPECT_TRUE(wide.IsUnicode());
  EXPECT_STREQ(ZString("\xE9x").GetAsASCII('?'), "\xE9x");  // narrow text is not filtered
}

TEST(ZStringViewsTest, AsciiViewAndRawWideDataIgnoreABorrowedWideText) {
  WideChar text[] = u"lent";
  ZString s;
  s.ReferenceFrom(text);
  EXPECT_STREQ(s.GetAsASCII('?'), "");
  EXPECT_EQ(WideString(s.wstring_to_wchart_t()), u"");
  s.ForceReferenceIntoCopy();
  EXPECT_STREQ(s.GetAsASCII('?'), "lent");
  EXPECT_EQ(WideString(s.wstring_to_wchart_t()), u"lent");
}

TEST_F(ZStringCLocaleTest, AnUnrepresentableUnitLeavesTheNarrowViewAsItWas) {
  ZString s(u"abc");
  EXPECT_STREQ(s.GetAsMBCS(), "abc");
  s.SetAt(0, u'\u00E9');
  EXPECT_STREQ(s.GetAsMBCS(), "abc");  // the last good conversion, no error
  EXPECT_STREQ(ZString(u"\u00E9").GetAsMBCS(), "");
}

TEST_F(ZStringCLocaleTest, AnInvalidByteLeavesTheWideViewAsItWas) {
  const ZString s("\xE9");
  EXPECT_EQ(WideString(s.GetAsWChar_T()), u"");
  EXPECT_FALSE(s.IsUnicode());
}

}  // namespace
