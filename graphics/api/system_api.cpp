// System options and the master reset.
#include "api/arguments.h"
#include "api/call.h"
#include "hc/hc.h"
#include "system/global_definitions.h"
#include "system/system_settings.h"

using graphics::Done;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::ReportIfFailed;
using graphics::api::Require;
using graphics::api::Run;
using graphics::api::WriteString;
namespace system_settings = graphics::system_settings;

extern "C" void HC_Define_System_Options(char const* list) {
  auto required = Require(list, "option list");
  ReportIfFailed(required.ok() ? system_settings::Define(list) : required, __func__);
}

extern "C" void HC_Show_System_Options(char* list) { WriteString(list, system_settings::Show()); }

extern "C" void HC_Show_One_System_Option(char const* name, char* value) {
  auto required = Require(name, "option name");
  if (!required.ok()) return ReportIfFailed(required, __func__);
  auto shown = system_settings::ShowOne(name);
  if (shown.ok()) return WriteString(value, shown.value());
  ReportIfFailed(shown.error(), __func__);
}

// Everything back to how it began: the segment tree, every thread's open
// segments, the system options and the process-wide definitions (global
// textures, line styles, highlights, priorities, callback names). The
// error handlers stay, so a program's
// handler keeps receiving reports after it resets the system.
extern "C" void HC_Reset_System(void) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    session.Reset();
    system_settings::Reset();
    graphics::ClearGlobalDefinitions();
    return Done{};
  });
}
