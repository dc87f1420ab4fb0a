#include "support/engine_error_log.h"

#include <cassert>

#include "graphics/errors/report.h"
#include "hc/hc.h"

namespace {

EngineErrorLog* gActiveLog = nullptr;

}  // namespace

EngineErrorLog::EngineErrorLog() {
  assert(gActiveLog == nullptr);
  gActiveLog = this;
  HC_Define_Error_Handler(Collect);
}

EngineErrorLog::~EngineErrorLog() {
  HC_UnDefine_Error_Handler(Collect);
  gActiveLog = nullptr;
}

bool EngineErrorLog::ReportedUnavailable(const std::string& routine) const {
  for (const EngineReport& report : reports_) {
    if (report.category == graphics::kCategoryUnavailable && report.routine == routine) return true;
  }
  return false;
}

void EngineErrorLog::Collect(int category, int specific, int /*severity*/, int msgc,
                             char const* const* msgv, int stackc, char const* const* stackv) {
  gActiveLog->reports_.push_back(EngineReport{category, specific, stackc > 0 ? stackv[0] : "",
                                              msgc > 0 ? msgv[0] : ""});
}
