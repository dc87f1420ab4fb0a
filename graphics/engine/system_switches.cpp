#include "engine/system_switches.h"

#include <string_view>

#include "system/system_settings.h"

namespace graphics {

namespace {

bool SwitchOn(std::string_view name) {
  const Result<std::string> value = system_settings::ShowOne(name);
  return value.ok() && value.value() == "on";
}

}  // namespace

bool UpdateControlOn() { return SwitchOn("update control"); }

bool BoundingVolumesOn() { return SwitchOn("bounding volumes"); }

}  // namespace graphics
