// Text through the manager: backquote stripping, the choice between the
// engine's narrow and 16-bit forms, and outputs sized by a length query.
#include <gtest/gtest.h>

#include <string>

#include "hc/hc.h"
#include "sceneward/foundation/zstring.h"
#include "support/engine_error_log.h"
#include "support/recording_host_test.h"

namespace {

ZString Stripped(const ZString& text) {
  ZString result(text);
  ZelmoSceneward().RemoveBackQuotes(result);
  return result;
}

TEST(ManagerRemoveBackQuotesTest, StripsOnePairThatEnclosesTheWhole) {
  EXPECT_EQ(Stripped("`abc`"), "abc");
  EXPECT_EQ(Stripped("``"), "");
  EXPECT_EQ(Stripped("``a``"), "`a`");
}

TEST(ManagerRemoveBackQuotesTest, LeavesAnythingElse) {
  EXPECT_EQ(Stripped(""), "");
  EXPECT_EQ(Stripped("`"), "`");
  EXPECT_EQ(Stripped("`abc"), "`abc");
  EXPECT_EQ(Stripped("abc`"), "abc`");
  EXPECT_EQ(Stripped("'abc'"), "'abc'");
}

TEST(ManagerRemoveBackQuotesTest, WorksOnWideTextAndKeepsItWide) {
  const ZString stripped = Stripped(ZString(u"`\u20AC5`"));
  EXPECT_TRUE(stripped.IsUnicode());
  EXPECT_EQ(stripped, ZString(u"\u20AC5"));
  EXPECT_EQ(Stripped(ZString(u"`\u20AC5")), ZString(u"`\u20AC5"));
}

class ManagerTextTest : public RecordingHostTest {
 protected:
  ManagerTextTest() { recorder_.HC_Open_Segment(kSegment); }
  ~ManagerTextTest() override {
    recorder_.HC_Close_Segment();
    ::HC_Delete_Segment(kSegment);
  }

  // The encoding the engine keeps for a text item.
  static std::string StoredEncoding(long long key) {
    char encoding[4096] = "";
    ::HC_Show_Text_Encoding(key, encoding);
    return encoding;
  }

  static constexpr char kSegment[] = "/manager text";
};

TEST_F(ManagerTextTest, TextThatFitsTheNarrowFormIsStoredNarrow) {
  EngineErrorLog log;
  const long long narrow = recorder_.HC_Insert_Text(0, 0, 0, ZString("plain"));
  const long long wideButAscii = recorder_.HC_Insert_Text(0, 0, 0, ZString(u"plain"));
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Show_Text_Encoding");
  EXPECT_NE(StoredEncoding(narrow), "unicode");
  EXPECT_NE(StoredEncoding(wideButAscii), "unicode");
}

TEST_F(ManagerTextTest, TextBeyondAsciiIsStoredAsUnicode) {
  EngineErrorLog log;
  const long long key = recorder_.HC_Insert_Text(0, 0, 0, ZString(u"5 \u20AC"));
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Insert_Text_With_Encoding");
  EXPECT_EQ(StoredEncoding(key), "unicode");
}

TEST_F(ManagerTextTest, ShownTextComesBackInTheFormItWasStoredIn) {
  EngineErrorLog log;
  const long long narrow = recorder_.HC_Insert_Text(1, 2, 3, ZString("hello"));
  const long long wide = recorder_.HC_Insert_Text(4, 5, 6, ZString(u"5 \u20AC"));
  float x = 0, y = 0, z = 0;
  ZString text;
  recorder_.HC_Show_Text(narrow, &x, &y, &z, text);
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Show_Text_With_Encoding");
  EXPECT_FALSE(text.IsUnicode());
  EXPECT_EQ(text, "hello");
  EXPECT_EQ(x, 1);
  EXPECT_EQ(y, 2);
  EXPECT_EQ(z, 3);

  recorder_.HC_Show_Text(wide, &x, &y, &z, text);
  EXPECT_TRUE(text.IsUnicode());
  EXPECT_EQ(text, ZString(u"5 \u20AC"));
  EXPECT_EQ(x, 4);
}

TEST_F(ManagerTextTest, ShowingTextOfNoLengthLeavesEveryOutput) {
  const long long empty = recorder_.HC_Insert_Text(1, 2, 3, ZString(""));
  float x = 7, y = 8, z = 9;
  ZString text("kept");
  recorder_.HC_Show_Text(empty, &x, &y, &z, text);
  EXPECT_EQ(text, "kept");
  EXPECT_EQ(x, 7);
  EXPECT_EQ(y, 8);
  EXPECT_EQ(z, 9);
}

// Longer than the 4096 characters a plain output string is given: a sized
// output that trusted the fixed size would overflow its buffer.
std::string LongValue() { return std::string(6000, 'v'); }

TEST_F(ManagerTextTest, AllUserOptionsAreReadWhateverTheirLength) {
  EngineErrorLog log;
  recorder_.HC_Set_User_Options(("long=" + LongValue()).c_str());
  ZString options;
  recorder_.HC_Show_User_Options(options);
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Show_User_Options");
  EXPECT_EQ(options, ("long=" + LongValue()).c_str());
}

TEST_F(ManagerTextTest, OneUserOptionIsReadWhateverItsLengthAndUnquoted) {
  EngineErrorLog log;
  recorder_.HC_Set_User_Options(("long=`" + LongValue() + "`, short=`x, y`").c_str());
  ZString value;
  recorder_.HC_Show_One_User_Option("long", value);
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Show_One_User_Option");
  EXPECT_EQ(value, LongValue().c_str());
  recorder_.HC_Show_One_User_Option("short", value);
  EXPECT_EQ(value, "x, y");
}

TEST_F(ManagerTextTest, NetUserOptionIsUnquoted) {
  EngineErrorLog log;
  recorder_.HC_Set_User_Options("colour=`dark red`");
  ZString value;
  const bool found = recorder_.HC_PShow_One_Net_User_Option(0, nullptr, "colour", value);
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_PShow_One_Net_User_Option");
  EXPECT_TRUE(found);
  EXPECT_EQ(value, "dark red");
}

TEST_F(ManagerTextTest, UnicodeOptionsGoWideAndComeBackWide) {
  EngineErrorLog log;
  recorder_.HC_Set_Unicode_Options(ZString(u"price=`5 \u20AC`"));
  ZString all;
  ZString one;
  ZString net;
  recorder_.HC_Show_Unicode_Options(all);
  recorder_.HC_Show_One_Unicode_Option(ZString(u"price"), one);
  const bool found = recorder_.HC_PShow_One_Net_Unicode_Opt(0, nullptr, ZString(u"price"), net);
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Set_Unicode_Options");
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Show_Unicode_Options");
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_Show_One_Unicode_Option");
  SW_SKIP_IF_ENGINE_LACKS(log, "HC_PShow_One_Net_Unicode_Opt");
  EXPECT_TRUE(all.IsUnicode());
  EXPECT_EQ(all, ZString(u"price=`5 \u20AC`"));
  EXPECT_EQ(one, ZString(u"5 \u20AC"));
  EXPECT_TRUE(found);
  EXPECT_EQ(net, ZString(u"5 \u20AC"));
}

}  // namespace
