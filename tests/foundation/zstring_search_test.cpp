// ZString: substring and set searches.
#include <gtest/gtest.h>

#include "sceneward/foundation/zstring.h"

namespace {

TEST(ZStringFindTest, FindsSubstringsForwardAndBackwardInBothForms) {
  for (const ZString& s : {ZString("abcabc"), ZString(u"abcabc")}) {
    EXPECT_EQ(s.Find("bc"), 1);
    EXPECT_EQ(s.Find(u"bc", 2), 4);
    EXPECT_EQ(s.Find("x"), -1);
    EXPECT_EQ(s.ReverseFind("bc"), 4);
    EXPECT_EQ(s.ReverseFind("bc", 3), 1);
    EXPECT_EQ(s.ReverseFind("bc", 0), -1);
  }
}

TEST(ZStringFindTest, NegativeStartsAndEmptyTargetsFollowUnsignedPositions) {
  const ZString s("abc");
  EXPECT_EQ(s.Find("a", -1), -1);
  EXPECT_EQ(s.Find("", 2), 2);
  EXPECT_EQ(s.Find("", 3), 3);
  EXPECT_EQ(s.Find("", 4), -1);
  EXPECT_EQ(s.ReverseFind("", 1), 1);
  EXPECT_EQ(s.ReverseFind("", -1), 3);
}

TEST(ZStringFindTest, NoCaseSearchesLowerBothSides) {
  const ZString s("Hello World");
  EXPECT_EQ(s.FindNoCase("WORLD"), 6);
  EXPECT_EQ(s.Find("WORLD"), -1);
  EXPECT_EQ(ZString(u"aXbX").ReverseFindNoCase("x"), 3);
  EXPECT_EQ(s, "Hello World");
}

TEST(ZStringFindTest, FoldsInABorrowedText) {
  char text[] = "needle";
  ZString s;
  s.ReferenceFrom(text);
  EXPECT_EQ(s.Find("dl"), 3);
  text[0] = 'X';
  EXPECT_EQ(s.Find("n"), 0);
}

TEST(ZStringSetSearchTest, FindsMembersAndNonMembersFromEitherEnd) {
  for (const ZString& s : {ZString("  a,b;c  "), ZString(u"  a,b;c  ")}) {
    EXPECT_EQ(s.FindOneOf(",;"), 3);
    EXPECT_EQ(s.FindOneOf(",;", 4), 5);
    EXPECT_EQ(s.ReverseFindOneOf(",;"), 5);
    EXPECT_EQ(s.ReverseFindOneOf(",;", 4), 3);
    EXPECT_EQ(s.FindOneNotOf(" "), 2);
    EXPECT_EQ(s.ReverseFindOneNotOf(" "), 6);
    EXPECT_EQ(s.FindOneOf("xyz"), -1);
  }
}

TEST(ZStringSetSearchTest, EmptySetsAndStrings) {
  const ZString s("abc");
  EXPECT_EQ(s.FindOneOf(""), -1);
  EXPECT_EQ(s.ReverseFindOneOf(""), -1);
  EXPECT_EQ(s.FindOneNotOf("", 1), 1);
  EXPECT_EQ(s.FindOneNotOf("", 3), -1);
  EXPECT_EQ(s.ReverseFindOneNotOf(""), 2);
  EXPECT_EQ(ZString(u"").ReverseFindOneNotOf("a"), -1);
  // Bytes of 128 and above are members like any other.
  EXPECT_EQ(ZString("ab\xE9" "cd").FindOneNotOf("ab\xE9"), 3);
}

// Sets with a unit of 256 or above are scanned rather than tabled; both
// routes must answer alike.
TEST(ZStringSetSearchTest, WideSetsBeyondTheTableGiveTheSameAnswers) {
  const ZString s(u"x\u00E9y\u20ACz\u00E9");
  EXPECT_EQ(s.FindOneOf(u"\u00E9"), 1);
  EXPECT_EQ(s.FindOneOf(u"\u20AC\u00E9"), 1);
  EXPECT_EQ(s.FindOneOf(u"\u20AC"), 3);
  EXPECT_EQ(s.ReverseFindOneOf(u"\u20AC\u00E9"), 5);
  EXPECT_EQ(s.FindOneNotOf(u"x\u00E9y\u20AC"), 4);
  EXPECT_EQ(s.ReverseFindOneNotOf(u"\u00E9\u20ACz"), 2);
  // A unit that only agrees with a set member in its low byte is no member.
  EXPECT_EQ(ZString(u"\u01E9").FindOneOf(u"\u00E9\u20AC"), -1);
  EXPECT_EQ(ZString(u"\u01E9").FindOneOf(u"\u00E9"), -1);
}

TEST(ZStringSetSearchTest, SpansRunUpToTheFirstStop) {
  const ZString s("key=value");
  EXPECT_EQ(s.SpanExcluding("="), "key");
  EXPECT_EQ(s.SpanExcluding("=", 4), "value");
  EXPECT_EQ(ZString("123abc").SpanIncluding("0123456789"), "123");
}

}  // namespace
