// ZString: Mid and case mapping, which comparison and copying rely on.
#include <gtest/gtest.h>

#include "sceneward/foundation/zstring.h"
#include "support/scoped_locale.h"

namespace {

TEST(ZStringMidTest, TakesWhatIsThereInTheStringsForm) {
  EXPECT_EQ(ZString("abcdef").Mid(2, 3), "cde");
  EXPECT_EQ(ZString("abc").Mid(1, 99), "bc");
  EXPECT_EQ(ZString("abc").Mid(1), "bc");
  const ZString wide = ZString(u"abc").Mid(1, 1);
  EXPECT_TRUE(wide.IsUnicode());
  EXPECT_EQ(wide, u"b");
}

TEST(ZStringMidTest, AStartAtOrBeyondTheEndGivesTheEmptyNarrowString) {
  for (const ZString& s : {ZString("abc"), ZString(u"abc")}) {
    const ZString piece = s.Mid(10, 2);
    EXPECT_TRUE(piece.IsEmpty());
    EXPECT_FALSE(piece.IsUnicode());
    EXPECT_TRUE(s.Mid(3).IsEmpty());
  }
}

TEST(ZStringMidTest, KeepsEmbeddedZeros) {
  const char bytes[] = {'a', 0, 'b', 'c'};
  EXPECT_EQ(ZString(bytes, 4).Mid(1, 2).GetLength(), 2);
}

TEST(ZStringCaseTest, MapsAsciiInBothForms) {
  ZString narrow("MiXeD 1");
  narrow.MakeUpper();
  EXPECT_EQ(narrow, "MIXED 1");
  narrow.MakeLower();
  EXPECT_EQ(narrow, "mixed 1");
  ZString wide(u"MiX\u0100");
  wide.MakeLower();
  EXPECT_EQ(wide, u"mix\u0100");
  EXPECT_TRUE(wide.IsUnicode());
}

TEST(ZStringCaseTest, LeavesNonAsciiAloneInTheCLocale) {
  ScopedLocale locale("C");
  ASSERT_TRUE(locale.applied());
  ZString narrow("\xC9\xE9");
  narrow.MakeLower();
  EXPECT_EQ(narrow, "\xC9\xE9");
  ZString wide(u"\u00C9");
  wide.MakeLower();
  EXPECT_EQ(wide, u"\u00C9");
}

TEST(ZStringCaseTest, FoldsInABorrowedText) {
  char text[] = "Lent";
  ZString s;
  s.ReferenceFrom(text);
  s.MakeUpper();
  EXPECT_STREQ(text, "Lent");
  EXPECT_EQ(s, "LENT");
}

}  // namespace
