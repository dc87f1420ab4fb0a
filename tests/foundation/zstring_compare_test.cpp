// ZString: ordering and case-blind comparison.
#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "sceneward/foundation/zstring.h"

namespace {

int Sign(int value) { return (value > 0) - (value < 0); }

TEST(ZStringCompareTest, NarrowTextOrdersByUnsignedBytesThenLength) {
  EXPECT_EQ(Sign(ZString("a").Compare("\xE9")), -1);
  EXPECT_EQ(Sign(ZString("ab").Compare("abc")), -1);
  EXPECT_EQ(Sign(ZString("abc").Compare("ab")), 1);
  EXPECT_EQ(ZString("abc").Compare("abc"), 0);
  EXPECT_EQ(ZString("").Compare(""), 0);
}

TEST(ZStringCompareTest, WideTextOrdersByUnsignedUnitsThenLength) {
  EXPECT_EQ(Sign(ZString(u"\u7FFF").Compare(u"\u8000")), -1);
  EXPECT_EQ(Sign(ZString(u"\uFFFF").Compare(u"z")), 1);
  EXPECT_EQ(Sign(ZString(u"ab").Compare(u"abc")), -1);
  EXPECT_EQ(ZString(u"abc").Compare(u"abc"), 0);
}

TEST(ZStringCompareTest, MixedFormsCompareTheirWideViews) {
  EXPECT_EQ(ZString("abc").Compare(u"abc"), 0);
  EXPECT_EQ(ZString(u"abc").Compare("abc"), 0);
  EXPECT_EQ(Sign(ZString("abc").Compare(u"abd")), -1);
}

TEST(ZStringCompareTest, OperatorsFollowCompareForStringsAndLiterals) {
  const ZString b("b");
  EXPECT_TRUE(b == "b");
  EXPECT_TRUE("b" == b);
  EXPECT_TRUE(b != u"c");
  EXPECT_TRUE(b < ZString("c"));
  EXPECT_TRUE(b > "a");
  EXPECT_TRUE(b <= "b");
  EXPECT_TRUE(b >= u"b");
  EXPECT_FALSE(b < b);
}

TEST(ZStringCompareTest, AnOrderedMapSortsNarrowKeysByByte) {
  std::map<ZString, int> byName;
  for (const char* name : {"\xE9t\xE9", "Zeta", "alpha", "Alpha"}) byName[name] = 0;
  std::vector<ZString> order;
  for (const auto& entry : byName) order.push_back(entry.first);
  ASSERT_EQ(order.size(), 4u);
  EXPECT_EQ(order[0], "Alpha");
  EXPECT_EQ(order[1], "Zeta");
  EXPECT_EQ(order[2], "alpha");
  EXPECT_EQ(order[3], "\xE9t\xE9");
}

TEST(ZStringCompareTest, CompareFoldsInABorrowedText) {
  char text[] = "abc";
  ZString s;
  s.ReferenceFrom(text);
  EXPECT_EQ(s.Compare("abc"), 0);
  text[0] = 'z';
  EXPECT_EQ(s.Compare("abc"), 0);
}

TEST(ZStringCompareTest, CompareNoCaseMapsOnlySingleByteCase) {
  EXPECT_EQ(ZString("MiXeD").CompareNoCase("mixed"), 0);
  EXPECT_EQ(ZString(u"MIXED").CompareNoCase("mixed"), 0);
  EXPECT_EQ(Sign(ZString("B").CompareNoCase("a")), 1);
  EXPECT_NE(ZString(u"\u0100").CompareNoCase(u"\u0101"), 0);  // no wide case mapping
}

TEST(ZStringCompareTest, CompareNoCaseLeavesBothStringsAlone) {
  const ZString upper("UP");
  const ZString lower("up");
  EXPECT_EQ(upper.CompareNoCase(lower), 0);
  EXPECT_STREQ(upper.GetAsMBCS(), "UP");
}

}  // namespace
