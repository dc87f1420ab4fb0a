// Every function the engine does not implement yet must still behave as a
// failing call: one report through the error handlers naming the function,
// and the failure result. The status list decides which functions are called,
// so a function wrongly listed as unavailable fails here too.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <type_traits>
#include <vector>

#include "graphics/api/function_status.h"
#include "hc/hc.h"

namespace {

struct Report {
  int category;
  int severity;
  std::vector<std::string> messages;
  std::vector<std::string> routines;
};

std::vector<Report> g_reports;

void RecordReport(int category, int /*specific*/, int severity, int msgc,
                  char const* const* msgv, int stackc, char const* const* stackv) {
  g_reports.push_back({category, severity, {msgv, msgv + msgc}, {stackv, stackv + stackc}});
}

// Replaces the default reporter by a recorder for the test's lifetime, so
// hundreds of expected reports don't reach stderr.
class RecordedReports : public ::testing::Test {
 protected:
  void SetUp() override {
    g_reports.clear();
    HC_Define_Error_Handler(RecordReport);
    HC_UnDefine_Error_Handler(HC_Report_Error);
  }
  void TearDown() override {
    HC_Define_Error_Handler(HC_Report_Error);
    HC_UnDefine_Error_Handler(RecordReport);
  }
};

// Calls a function with every argument zero or null, which a stand-in must
// accept, and tells whether the result is the failure value of its type.
template <class Result, class... Parameters>
bool ReturnsFailureResult(Result (*function)(Parameters...)) {
  if constexpr (std::is_void_v<Result>) {
    function(Parameters{}...);
    return true;
  } else if constexpr (std::is_same_v<Result, long long>) {
    return function(Parameters{}...) == -1;
  } else {
    return function(Parameters{}...) == Result{};
  }
}

using Caller = bool (*)();
std::map<std::string, Caller> const kCallers = {
#define HC_FUNCTION(result, name, parameters, arguments) \
  {#name, [] { return ReturnsFailureResult(&name); }},
#include "hc/functions.def"
#include "hc/immediate_functions.def"
#undef HC_FUNCTION
};

TEST_F(RecordedReports, EachUnavailableFunctionReportsItsNameAndFails) {
  int unavailable = 0;
  for (graphics::FunctionState const& function : graphics::FunctionStatus()) {
    if (function.implemented) {
      continue;
    }
    ++unavailable;
    std::string const name(function.name);
    SCOPED_TRACE(name);
    g_reports.clear();

    EXPECT_TRUE(kCallers.at(name)());

    ASSERT_EQ(g_reports.size(), 1u);
    Report const& report = g_reports.front();
    EXPECT_EQ(report.severity, 2);
    ASSERT_FALSE(report.routines.empty());
    EXPECT_EQ(report.routines.front(), name);
    ASSERT_FALSE(report.messages.empty());
    EXPECT_EQ(report.messages.front(), name + " is not available yet");
  }
  if (unavailable == 0) {
    GTEST_SKIP() << "every function is implemented";
  }
}

}  // namespace
