#include "system/system_settings.h"

#include <mutex>

#include "system/system_options.h"

namespace graphics::system_settings {

namespace {

struct Settings {
  std::mutex mutex;
  SystemOptions options;
};

Settings& Instance() {
  static Settings settings;
  return settings;
}

}  // namespace

Status Define(std::string_view list) {
  Settings& settings = Instance();
  std::lock_guard lock(settings.mutex);
  return settings.options.Define(list);
}

std::string Show() {
  Settings& settings = Instance();
  std::lock_guard lock(settings.mutex);
  return settings.options.Format();
}

Result<std::string> ShowOne(std::string_view name) {
  Settings& settings = Instance();
  std::lock_guard lock(settings.mutex);
  return settings.options.FormatOne(name);
}

bool AdmitReport(int category, int specific, int severity) {
  Settings& settings = Instance();
  std::lock_guard lock(settings.mutex);
  return settings.options.Admit(category, specific, severity);
}

size_t CStringLength() {
  Settings& settings = Instance();
  std::lock_guard lock(settings.mutex);
  return settings.options.c_string_length();
}

void Reset() {
  Settings& settings = Instance();
  std::lock_guard lock(settings.mutex);
  settings.options = SystemOptions();
}

}  // namespace graphics::system_settings
