// Includes and styles: made by name or key, plain or conditional, shown
// back, and gone with their target.
#include <string>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

class References : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    part_ = HC_Create_Segment("/include library/part");
    look_ = HC_Create_Segment("/style library/look");
    HC_Open_Segment("/scene");
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }
  long long part_, look_;
};

TEST_F(References, ShowsGiveTargetPathKeyAndCondition) {
  const long long include = HC_Conditional_Include_By_Key(part_, " detailed AND NOT draft ");
  const long long style = HC_Style_Segment("?style library/look");
  char path[256], condition[256];
  EXPECT_EQ(HC_Show_Include_Segment(include, path), part_);
  EXPECT_STREQ(path, "/include library/part");
  HC_Show_Conditional_Include(include, path, condition);
  EXPECT_STREQ(condition, "detailed AND NOT draft");
  HC_Show_Conditional_Style(style, path, condition);
  EXPECT_STREQ(path, "/style library/look");
  EXPECT_STREQ(condition, "");
  char type[32];
  HC_Show_Key_Type(style, type);
  EXPECT_STREQ(type, "style");
  EXPECT_TRUE(TakeReports().empty());
  EXPECT_EQ(HC_Show_Style_Segment(include, path), -1);
  EXPECT_STREQ(path, "");
  EXPECT_EQ(HC_Include_Segment("/include library/missing"), -1);
  EXPECT_EQ(HC_Style_Segment_By_Key(HC_Insert_Marker(0, 0, 0)), -1);
  EXPECT_EQ(TakeReports().size(), 3u);
}

TEST_F(References, DeletingTheTargetDeletesTheReferences) {
  const long long include = HC_Include_Segment_By_Key(part_);
  const long long style = HC_Conditional_Style_By_Key(look_, "night");
  HC_Delete_Segment("/include library/part");
  char status[16];
  HC_Show_Key_Status(include, status);
  EXPECT_STREQ(status, "invalid");
  HC_Delete_By_Key(style);  // the reference only
  HC_Show_Key_Status(look_, status);
  EXPECT_STREQ(status, "valid");
  EXPECT_EQ(HC_Show_Existence("includes, styles"), 0);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(References, IncludesThatWouldLoopAreRefused) {
  EXPECT_NE(HC_Include_Segment_By_Key(part_), -1);
  EXPECT_EQ(HC_Include_Segment("."), -1);
  HC_Open_Segment("/include library/part");
  EXPECT_EQ(HC_Include_Segment("/scene"), -1);  // /scene already draws this segment
  EXPECT_NE(HC_Style_Segment("/scene"), -1);    // styles lend attributes only
  HC_Close_Segment();
  EXPECT_EQ(TakeReports().size(), 2u);
}

}  // namespace
