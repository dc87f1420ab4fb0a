// ZString: reading and writing single elements.
#include <gtest/gtest.h>

#include "sceneward/foundation/zstring.h"
#include "support/scoped_locale.h"

namespace {

TEST(ZStringAccessTest, GetAtSignExtendsNarrowBytes) {
  EXPECT_EQ(ZString("\xE9").GetAt(0), 0xFFE9);
  EXPECT_EQ(ZString(u"\u00E9").GetAt(0), 0x00E9);
  EXPECT_EQ(ZString("a").GetAt(1), 0);  // the terminator
}

TEST(ZStringAccessTest, SetAtOutsideTheTextChangesNothing) {
  ZString s("abcde");
  s.SetAt(5, u'\u20AC');
  EXPECT_STREQ(s.GetAsMBCS(), "abcde");
  EXPECT_FALSE(s.IsUnicode());
}

TEST(ZStringAccessTest, SetAtKeepsANarrowStringNarrowForAscii) {
  ZString s("abc");
  s.SetAt(1, u'X');
  EXPECT_STREQ(s.GetAsMBCS(), "aXc");
  EXPECT_FALSE(s.IsUnicode());
}

TEST(ZStringAccessTest, SetAtBeyondAsciiMakesTheWholeStringWide) {
  ZString s("abc");
  s.SetAt(0, u'\u20AC');
  EXPECT_TRUE(s.IsUnicode());
  EXPECT_EQ(WideString(s.GetAsWChar_T()), u"\u20ACbc");
}

TEST(ZStringAccessTest, SetAtFoldsInABorrowedText) {
  char text[] = "abc";
  ZString s;
  s.ReferenceFrom(text);
  s.SetAt(0, u'z');
  EXPECT_STREQ(text, "abc");
  EXPECT_STREQ(s.GetAsMBCS(), "zbc");
}

TEST(ZStringAccessTest, ByteIndicesBeyondTheWideTextStoreNothing) {
  ScopedLocale locale("C.UTF-8");
  ASSERT_TRUE(locale.applied());
  ZString s("\xC3\xA9");  // two bytes, one unit
  s.SetAt(1, u'\u20AC');
  EXPECT_TRUE(s.IsUnicode());
  EXPECT_EQ(WideString(s.GetAsWChar_T()), u"\u00E9");
}

}  // namespace
