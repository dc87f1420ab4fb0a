// System options and the master reset.
#include <string>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;
using engine_test::TreeShape;

std::string AllSystemOptions() {
  char list[4096];
  HC_Show_System_Options(list);
  return list;
}

std::string OneSystemOption(const char* name) {
  char value[4096] = "untouched";
  HC_Show_One_System_Option(name, value);
  return value;
}

class SystemOptions : public EngineTest {};

TEST_F(SystemOptions, DefaultsAreListedInVocabularyOrder) {
  EXPECT_EQ(AllSystemOptions(), "bounding volumes,c string length=16777216,errors,info,update control,warnings");
  EXPECT_EQ(OneSystemOption("warnings"), "on");
  EXPECT_EQ(OneSystemOption("Warning"), "on");
  EXPECT_EQ(OneSystemOption("application"), "");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(SystemOptions, DefineMergesAndShowRestores) {
  const std::string defaults = AllSystemOptions();
  HC_Define_System_Options("no warnings, application = `My App`, C String Length = 100");
  EXPECT_EQ(OneSystemOption("warnings"), "off");
  EXPECT_EQ(OneSystemOption("errors"), "on");
  EXPECT_EQ(OneSystemOption("application"), "`My App`");
  EXPECT_EQ(OneSystemOption("c string length"), "100");
  const std::string changed = AllSystemOptions();

  HC_Reset_System();
  EXPECT_EQ(AllSystemOptions(), defaults);
  HC_Define_System_Options(changed.c_str());
  EXPECT_EQ(AllSystemOptions(), changed);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(SystemOptions, ABadListChangesNothing) {
  const std::string before = AllSystemOptions();
  const char* const bad[] = {"warnings, no such option", "errors = maybe", "c string length = -3",
                             "c string length", "disable = 20", "info = (1"};
  for (const char* list : bad) {
    HC_Define_System_Options(list);
    const auto reports = TakeReports();
    ASSERT_EQ(reports.size(), 1u) << list;
    EXPECT_EQ(reports[0].category, graphics::kCategoryOption) << list;
    EXPECT_EQ(reports[0].routine, "HC_Define_System_Options") << list;
    EXPECT_EQ(AllSystemOptions(), before) << list;
  }
  EXPECT_EQ(OneSystemOption("no such"), "untouched");
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(SystemOptions, SeveritySwitchesSilenceReports) {
  HC_Define_System_Options("no errors");
  HC_Close_Segment();  // an error with nothing open
  EXPECT_TRUE(TakeReports().empty());
  HC_Define_System_Options("errors");
  HC_Close_Segment();
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(SystemOptions, PairRulesDisableEnableOrLetThroughOnce) {
  // Closing with nothing open is 21/2101.
  HC_Define_System_Options("disable = 21/2101");
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
  EXPECT_EQ(OneSystemOption("disable"), "21/2101");

  HC_Define_System_Options("no errors, enable = (21/2101)");
  HC_Close_Segment();
  EXPECT_EQ(TakeReports().size(), 1u);

  HC_Define_System_Options("errors, once = 21/2101");
  HC_Close_Segment();
  HC_Close_Segment();
  EXPECT_EQ(TakeReports().size(), 1u);
  EXPECT_EQ(OneSystemOption("disable"), "21/2101");
}

TEST_F(SystemOptions, ResetBringsBackTheFirstTreeWithNothingOpen) {
  const std::string first = TreeShape();
  HC_Open_Segment("/scene");
  HC_Insert_Line(0, 0, 0, 1, 1, 1);
  HC_Set_User_Options("a = 1");
  HC_Open_Segment("deeper");
  HC_Reset_System();
  EXPECT_EQ(TreeShape(), first);
  HC_Close_Segment();
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].message, "no segment is open");
}

}  // namespace
