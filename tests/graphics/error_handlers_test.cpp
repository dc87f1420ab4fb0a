// The error handler chain: order, defining and undefining, the default
// handler, and handlers that call back into the engine.
#include <string>
#include <vector>

#include "engine_fixture.h"
#include "errors/default_reporter.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

std::vector<std::string> calls;

void First(int, int, int, int, char const* const*, int, char const* const*) { calls.push_back("first"); }
void Second(int, int, int, int, char const* const*, int, char const* const*) { calls.push_back("second"); }

// Calls back into the engine the way a program's handler would: it reads
// the database, forwards to the default handler and even fails again.
void CallsBack(int category, int specific, int severity, int msgc, char const* const* msgv, int stackc,
               char const* const* stackv) {
  calls.push_back("calls back");
  char path[4096];
  HC_Show_Segment(HC_Create_Segment("/written by handler"), path);
  calls.push_back(path);
  HC_Report_Error(category, specific, severity, msgc, msgv, stackc, stackv);
  char type[4096];
  HC_Show_Key_Type(-5, type);  // a report raised inside a handler
}

class ErrorHandlers : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    calls.clear();
  }
  void TearDown() override {
    for (auto handler : {First, Second, CallsBack}) HC_UnDefine_Error_Handler(handler);
    EngineTest::TearDown();
  }
};

TEST_F(ErrorHandlers, EveryHandlerHearsEachReportNewestFirst) {
  HC_Define_Error_Handler(First);
  HC_Define_Error_Handler(Second);
  HC_Close_Segment();
  EXPECT_EQ(calls, (std::vector<std::string>{"second", "first"}));
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(ErrorHandlers, RedefiningMovesToTheFrontAndOneUndefineRemoves) {
  HC_Define_Error_Handler(First);
  HC_Define_Error_Handler(Second);
  HC_Define_Error_Handler(First);
  HC_Close_Segment();
  EXPECT_EQ(calls, (std::vector<std::string>{"first", "second"}));
  calls.clear();
  HC_UnDefine_Error_Handler(First);
  HC_UnDefine_Error_Handler(First);  // no longer installed: nothing happens
  HC_Close_Segment();
  EXPECT_EQ(calls, (std::vector<std::string>{"second"}));
}

TEST_F(ErrorHandlers, ReportsNameCategorySpecificFunctionAndMessage) {
  HC_Open_Segment_By_Key(-424242);
  HC_Close_Segment();
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryKey);
  EXPECT_EQ(reports[0].specific, 2001);
  EXPECT_EQ(reports[0].severity, graphics::kError);
  EXPECT_EQ(reports[0].routine, "HC_Open_Segment_By_Key");
  EXPECT_EQ(reports[0].message, "invalid key -424242");
}

TEST_F(ErrorHandlers, AHandlerMayCallBackIntoTheEngine) {
  HC_Define_Error_Handler(CallsBack);
  testing::internal::CaptureStderr();
  HC_Open_Segment_By_Key(-1);
  const std::string printed = testing::internal::GetCapturedStderr();
  HC_Close_Segment();  // the dead frame
  EXPECT_EQ(calls, (std::vector<std::string>{"calls back", "/written by handler"}));
  EXPECT_EQ(printed,
            "HOOPS error 20/2001 in HC_Open_Segment_By_Key: invalid key -1\n"
            // The handler's own failure goes to standard error, not round the handlers again.
            "HOOPS error 20/2001 in HC_Show_Key_Type: invalid key -5\n");
  // The other handler heard the failed open only.
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(ErrorHandlers, TheDefaultHandlerPrintsOneLine) {
  const char* const messages[] = {"first line", "second line"};
  const char* const routines[] = {"HC_Somewhere"};
  EXPECT_EQ(graphics::FormatReport(22, 2201, graphics::kWarning, 2, messages, 1, routines),
            "HOOPS warning 22/2201 in HC_Somewhere: first line; second line");
  testing::internal::CaptureStderr();
  HC_Report_Error(3, 301, graphics::kFatal, 1, messages, 0, nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "HOOPS fatal error 3/301: first line\n");
}

}  // namespace
