#pragma once
// Collects the engine's error reports for as long as it lives, through an
// error handler of its own next to any other. One log at a time.
#include <string>
#include <vector>

struct EngineReport {
  int category;
  int specific;
  std::string routine;  // the first routine the engine named
  std::string message;  // the first message line
};

class EngineErrorLog {
 public:
  EngineErrorLog();
  ~EngineErrorLog();
  EngineErrorLog(const EngineErrorLog&) = delete;
  EngineErrorLog& operator=(const EngineErrorLog&) = delete;

  const std::vector<EngineReport>& Reports() const { return reports_; }
  // Whether the engine said that `routine` is not implemented yet: a test of
  // behaviour that rests on it cannot pass until it is.
  bool ReportedUnavailable(const std::string& routine) const;

 private:
  static void Collect(int category, int specific, int severity, int msgc, char const* const* msgv,
                      int stackc, char const* const* stackv);

  std::vector<EngineReport> reports_;
};

// Skips the running test when the log shows that the engine lacks `routine`.
#define SW_SKIP_IF_ENGINE_LACKS(log, routine)                                \
  do {                                                                       \
    if ((log).ReportedUnavailable(routine))                                  \
      GTEST_SKIP() << "the graphics engine does not implement " << (routine) \
                   << " yet";                                                \
  } while (false)
