// ZString: the forms that construction and assignment produce.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "sceneward/foundation/zstring.h"

namespace {

TEST(ZStringConstructionTest, NullPointersGiveTheEmptyStringInThePointersForm) {
  const ZString narrow(static_cast<const char*>(nullptr), 5);
  EXPECT_TRUE(narrow.IsEmpty());
  EXPECT_FALSE(narrow.IsUnicode());

  const ZString wide(static_cast<const WideChar*>(nullptr));
  const ZString shorts(static_cast<const unsigned short*>(nullptr), 5);
  const ZString ints(static_cast<const int*>(nullptr), 5);
  for (const ZString* s : {&wide, &shorts, &ints}) {
    EXPECT_TRUE(s->IsEmpty());
    EXPECT_TRUE(s->IsUnicode());
  }
  const ZString defaulted;
  EXPECT_TRUE(defaulted.IsEmpty());
  EXPECT_FALSE(defaulted.IsUnicode());
}

TEST(ZStringConstructionTest, SingleCharactersKeepTheirFormAndAZeroByteCounts) {
  const ZString zero('\0');
  EXPECT_EQ(zero.GetLength(), 1);
  EXPECT_EQ(ZString(zero).GetLength(), 0);  // copies read up to the first 0

  const ZString unit(u'\u20AC');
  EXPECT_EQ(unit.GetLength(), 1);
  EXPECT_TRUE(unit.IsUnicode());
}

TEST(ZStringConstructionTest, NumbersArePrintedNarrow) {
  EXPECT_STREQ(ZString(-42).GetAsMBCS(), "-42");
  EXPECT_STREQ(ZString(123456789L).GetAsMBCS(), "123456789");
  EXPECT_STREQ(ZString(1.5f).GetAsMBCS(), "1.500000");
  EXPECT_STREQ(ZString(-0.25).GetAsMBCS(), "-0.250000");
  EXPECT_STREQ(ZString(1LL << 40).GetAsMBCS(), "1099511627776");
  EXPECT_EQ(ZString(1e300).GetLength(), 308);  // 301 digits, point, 6 decimals
  EXPECT_FALSE(ZString(7).IsUnicode());
}

TEST(ZStringConstructionTest, AnExplicitLengthIsTakenAsItStands) {
  const char bytes[10] = {'a', 'b', 'c'};
  ZString s;
  s.CopyFrom(bytes, 10);
  EXPECT_EQ(s.GetLength(), 10);
  EXPECT_EQ(s.GetAt(9), 0);
  s.CopyFromUTF8("\xC3\xA9xyz", 2);
  EXPECT_EQ(s.GetLength(), 2);
  EXPECT_FALSE(s.IsUnicode());

  const WideChar units[] = {u'a', 0, u'b'};
  s.CopyFrom(units, 3);
  EXPECT_EQ(s.GetLength(), 3);
  EXPECT_EQ(s.GetAt(2), u'b');
}

TEST(ZStringConstructionTest, ThirtyTwoBitTextKeepsTheLowSixteenBits) {
  const int elements[] = {0x10041, 0x42, 0, 0x43, 0};
  const ZString upToZero(elements);
  EXPECT_TRUE(upToZero.IsUnicode());
  EXPECT_EQ(WideString(upToZero.GetAsWChar_T()), u"AB");
  const ZString counted(elements, 4);
  EXPECT_EQ(counted.GetLength(), 4);
  EXPECT_EQ(counted.GetAt(3), u'C');
}

TEST(ZStringConstructionTest, StandardStringsGiveTheirCharacterData) {
  const std::string narrow("ab\0cd", 5);
  EXPECT_EQ(ZString(narrow).GetLength(), 2);
  EXPECT_EQ(ZString(narrow, 5).GetLength(), 5);
  const ZString wide(WideString(u"xyz"));
  EXPECT_TRUE(wide.IsUnicode());
  EXPECT_EQ(wide.GetLength(), 3);
}

TEST(ZStringConstructionTest, ACopyKeepsTheSourceForm) {
  const ZString wide(u"wide");
  const ZString copy(wide);
  EXPECT_TRUE(copy.IsUnicode());
  EXPECT_EQ(WideString(copy.GetAsWChar_T()), u"wide");

  const ZString head(wide, 2);
  EXPECT_TRUE(head.IsUnicode());
  EXPECT_EQ(WideString(head.GetAsWChar_T()), u"wi");
  EXPECT_STREQ(ZString(ZString("narrow"), 99).GetAsMBCS(), "narrow");
}

TEST(ZStringConstructionTest, AssigningAStringToItselfKeepsTheText) {
  ZString narrow("abc");
  ZString wide(u"abc");
  const char borrowedText[] = "borrowed";
  ZString borrowed;
  borrowed.ReferenceFrom(borrowedText);
  ZString owned;
  std::strcpy(owned.GetBuffer8(8), "owned");
  for (ZString* s : {&narrow, &wide, &borrowed, &owned}) {
    const ZString& same = *s;
    *s = same;
  }
  EXPECT_STREQ(narrow.GetAsMBCS(), "abc");
  EXPECT_EQ(WideString(wide.GetAsWChar_T()), u"abc");
  EXPECT_TRUE(wide.IsUnicode());
  EXPECT_STREQ(borrowed.GetAsMBCS(), "borrowed");
  EXPECT_STREQ(owned.GetAsMBCS(), "owned");
}

TEST(ZStringConstructionTest, CopyFromMayReadThisStringsOwnText) {
  ZString s("abcd");
  s.CopyFrom(s.GetAsMBCS() + 1);
  EXPECT_STREQ(s.GetAsMBCS(), "bcd");

  std::strcpy(s.GetBuffer8(10), "owned");
  s.CopyFrom(s.GetAsMBCS() + 2, 2);  // the buffer is folded in before it is read
  EXPECT_STREQ(s.GetAsMBCS(), "ne");
}

TEST(ZStringConstructionTest, EmptyingAWideStringMakesItNarrow) {
  ZString s(u"wide");
  s.Empty();
  EXPECT_TRUE(s.IsEmpty());
  EXPECT_FALSE(s.IsUnicode());
}

}  // namespace
