#include "errors/report.h"

#include "errors/default_reporter.h"
#include "errors/handler_chain.h"
#include "system/system_settings.h"

namespace graphics {

namespace {

// Set while this thread's handlers run. A report raised by an engine call
// made from inside a handler goes to standard error only: sent to the
// handlers again, a handler that fails the same way would never return.
thread_local bool handlers_running = false;

// Clears the flag however the handlers return: a C++ handler may throw.
class HandlersRunning {
 public:
  HandlersRunning() { handlers_running = true; }
  ~HandlersRunning() { handlers_running = false; }
  HandlersRunning(const HandlersRunning&) = delete;
  HandlersRunning& operator=(const HandlersRunning&) = delete;
};

}  // namespace

void ReportError(int category, int specific, int severity, const std::string& message, const char* routine) {
  if (!system_settings::AdmitReport(category, specific, severity)) return;
  const char* const msgv[] = {message.c_str()};
  const char* const stackv[] = {routine};
  if (handlers_running) {
    PrintReport(category, specific, severity, 1, msgv, 1, stackv);
    return;
  }
  const HandlersRunning running;
  for (HC_Error_Handler handler : ErrorHandlers().Snapshot()) {
    handler(category, specific, severity, 1, msgv, 1, stackv);
  }
}

}  // namespace graphics
