#include "api/call.h"

namespace graphics::api {

void Report(const Error& error, const char* routine) {
  ReportError(error.category(), error.specific(), error.severity(), error.message(), routine);
}

void ReportIfFailed(const Status& status, const char* routine) {
  if (!status.ok()) Report(status.error(), routine);
}

}  // namespace graphics::api
