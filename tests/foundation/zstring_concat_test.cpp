// ZString: which form concatenation leaves.
#include <gtest/gtest.h>

#include "sceneward/foundation/zstring.h"

namespace {

struct FormCase {
  ZString left;
  ZString right;
  bool resultIsWide;
};

TEST(ZStringConcatTest, TheResultIsNarrowOnlyIfBothSidesAre) {
  const FormCase cases[] = {
      {ZString("ab"), ZString("cd"), false},
      {ZString("ab"), ZString(u"cd"), true},
      {ZString(u"ab"), ZString("cd"), true},
      {ZString(u"ab"), ZString(u"cd"), true},
  };
  for (const FormCase& c : cases) {
    ZString s(c.left);
    s += c.right;
    EXPECT_EQ(s.IsUnicode(), c.resultIsWide);
    EXPECT_EQ(s, "abcd");
    EXPECT_EQ(c.left + c.right, "abcd");
  }
}

TEST(ZStringConcatTest, AnEmptySideLeavesTheFormOfTheOther) {
  ZString emptyNarrow;
  emptyNarrow += ZString(u"w");
  EXPECT_TRUE(emptyNarrow.IsUnicode());

  ZString emptyWide(u"");
  emptyWide += "n";
  EXPECT_FALSE(emptyWide.IsUnicode());

  ZString wide(u"w");
  wide += "";
  EXPECT_TRUE(wide.IsUnicode());
}

TEST(ZStringConcatTest, AppendingToItselfDoublesTheText) {
  ZString narrow("ab");
  narrow += narrow;
  EXPECT_EQ(narrow, "abab");
  ZString wide(u"\u20AC");
  wide += wide;
  EXPECT_EQ(wide, u"\u20AC\u20AC");
}

TEST(ZStringConcatTest, AppendingToABorrowedTextCopiesIt) {
  char text[] = "lent";
  ZString s;
  s.ReferenceFrom(text);
  s += "!";
  EXPECT_STREQ(text, "lent");
  EXPECT_EQ(s, "lent!");
}

TEST(ZStringConcatTest, PlusLeavesItsLeftSideAlone) {
  const ZString left("a");
  const ZString joined = left + "b" + u"c";
  EXPECT_EQ(left, "a");
  EXPECT_EQ(joined, u"abc");
  EXPECT_TRUE(joined.IsUnicode());
}

}  // namespace
