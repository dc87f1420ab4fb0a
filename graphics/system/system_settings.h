#pragma once
// The process's one set of system options. They live outside the segment
// tree and its lock: error reporting consults them while the database may be
// busy in another thread.
#include <string>
#include <string_view>

#include "errors/error.h"

namespace graphics::system_settings {

Status Define(std::string_view list);
std::string Show();
Result<std::string> ShowOne(std::string_view name);
bool AdmitReport(int category, int specific, int severity);
size_t CStringLength();
// Back to the defaults.
void Reset();

}  // namespace graphics::system_settings
