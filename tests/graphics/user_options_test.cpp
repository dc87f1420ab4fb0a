// User options: merging, canonical show, single reads, lengths, unsetting.
#include <string>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;
using engine_test::TreeSnapshot;

std::string AllOptions() {
  char list[4096] = "untouched";
  HC_Show_User_Options(list);
  return list;
}

std::string OneOption(const char* name) {
  char value[4096] = "untouched";
  HC_Show_One_User_Option(name, value);
  return value;
}

int AllLength() {
  int length = -1;
  HC_Show_User_Options_Length(&length);
  return length;
}

int OneLength(const char* name) {
  int length = -1;
  HC_Show_One_User_Option_Length(name, &length);
  return length;
}

class UserOptions : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    HC_Open_Segment("/options");
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }
};

TEST_F(UserOptions, SetsMergePerNameInOrderOfFirstSetting) {
  HC_Set_User_Options("Color = Red, size=10");
  HC_Set_User_Options("flag, no other, COLOR = Blue");
  EXPECT_EQ(AllOptions(), "color=Blue,size=10,flag,no other");
  EXPECT_EQ(OneOption("color"), "Blue");
  EXPECT_EQ(OneOption("  COLOR "), "Blue");
  EXPECT_EQ(OneOption("flag"), "on");
  EXPECT_EQ(OneOption("other"), "off");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(UserOptions, ValuesAreKeptVerbatimWithTheirQuotes) {
  HC_Set_User_Options("label = `x, y`, path = 'a=b', list = (1, 2)");
  EXPECT_EQ(OneOption("label"), "`x, y`");
  EXPECT_EQ(OneOption("path"), "'a=b'");
  EXPECT_EQ(OneOption("list"), "(1, 2)");
  EXPECT_EQ(AllOptions(), "label=`x, y`,path='a=b',list=(1, 2)");
}

TEST_F(UserOptions, ShownListRestoresTheSameOptionsOnAnEmptySegment) {
  HC_Set_User_Options("a = 1, b, no c, `odd, name` = `v`");
  const std::string shown = AllOptions();
  HC_Open_Segment("/copy");
  HC_Set_User_Options(shown.c_str());
  EXPECT_EQ(AllOptions(), shown);
  EXPECT_EQ(OneOption("odd, name"), "`v`");
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(UserOptions, LengthsMatchWhatShowWrites) {
  EXPECT_EQ(AllLength(), 0);
  EXPECT_EQ(OneLength("missing"), 0);
  HC_Set_User_Options("key = value, flag");
  EXPECT_EQ(AllLength(), static_cast<int>(AllOptions().size()));
  EXPECT_EQ(OneLength("key"), 5);
  EXPECT_EQ(OneLength("flag"), 2);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(UserOptions, MissingOptionsReadAsEmptySilently) {
  EXPECT_EQ(OneOption("nothing"), "");
  HC_Set_User_Options("something = 1");
  EXPECT_EQ(OneOption("nothing"), "");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(UserOptions, ShowingWhenNoneAreSetIsAnError) {
  EXPECT_EQ(AllOptions(), "untouched");
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryOption);
  EXPECT_EQ(reports[0].routine, "HC_Show_User_Options");
}

TEST_F(UserOptions, UnsettingRemovesOneOptionAndIsSilentWhenAbsent) {
  HC_Set_User_Options("a = 1, b = 2");
  HC_UnSet_One_User_Option("A");
  EXPECT_EQ(AllOptions(), "b=2");
  HC_UnSet_One_User_Option("a");
  HC_UnSet_One_User_Option("b");
  EXPECT_TRUE(TakeReports().empty());
  // The last one gone, the segment has no user options at all.
  EXPECT_EQ(AllOptions(), "untouched");
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(UserOptions, AMalformedListChangesNothing) {
  HC_Set_User_Options("a = 1");
  const std::string before = TreeSnapshot();
  HC_Set_User_Options("b = 2, c = 'unclosed");
  HC_Set_User_Options("d =");
  HC_Set_User_Options("no e = 3");
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 3u);
  for (const auto& report : reports) {
    EXPECT_EQ(report.category, graphics::kCategoryOption);
    EXPECT_EQ(report.routine, "HC_Set_User_Options");
  }
  EXPECT_EQ(TreeSnapshot(), before);
}

TEST_F(UserOptions, ReturnedStringsHonourTheCStringLength) {
  HC_Set_User_Options("long = abcdefghij");
  HC_Define_System_Options("C String Length = 4");
  EXPECT_EQ(OneOption("long"), "abcd");
  EXPECT_EQ(OneLength("long"), 4);
  EXPECT_EQ(AllLength(), 4);
  EXPECT_TRUE(TakeReports().empty());
}

}  // namespace
