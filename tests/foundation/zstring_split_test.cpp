// ZString: splitting by characters and by strings.
#include <gtest/gtest.h>

#include <vector>

#include "sceneward/foundation/zstring.h"

namespace {

std::vector<ZString> Pieces(std::initializer_list<const char*> texts) {
  return std::vector<ZString>(texts.begin(), texts.end());
}

TEST(ZStringSplitTest, AdjacentAndTrailingDelimitersGiveEmptyPieces) {
  std::vector<ZString> out;
  ZString("a,,b").SplitByChars(",", out);
  EXPECT_EQ(out, Pieces({"a", "", "b"}));
  out.clear();
  ZString("a,").SplitByChars(",", out);
  EXPECT_EQ(out, Pieces({"a", ""}));
  out.clear();
  ZString().SplitByChars(",", out);
  EXPECT_EQ(out, Pieces({""}));
}

TEST(ZStringSplitTest, SplitsAtAnyOfTheCharacters) {
  std::vector<ZString> out;
  ZString(u"a b;c").SplitByChars(" ;", out);
  EXPECT_EQ(out, Pieces({"a", "b", "c"}));
  EXPECT_TRUE(out[0].IsUnicode());
}

TEST(ZStringSplitTest, StartsSearchingAndCuttingAtStart) {
  std::vector<ZString> out;
  ZString("a,b,c").SplitByChars(",", out, true, 2);
  EXPECT_EQ(out, Pieces({"b", "c"}));
}

TEST(ZStringSplitTest, StringDelimitersAreSteppedOverWholeAndPiecesAppended) {
  std::vector<ZString> out = Pieces({"old"});
  ZString("one::two::::three").SplitByString("::", out);
  EXPECT_EQ(out, Pieces({"old", "one", "two", "", "three"}));
}

TEST(ZStringSplitTest, CaseInsensitiveSplitsKeepThePiecesCase) {
  std::vector<ZString> out;
  ZString("aXbxc").SplitByString("x", out, false);
  EXPECT_EQ(out, Pieces({"a", "b", "c"}));
  out.clear();
  ZString("OneANDtwoandThree").SplitByString("And", out, false);
  EXPECT_EQ(out, Pieces({"One", "two", "Three"}));
  out.clear();
  ZString("aXbxc").SplitByString("x", out, true);
  EXPECT_EQ(out, Pieces({"aXb", "c"}));
}

TEST(ZStringSplitTest, AnEmptyStringDelimiterLeavesOnePiece) {
  std::vector<ZString> out;
  ZString("abc").SplitByString("", out, true, 1);
  EXPECT_EQ(out, Pieces({"bc"}));
}

}  // namespace
