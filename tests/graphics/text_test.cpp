// Text: ISO Latin-1 and encoded strings, lengths and round trips.
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

std::string EncodingOf(long long key) {
  char encoding[4096] = "untouched";
  HC_Show_Text_Encoding(key, encoding);
  return encoding;
}

int LengthOf(long long key) {
  int length = -1;
  HC_Show_Text_Length(key, &length);
  return length;
}

std::string PlainText(long long key) {
  char text[4096] = "untouched";
  HC_Show_Text(key, nullptr, nullptr, nullptr, text);
  return text;
}

class Text : public EngineTest {};

TEST_F(Text, LatinTextRoundTripsWithPositionAndLength) {
  const long long key = HC_Insert_Text(1, 2, 3, "Caf\xe9 Ol\xe9");
  float x = 0, y = 0, z = 0;
  char text[4096];
  HC_Show_Text(key, &x, &y, &z, text);
  EXPECT_STREQ(text, "Caf\xe9 Ol\xe9");
  EXPECT_EQ(x, 1.0f);
  EXPECT_EQ(y, 2.0f);
  EXPECT_EQ(z, 3.0f);
  EXPECT_EQ(LengthOf(key), 8);
  EXPECT_EQ(EncodingOf(key), "iso latin one");

  char encoding[64];
  char raw[64];
  HC_Show_Text_With_Encoding(key, nullptr, nullptr, nullptr, encoding, raw);
  EXPECT_STREQ(encoding, "iso latin one");
  EXPECT_STREQ(raw, "Caf\xe9 Ol\xe9");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Text, UnicodeTextIsSixteenBitUnitsRoundTripExactly) {
  const std::vector<uint16_t> wide = {u'A', 0x00e9, 0x4e2d, 0xd83d, 0xde00, u'z', 0};
  const long long key = HC_Insert_Text_With_Encoding(0, 0, 0, "Unicode", wide.data());
  ASSERT_NE(key, -1);
  EXPECT_EQ(LengthOf(key), 12);  // six units, two bytes each, no terminator
  EXPECT_EQ(EncodingOf(key), "unicode");

  // The caller's sizing rule: length plus a 16-bit terminator.
  std::vector<uint16_t> back(LengthOf(key) / 2 + 1, 0xffff);
  HC_Show_Text_With_Encoding(key, nullptr, nullptr, nullptr, nullptr, back.data());
  EXPECT_EQ(back, wide);

  // The plain show keeps what ISO Latin-1 can hold; a surrogate pair is one
  // character, so one '?'.
  EXPECT_EQ(PlainText(key), "A\xe9??z");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Text, OtherEncodingsKeepTheirUnits) {
  const char utf8[] = "caf\xc3\xa9 \xe2\x82\xac";  // "café €"
  const long long utf8_key = HC_Insert_Text_With_Encoding(0, 0, 0, " UTF8 ", utf8);
  EXPECT_EQ(EncodingOf(utf8_key), "utf8");
  EXPECT_EQ(LengthOf(utf8_key), static_cast<int>(std::strlen(utf8)));
  EXPECT_EQ(PlainText(utf8_key), "caf\xe9 ?");

  const std::vector<uint32_t> utf32 = {U'x', 0x1f600, 0xff, 0};
  const long long utf32_key = HC_Insert_Text_With_Encoding(0, 0, 0, "utf32", utf32.data());
  EXPECT_EQ(LengthOf(utf32_key), 12);
  std::vector<uint32_t> back(4, 7);
  HC_Show_Text_With_Encoding(utf32_key, nullptr, nullptr, nullptr, nullptr, back.data());
  EXPECT_EQ(back, utf32);
  EXPECT_EQ(PlainText(utf32_key), "x?\xff");

  const std::vector<uint16_t> utf16 = {u'o', u'k', 0};
  EXPECT_EQ(PlainText(HC_Insert_Text_With_Encoding(0, 0, 0, "utf16", utf16.data())), "ok");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Text, EmptyTextIsAllowed) {
  const long long key = HC_Insert_Text(0, 0, 0, "");
  EXPECT_EQ(LengthOf(key), 0);
  EXPECT_EQ(PlainText(key), "");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Text, UnknownEncodingsAndNullTextAreRefused) {
  EXPECT_EQ(HC_Insert_Text_With_Encoding(0, 0, 0, "klingon", "x"), -1);
  EXPECT_EQ(HC_Insert_Text_With_Encoding(0, 0, 0, "unicode", nullptr), -1);
  EXPECT_EQ(HC_Insert_Text(0, 0, 0, nullptr), -1);
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 3u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryOption);
  EXPECT_EQ(reports[0].message, "unrecognised text encoding 'klingon'");
  EXPECT_EQ(reports[1].category, graphics::kCategoryRange);
  EXPECT_EQ(reports[2].routine, "HC_Insert_Text");
}

TEST_F(Text, MoveChangesOnlyThePosition) {
  const long long key = HC_Insert_Text(0, 0, 0, "moving");
  HC_Move_Text(key, 4, 5, 6);
  float x = 0, y = 0, z = 0;
  char text[64];
  HC_Show_Text(key, &x, &y, &z, text);
  EXPECT_EQ(x, 4.0f);
  EXPECT_EQ(y, 5.0f);
  EXPECT_EQ(z, 6.0f);
  EXPECT_STREQ(text, "moving");
  HC_Move_Text(HC_Insert_Line(0, 0, 0, 1, 1, 1), 1, 1, 1);
  EXPECT_EQ(TakeReports().size(), 1u);
}

}  // namespace
