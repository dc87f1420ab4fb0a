// Redraw marks: what database changes and HC_Control_Update leave for the
// next update to read.
#include <string>

#include "database/redraw_marks.h"
#include "engine/engine.h"
#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;
using graphics::RedrawMarks;
using graphics::WindowArea;
using Redraw = graphics::RedrawMarks::Redraw;

const RedrawMarks& MarksOf(long long segment) {
  return graphics::Engine::Instance().database().FindSegment(segment).value()->redraw_marks();
}

using UpdateControl = EngineTest;

TEST_F(UpdateControl, ChangesMarkTheChangedSegmentWhileUpdateControlIsOn) {
  const long long top = HC_Create_Segment("/top");
  const long long part = HC_Create_Segment("/top/part");
  HC_Control_Update("/top/...", "unset redraw");
  EXPECT_TRUE(MarksOf(top).empty());
  const long long marker = HC_Insert_Marker(0, 0, 0);  // nothing open: the default window
  HC_Open_Segment_By_Key(part);
  HC_Set_User_Options("owner=me");
  HC_Close_Segment();
  EXPECT_EQ(MarksOf(part).redraw, Redraw::kPartial);
  EXPECT_TRUE(MarksOf(top).empty());  // only where the change is

  HC_Control_Update_By_Key(part, "unset redraw");
  HC_Define_System_Options("no update control");
  HC_Open_Segment_By_Key(part);
  HC_Insert_Line(0, 0, 0, 1, 1, 1);
  HC_Close_Segment();
  HC_Move_Text(-1, 0, 0, 0);  // a failing call changes nothing either
  EXPECT_TRUE(MarksOf(part).empty());
  HC_Control_Update_By_Key(marker, "redraw everything");  // geometry marks its owner
  EXPECT_EQ(MarksOf(HC_Show_Owner_By_Key(marker, nullptr)).redraw, Redraw::kEverything);
  TakeReports();
}

TEST_F(UpdateControl, WordsSetAndClearMarksInOrder) {
  const long long key = HC_Create_Segment("/view");
  HC_Control_Update("/view", "unset redraw, redraw partial, compile only");
  EXPECT_EQ(MarksOf(key).redraw, Redraw::kPartial);
  EXPECT_TRUE(MarksOf(key).compile_only);
  HC_Control_Update_By_Key(key, "REDRAW EVERYTHING,refresh");
  HC_Control_Update_By_Key(key, "redraw partial");  // never lowers the redraw
  EXPECT_EQ(MarksOf(key).redraw, Redraw::kEverything);
  EXPECT_TRUE(MarksOf(key).refresh);
  HC_Control_Update_By_Key(key, "redraw everything, unset redraw");
  EXPECT_TRUE(MarksOf(key).empty());
  HC_Control_Update_By_Key(key, "");  // a blank list does nothing
  EXPECT_TRUE(MarksOf(key).empty());
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(UpdateControl, AreasAddUpUntilUnset) {
  const long long key = HC_Create_Segment("/view");
  HC_Control_Update_By_Key(key, "unset redraw");
  HC_Control_Update_Area_By_Key(key, -1, 0, -0.5, 0.5, "redraw partial");
  HC_Control_Update_Area_By_Key(key, 0.25, 0.75, 0, 1, "");
  EXPECT_EQ(MarksOf(key).area, (WindowArea{-1, 0.75, -0.5, 1}));
  EXPECT_EQ(MarksOf(key).redraw, Redraw::kPartial);
  HC_Control_Update_Area_By_Key(key, -1, 1, -1, 1, "unset redraw");
  EXPECT_TRUE(MarksOf(key).empty());
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(UpdateControl, BadWordsKeysAndAreasAreReportedAndChangeNothing) {
  const long long key = HC_Create_Segment("/view");
  HC_Control_Update_By_Key(key, "unset redraw");
  struct Case {
    void (*call)(long long);
    int specific;
  };
  const Case cases[] = {
      {[](long long k) { HC_Control_Update_By_Key(k, "redraw everything, sparkle"); }, 2301},
      {[](long long k) { HC_Control_Update_By_Key(k, "no refresh"); }, 2301},
      {[](long long k) { HC_Control_Update_By_Key(k, "refresh = on"); }, 2301},
      {[](long long k) { HC_Control_Update_By_Key(k, "(refresh"); }, 2302},
      {[](long long k) { HC_Control_Update_By_Key(k, nullptr); }, 2402},
      {[](long long) { HC_Control_Update_By_Key(424242, "refresh"); }, 2001},  // no program gave 424242
      {[](long long) { HC_Control_Update("/nowhere*", "refresh"); }, 2202},
      {[](long long k) { HC_Control_Update_Area_By_Key(k, 0.5, 0.5, -1, 1, "refresh"); }, 2401},
      {[](long long k) { HC_Control_Update_Area_By_Key(k, -1, 1, 0, 2, "refresh"); }, 2401},
  };
  for (const Case& c : cases) {
    c.call(key);
    const auto reports = TakeReports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].specific, c.specific) << reports[0].message;
    EXPECT_TRUE(MarksOf(key).empty());
  }
  HC_Open_Segment_By_Key(key);
  const long long include = HC_Include_Segment("/include library");
  HC_Close_Segment();
  HC_Control_Update_By_Key(include, "refresh");
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].specific, 2002);
}

}  // namespace
