// ZString: reading numbers.
#include <gtest/gtest.h>

#include <climits>

#include "sceneward/foundation/zstring.h"

namespace {

TEST(ZStringNumbersTest, ReadsOnlyTheLeadingNumber) {
  for (const ZString& s : {ZString("  12abc"), ZString(u"  12abc")}) {
    EXPECT_EQ(s.GetAsInt(), 12);
    EXPECT_EQ(s.GetAsLong(), 12);
    EXPECT_EQ(s.GetAsI64(), 12);
    EXPECT_DOUBLE_EQ(s.GetAsDouble(), 12.0);
  }
  EXPECT_DOUBLE_EQ(ZString("-1.5e3x").GetAsDouble(), -1500.0);
  EXPECT_FLOAT_EQ(ZString(u"0.25").GetAsFloat(), 0.25f);
}

TEST(ZStringNumbersTest, TextWithoutANumberGivesZero) {
  EXPECT_EQ(ZString("").GetAsInt(), 0);
  EXPECT_EQ(ZString("x1").GetAsInt(), 0);
  EXPECT_EQ(ZString(u"\u20AC1").GetAsI64(), 0);
  EXPECT_EQ(ZString(u"").GetAsDouble(), 0.0);
}

TEST(ZStringNumbersTest, SixtyFourBitValuesSurviveWhole) {
  EXPECT_EQ(ZString(LLONG_MIN).GetAsI64(), LLONG_MIN);
  EXPECT_EQ(ZString(u"9223372036854775807").GetAsI64(), LLONG_MAX);
}

TEST(ZStringNumbersTest, AWideNumberEndsAtItsFirstNonAsciiUnit) {
  EXPECT_EQ(ZString(u"42\u20AC17").GetAsInt(), 42);
  EXPECT_DOUBLE_EQ(ZString(u"2.5\u00B0").GetAsDouble(), 2.5);
}

}  // namespace
