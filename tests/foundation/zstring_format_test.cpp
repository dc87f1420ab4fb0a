// ZString: formatted text, with formats given or loaded as resources.
#include <gtest/gtest.h>

#include <string>

#include "platform/string_resources.h"
#include "sceneward/foundation/zstring.h"

namespace {

TEST(ZStringFormatTest, TheResultTakesTheFormatsForm) {
  ZString s(u"old");
  s.Format("%d-%s-%.2f", 7, "seven", 7.0);
  EXPECT_EQ(s, "7-seven-7.00");
  EXPECT_FALSE(s.IsUnicode());
  s.Format(u"%d-%s-%c", 7, u"s\u00E9pt", u'\u20AC');
  EXPECT_EQ(s, u"7-s\u00E9pt-\u20AC");
  EXPECT_TRUE(s.IsUnicode());
  s.Format("%lld", -9000000000LL);
  EXPECT_EQ(s, "-9000000000");
}

TEST(ZStringFormatTest, LongResultsAreNeverCut) {
  const std::string narrowPiece(5000, 'n');
  const WideString widePiece(5000, u'\u00E9');
  ZString s;
  s.Format("<%s>", narrowPiece.c_str());
  EXPECT_EQ(s.GetLength(), 5002);
  s.Format(u"<%s>%5000d", widePiece.c_str(), 1);
  EXPECT_EQ(s.GetLength(), 10002);
  EXPECT_EQ(s.GetAt(5000), u'\u00E9');
}

TEST(ZStringFormatTest, KeepsAnEmbeddedZeroAndFailsToTheEmptyString) {
  ZString s;
  s.Format("a%cb", 0);
  EXPECT_EQ(s.GetLength(), 3);
  s.Format(u"%q", 1);
  EXPECT_TRUE(s.IsEmpty());
  EXPECT_TRUE(s.IsUnicode());
}

class ZStringFormatResourceTest : public ::testing::Test {
 protected:
  void SetUp() override {
    platform::RegisterStringTable(module(), {{1, u"%d \u00E9l\u00E9ments"}, {2, u"%s!"}});
  }
  void TearDown() override { platform::UnregisterStringTable(module()); }
  void* module() { return &handle_; }

 private:
  int handle_ = 0;
};

TEST_F(ZStringFormatResourceTest, LoadsTheFormatInTheFormTheCallNames) {
  ZString s;
  s.Format(1, module(), 3);
  EXPECT_EQ(s, u"3 \u00E9l\u00E9ments");
  s.Format16(2, module(), u"wide");
  EXPECT_EQ(s, u"wide!");
  EXPECT_TRUE(s.IsUnicode());
  s.Format8(2, module(), "narrow");
  EXPECT_EQ(s, "narrow!");
  EXPECT_FALSE(s.IsUnicode());
  s.Format(99, module(), 1);
  EXPECT_TRUE(s.IsEmpty());
}

TEST_F(ZStringFormatResourceTest, LoadZStringMakesANewString) {
  EXPECT_EQ(LoadZString("%d+%d", 1, 2), "1+2");
  const ZString wide = LoadZString(1, module(), 5);
  EXPECT_EQ(wide, u"5 \u00E9l\u00E9ments");
  EXPECT_EQ(LoadZString16(2, module(), u"w"), u"w!");
  const ZString narrow = LoadZString8(2, module(), "n");
  EXPECT_EQ(narrow, "n!");
  EXPECT_FALSE(narrow.IsUnicode());
}

}  // namespace
