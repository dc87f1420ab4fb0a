// The per-thread stack of open segments: nesting, dead frames after failed
// opens, and calls made with nothing open.
#include <string>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;
using engine_test::TreeSnapshot;

std::string CurrentPath() {
  char path[4096];
  HC_Show_Segment(HC_Open_Segment("."), path);
  HC_Close_Segment();
  return path;
}

std::string UserOptionsHere() {
  char list[4096] = "";
  HC_Show_User_Options(list);
  return list;
}

class OpenStack : public EngineTest {};

TEST_F(OpenStack, OpensNestAndEachCloseRestoresThePreviousSegment) {
  const long long a = HC_Open_Segment("/a");
  const long long b = HC_Open_Segment("b");
  EXPECT_EQ(CurrentPath(), "/a/b");
  HC_Open_Segment_By_Key(a);
  EXPECT_EQ(CurrentPath(), "/a");
  HC_Close_Segment();
  EXPECT_EQ(HC_Open_Segment("."), b);
  HC_Close_Segment();
  HC_Close_Segment();
  EXPECT_EQ(CurrentPath(), "/a");
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OpenStack, FailedOpensPushDeadFramesThatSwallowCallsUntilClosed) {
  const long long line = [] {
    HC_Open_Segment("/geometry holder");
    const long long key = HC_Insert_Line(0, 0, 0, 1, 0, 0);
    HC_Set_User_Options("kept = yes");
    HC_Close_Segment();
    return key;
  }();
  HC_Open_Segment("/outer");
  const std::string before = TreeSnapshot();

  // One report per failed open, none for the calls under the dead frame.
  for (auto fail : {+[] { HC_Open_Segment_By_Key(-987654); }, +[] { HC_Open_Segment("bad*name"); }}) {
    fail();
    ASSERT_EQ(TakeReports().size(), 1u);
    EXPECT_EQ(HC_Insert_Line(0, 0, 0, 1, 1, 1), -1);
    EXPECT_EQ(HC_Insert_Text(0, 0, 0, "lost"), -1);
    HC_Set_User_Options("lost = yes");
    EXPECT_EQ(UserOptionsHere(), "");
    EXPECT_EQ(HC_Open_Segment("child"), -1);  // another dead frame
    HC_Close_Segment();
    EXPECT_EQ(HC_Create_Segment("child"), -1);
    HC_Close_Segment();
    EXPECT_TRUE(TakeReports().empty());
    EXPECT_EQ(TreeSnapshot(), before);
  }

  // A geometry key sent to open-by-key gives a dead frame too.
  HC_Open_Segment_By_Key(line);
  ASSERT_EQ(TakeReports().size(), 1u);
  HC_Set_User_Options("lost = yes");
  HC_Close_Segment();
  EXPECT_EQ(TreeSnapshot(), before);

  // The bracket stayed balanced: /outer is current again.
  EXPECT_EQ(CurrentPath(), "/outer");
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OpenStack, AbsolutePathsStillWorkUnderADeadFrame) {
  HC_Open_Segment_By_Key(-987654);
  TakeReports();
  const long long made = HC_Create_Segment("/made under a dead frame");
  EXPECT_NE(made, -1);
  char path[4096];
  HC_Show_Segment(made, path);
  EXPECT_STREQ(path, "/made under a dead frame");
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OpenStack, WithNothingOpenSetsAndInsertsGoToTheDefaultWindow) {
  const long long line = HC_Insert_Line(0, 0, 0, 1, 1, 1);
  HC_Set_User_Options("where = window");
  char owner[4096];
  EXPECT_EQ(HC_Show_Owner_By_Key(line, owner), HC_Create_Segment("?picture"));
  EXPECT_STREQ(owner, "/driver/null/window0");
  EXPECT_EQ(UserOptionsHere(), "where=window");
  HC_Open_Segment("?Picture");
  EXPECT_EQ(UserOptionsHere(), "where=window");
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OpenStack, TheDefaultWindowComesBackAfterDeletion) {
  HC_Delete_Segment("/driver/null/window0");
  ASSERT_TRUE(TakeReports().empty());
  const long long line = HC_Insert_Line(0, 0, 0, 1, 1, 1);
  char owner[4096];
  HC_Show_Owner_By_Key(line, owner);
  EXPECT_STREQ(owner, "/driver/null/window0");
}

TEST_F(OpenStack, RelativeNamesWithNothingOpenAreErrors) {
  const std::string before = TreeSnapshot();
  EXPECT_EQ(HC_Open_Segment("relative"), -1);
  HC_Close_Segment();  // pops the dead frame
  EXPECT_EQ(HC_Open_Segment(""), -1);
  HC_Close_Segment();
  EXPECT_EQ(HC_Create_Segment("."), -1);
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 3u);
  for (const auto& report : reports) {
    EXPECT_EQ(report.category, graphics::kCategoryName);
  }
  EXPECT_EQ(TreeSnapshot(), before);
}

}  // namespace
