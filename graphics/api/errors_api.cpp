// The error handler chain and the default handler.
#include "api/arguments.h"
#include "api/call.h"
#include "errors/default_reporter.h"
#include "errors/handler_chain.h"
#include "hc/hc.h"

using graphics::ErrorHandlers;
using graphics::api::ReportIfFailed;
using graphics::api::Require;

extern "C" void HC_Define_Error_Handler(HC_Error_Handler handler) {
  auto required = Require(reinterpret_cast<const void*>(handler), "error handler");
  if (required.ok()) ErrorHandlers().Define(handler);
  ReportIfFailed(required, __func__);
}

extern "C" void HC_UnDefine_Error_Handler(HC_Error_Handler handler) {
  auto required = Require(reinterpret_cast<const void*>(handler), "error handler");
  if (required.ok()) ErrorHandlers().Undefine(handler);
  ReportIfFailed(required, __func__);
}

extern "C" void HC_Report_Error(int category, int specific, int severity, int msgc, char const* const* msgv,
                                int stackc, char const* const* stackv) {
  graphics::PrintReport(category, specific, severity, msgc, msgv, stackc, stackv);
}
