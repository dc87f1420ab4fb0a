// ZString: borrowed text, and the buffers it hands out.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "sceneward/foundation/zstring.h"
#include "support/scoped_locale.h"

namespace {

TEST(ZStringBorrowingTest, ABorrowedTextIsReadLiveUntilItIsFoldedIn) {
  char text[] = "abc";
  ZString s;
  s.ReferenceFrom(text);
  EXPECT_EQ(s.GetLength(), 3);
  EXPECT_EQ(s.GetAsMBCS(), text);  // no copy yet
  text[2] = '\0';
  EXPECT_EQ(s.GetLength(), 2);

  EXPECT_EQ(s.Compare("ab"), 0);
  text[0] = 'x';
  EXPECT_STREQ(s.GetAsMBCS(), "ab");
  EXPECT_FALSE(s.ForceReferenceIntoCopy());
}

TEST(ZStringBorrowingTest, BorrowedWideTextIsWideAndServedInPlace) {
  WideChar text[] = u"wide";
  ZString s;
  s.ReferenceFrom(text);
  EXPECT_TRUE(s.IsUnicode());
  EXPECT_EQ(s.GetAsWChar_T(), text);
  EXPECT_STREQ(s.GetAsMBCS(), "wide");
  EXPECT_TRUE(s.ForceReferenceIntoCopy());
  text[0] = u'x';
  EXPECT_EQ(WideString(s.GetAsWChar_T()), u"wide");
}

TEST(ZStringBorrowingTest, OnlyReferenceFromSharesABorrowedText) {
  char text[] = "shared";
  ZString lender;
  lender.ReferenceFrom(text);
  ZString sharer;
  sharer.ReferenceFrom(lender);
  const ZString copy(lender);
  text[0] = 'S';
  EXPECT_STREQ(sharer.GetAsMBCS(), "Shared");
  EXPECT_STREQ(lender.GetAsMBCS(), "Shared");
  EXPECT_STREQ(copy.GetAsMBCS(), "shared");

  ZString fromOwned;
  fromOwned.ReferenceFrom(copy);  // nothing borrowed: a copy
  EXPECT_NE(fromOwned.GetAsMBCS(), copy.GetAsMBCS());
}

TEST(ZStringBorrowingTest, BorrowingNullGivesTheEmptyStringOfThatForm) {
  ZString s("x");
  s.ReferenceFrom(static_cast<const WideChar*>(nullptr));
  EXPECT_TRUE(s.IsEmpty());
  EXPECT_TRUE(s.IsUnicode());
  s.ReferenceFrom(static_cast<const char*>(nullptr));
  EXPECT_TRUE(s.IsEmpty());
  EXPECT_FALSE(s.IsUnicode());
  const int ints[] = {'h', 'i', 0};
  s.ReferenceFrom(ints);  // 32-bit text is always copied
  EXPECT_FALSE(s.ForceReferenceIntoCopy());
  EXPECT_EQ(WideString(s.GetAsWChar_T()), u"hi");
}

TEST(ZStringBufferTest, ABufferHasTheRoomAskedForAndIsMeasuredLive) {
  ZString s("ab");
  char* buffer = s.GetBuffer8(100);
  EXPECT_STREQ(buffer, "ab");
  std::strcpy(buffer, "xyz");
  EXPECT_EQ(s.GetLength(), 3);
  std::memset(buffer, 'q', 100);
  buffer[100] = '\0';
  EXPECT_EQ(s.GetLength(), 100);
  EXPECT_TRUE(s.ForceReferenceIntoCopy());
  EXPECT_EQ(s.GetAsSTLString(), std::string(100, 'q'));
}

TEST(ZStringBufferTest, ABufferSetsTheFormOfTheString) {
  ZString s(u"abc");
  std::strcpy(s.GetBuffer8(0), "n");
  EXPECT_FALSE(s.IsUnicode());
  std::memcpy(s.GetBuffer16(4), u"wide", sizeof u"wide");  // frees the narrow buffer
  EXPECT_TRUE(s.IsUnicode());
  EXPECT_EQ(s.GetLength(), 4);
  EXPECT_EQ(WideString(s.GetAsWChar_T()), u"wide");
  EXPECT_EQ(WideString(s.GetBufferT(0)), u"wide");
}

TEST(ZStringBufferTest, ANarrowBufferHoldsTheWholeConversionOfAWideString) {
  ScopedLocale locale("C.UTF-8");
  ASSERT_TRUE(locale.applied());
  ZString s(u"\u20AC\u20AC");
  EXPECT_STREQ(s.GetBuffer8(0), "\xE2\x82\xAC\xE2\x82\xAC");  // six bytes for two units
  EXPECT_EQ(s.GetLength(), 6);
}

TEST(ZStringIntsTest, EachCallGivesAFreshArrayThatOutlivesTheString) {
  const int* first = nullptr;
  const int* second = nullptr;
  {
    ZString s(u"A\u20AC");
    first = s.GetAsInts();
    second = s;
    s = "changed";
  }
  ASSERT_NE(first, second);
  for (const int* ints : {first, second}) {
    EXPECT_EQ(ints[0], 'A');
    EXPECT_EQ(ints[1], 0x20AC);
    EXPECT_EQ(ints[2], 0);
    std::free(const_cast<int*>(ints));
  }
}

TEST(ZStringIntsTest, ANarrowStringGivesOneElementPerByteOfLength) {
  ScopedLocale locale("C.UTF-8");
  ASSERT_TRUE(locale.applied());
  const ZString s("\xC3\xA9");  // one character, two bytes
  int* ints = const_cast<int*>(s.GetAsInts());
  EXPECT_EQ(ints[0], 0xE9);
  EXPECT_EQ(ints[1], 0);
  EXPECT_EQ(ints[2], 0);
  std::free(ints);
}

}  // namespace
