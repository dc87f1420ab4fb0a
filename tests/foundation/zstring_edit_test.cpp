// ZString: cutting from the ends, editing, trimming and reversal.
#include <gtest/gtest.h>

#include <utility>

#include "sceneward/foundation/zstring.h"

namespace {

TEST(ZStringEditTest, RightWrapsWhenAskedForMoreThanThereIs) {
  const ZString s("abc");
  EXPECT_EQ(s.Left(5), "abc");
  EXPECT_EQ(s.Right(3), "abc");
  EXPECT_TRUE(s.Right(5).IsEmpty());
}

TEST(ZStringEditTest, DeleteCutsTheTailWhenTheCountReachesTheEnd) {
  const std::pair<int, const char*> cases[] = {{1, "acd"}, {3, "a"}, {-1, "a"}};
  for (const auto& [count, expected] : cases) {
    ZString s("abcd");
    EXPECT_EQ(s.Delete(1, count), ZString(expected).GetLength());
    EXPECT_EQ(s, expected);
  }
}

TEST(ZStringEditTest, InsertPutsTextBeforeTheIndexOrAppends) {
  ZString s("abc");
  EXPECT_EQ(s.Insert(1, "XY"), 5);
  EXPECT_EQ(s, "aXYbc");
  EXPECT_EQ(s.Insert(10, "x"), 6);
  EXPECT_EQ(s, "aXYbcx");
  s.Insert(0, u"\u20AC");
  EXPECT_EQ(s, u"\u20ACaXYbcx");
}

TEST(ZStringEditTest, ReplaceNeverSearchesInsertedTextAgain) {
  ZString s("aaa");
  EXPECT_EQ(s.Replace("a", "aa"), 3);
  EXPECT_EQ(s, "aaaaaa");
  ZString t("xabyab");
  EXPECT_EQ(t.Remove("ab"), 2);
  EXPECT_EQ(t, "xy");
  EXPECT_EQ(t.Replace("", "r"), 0);
  EXPECT_EQ(t, "xy");
}

TEST(ZStringEditTest, OnlyAWideArgumentMakesANarrowStringWide) {
  ZString narrow("a-b");
  narrow.Replace("-", "+");
  EXPECT_FALSE(narrow.IsUnicode());
  narrow.Replace(u"+", "=");
  EXPECT_TRUE(narrow.IsUnicode());
  EXPECT_EQ(narrow, u"a=b");
}

TEST(ZStringEditTest, ReplaceMayBeGivenTheStringItself) {
  ZString s("ab");
  EXPECT_EQ(s.Replace(s, ZString("xy") + s), 1);
  EXPECT_EQ(s, "xyab");
  EXPECT_EQ(s.Replace("a", s), 1);
  EXPECT_EQ(s, "xyxyabb");
}

TEST(ZStringEditTest, TrimsTheGivenSetOnly) {
  ZString s(" \tvalue \t");
  EXPECT_EQ(s.Trim(" \t"), "value");
  ZString t("xxvaluexx");
  EXPECT_EQ(t.TrimLeft("x"), "valuexx");
  EXPECT_EQ(t.TrimRight("x"), "value");
  ZString wide(u"\u3000word\u3000");
  EXPECT_EQ(wide.Trim(u"\u3000"), u"word");
}

TEST(ZStringEditTest, TrimmingEverythingGivesTheEmptyNarrowString) {
  for (ZString s : {ZString("   "), ZString(u"   "), ZString(u"")}) {
    s.Trim(" ");
    EXPECT_TRUE(s.IsEmpty());
    EXPECT_FALSE(s.IsUnicode());
  }
}

TEST(ZStringEditTest, ReverseSwapsUnitsEvenOfASurrogatePair) {
  ZString pair(u"a\xD83D\xDE00");
  pair.MakeReverse();
  EXPECT_EQ(pair, u"\xDE00\xD83D" u"a");
}

}  // namespace
