// Bad input of every kind reaches the handlers with its category and the
// function's name, and leaves the database as it was.
#include <functional>
#include <string>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;
using engine_test::TreeSnapshot;

struct BadCall {
  const char* routine;
  int category;
  std::function<void()> call;
};

class BadInput : public EngineTest {};

TEST_F(BadInput, EachBadCallReportsOnceAndChangesNothing) {
  const long long line = HC_Insert_Line(0, 0, 0, 1, 1, 1);
  const long long segment = HC_Create_Segment("/existing/child");
  const long long deleted = HC_Create_Segment("/deleted");
  HC_Delete_By_Key(deleted);
  char out[4096];
  float f = 0;
  int n = 0;
  const BadCall cases[] = {
      {"HC_Open_Segment_By_Key", graphics::kCategoryKey, [] { HC_Open_Segment_By_Key(-1); }},
      {"HC_Open_Segment_By_Key", graphics::kCategoryKey, [=] { HC_Open_Segment_By_Key(deleted); }},
      {"HC_Open_Segment_By_Key", graphics::kCategoryKey, [=] { HC_Open_Segment_By_Key(12345); }},
      {"HC_Open_Segment_By_Key", graphics::kCategoryKey, [=] { HC_Open_Segment_By_Key(line); }},
      {"HC_Open_Segment", graphics::kCategoryRange, [] { HC_Open_Segment(nullptr); }},
      {"HC_Open_Segment", graphics::kCategoryName, [] { HC_Open_Segment("/a/b%c"); }},
      {"HC_Open_Segment", graphics::kCategoryName, [] { HC_Open_Segment("/a,/b"); }},
      {"HC_Open_Segment", graphics::kCategoryName, [] { HC_Open_Segment("/a/'unclosed"); }},
      {"HC_Open_Segment", graphics::kCategoryName, [] { HC_Open_Segment("/a//b"); }},
      {"HC_Open_Segment", graphics::kCategoryName, [] { HC_Open_Segment("/a/..../b"); }},
      {"HC_Open_Segment", graphics::kCategoryName, [] { HC_Open_Segment("/a/b<c>"); }},
      {"HC_Open_Segment", graphics::kCategoryName, [] { HC_Open_Segment("/.."); }},
      {"HC_Open_Segment", graphics::kCategoryName, [] { HC_Open_Segment("?nowhere/a"); }},
      {"HC_Open_Segment", graphics::kCategoryName, [] { HC_Open_Segment("/new/@ZZ"); }},
      // A key reference must name a child of the segment before it.
      {"HC_Open_Segment", graphics::kCategoryName, [=] { HC_Open_Segment(("/other/@" + std::string(16, 'F')).c_str()); }},
      {"HC_Create_Segment", graphics::kCategoryName, [] { HC_Create_Segment("/x/y/.../z"); }},
      {"HC_Create_Segment", graphics::kCategoryName, [] { HC_Create_Segment("relative"); }},
      {"HC_Show_Segment", graphics::kCategoryKey, [&] { HC_Show_Segment(line, out); }},
      {"HC_Show_Owner", graphics::kCategoryName, [&] { HC_Show_Owner("/missing", out); }},
      {"HC_Show_Owner", graphics::kCategoryRange, [&] { HC_Show_Owner(nullptr, out); }},
      {"HC_Show_Owner_By_Key", graphics::kCategoryKey, [&] { HC_Show_Owner_By_Key(deleted, out); }},
      {"HC_Delete_Segment", graphics::kCategoryName, [] { HC_Delete_Segment("/missing"); }},
      {"HC_Delete_Segment", graphics::kCategoryRange, [] { HC_Delete_Segment(nullptr); }},
      {"HC_Delete_By_Key", graphics::kCategoryKey, [=] { HC_Delete_By_Key(deleted); }},
      {"HC_Show_Key_Type", graphics::kCategoryKey, [&] { HC_Show_Key_Type(-1, out); }},
      {"HC_Show_Line", graphics::kCategoryKey, [&] { HC_Show_Line(segment, &f, &f, &f, &f, &f, &f); }},
      {"HC_Show_Text", graphics::kCategoryKey, [&] { HC_Show_Text(line, &f, &f, &f, out); }},
      {"HC_Show_Text_Length", graphics::kCategoryKey, [&] { HC_Show_Text_Length(deleted, &n); }},
      {"HC_Show_Text_Encoding", graphics::kCategoryKey, [&] { HC_Show_Text_Encoding(-1, out); }},
      {"HC_Move_Text", graphics::kCategoryKey, [=] { HC_Move_Text(line, 1, 1, 1); }},
      {"HC_Set_User_Options", graphics::kCategoryRange, [] { HC_Set_User_Options(nullptr); }},
      {"HC_Show_One_User_Option", graphics::kCategoryRange, [&] { HC_Show_One_User_Option(nullptr, out); }},
      {"HC_UnSet_One_User_Option", graphics::kCategoryRange, [] { HC_UnSet_One_User_Option(nullptr); }},
      {"HC_Define_System_Options", graphics::kCategoryRange, [] { HC_Define_System_Options(nullptr); }},
      {"HC_Show_One_System_Option", graphics::kCategoryOption, [&] { HC_Show_One_System_Option("colour", out); }},
      {"HC_Close_Segment", graphics::kCategoryOpen, [] { HC_Close_Segment(); }},
      {"HC_Define_Error_Handler", graphics::kCategoryRange, [] { HC_Define_Error_Handler(nullptr); }},
      {"HC_UnDefine_Error_Handler", graphics::kCategoryRange, [] { HC_UnDefine_Error_Handler(nullptr); }},
  };
  const std::string before = TreeSnapshot();
  TakeReports();
  for (const BadCall& bad : cases) {
    bad.call();
    const auto reports = TakeReports();
    ASSERT_EQ(reports.size(), 1u) << bad.routine;
    EXPECT_EQ(reports[0].routine, bad.routine);
    EXPECT_EQ(reports[0].category, bad.category) << bad.routine << ": " << reports[0].message;
    EXPECT_EQ(reports[0].severity, graphics::kError) << bad.routine;
    EXPECT_FALSE(reports[0].message.empty()) << bad.routine;
    // Failed opens leave a dead frame for the caller's close.
    if (std::string(bad.routine).starts_with("HC_Open_Segment")) HC_Close_Segment();
    EXPECT_TRUE(TakeReports().empty()) << bad.routine;
    EXPECT_EQ(TreeSnapshot(), before) << bad.routine;
  }
}

}  // namespace
