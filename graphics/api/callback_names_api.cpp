// Naming functions for segments' callbacks.
#include "api/arguments.h"
#include "api/call.h"
#include "hc/hc.h"
#include "system/callback_names.h"

using graphics::Status;
using graphics::api::Require;
using graphics::api::ReportIfFailed;

extern "C" void HC_Define_Callback_Name(char const* name, HC_Callback callback) {
  Status required = Require(name, "callback name");
  ReportIfFailed(required.ok() ? graphics::callback_names::Define(name, callback) : required, __func__);
}

extern "C" void HC_UnDefine_Callback_Name(char const* name) {
  Status required = Require(name, "callback name");
  ReportIfFailed(required.ok() ? graphics::callback_names::UnDefine(name) : required, __func__);
}

// An unknown name is reported and `callback` left alone.
extern "C" void HC_Show_Callback_Name(char const* name, HC_Callback* callback) {
  Status required = Require(name, "callback name");
  if (!required.ok()) return ReportIfFailed(required, __func__);
  auto found = graphics::callback_names::Find(name);
  if (!found.ok()) return ReportIfFailed(found.error(), __func__);
  graphics::api::Write(callback, found.value());
}
