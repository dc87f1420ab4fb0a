#include "viewing/coordinate_system.h"

#include <string>
#include <utility>

#include "strings/text.h"

namespace graphics {

namespace {

constexpr std::pair<std::string_view, CoordinateSystem> kWords[] = {
    {"object", CoordinateSystem::kObject},
    {"world", CoordinateSystem::kWorld},
    {"camera", CoordinateSystem::kWorld},
    {"viewpoint", CoordinateSystem::kViewpoint},
    {"projection", CoordinateSystem::kProjection},
    {"screen range", CoordinateSystem::kScreenRange},
    {"local window", CoordinateSystem::kLocalWindow},
    {"outer window", CoordinateSystem::kOuterWindow},
    {"local pixels", CoordinateSystem::kLocalPixels},
    {"outer pixels", CoordinateSystem::kOuterPixels},
};

}  // namespace

std::optional<CoordinateSystem> FindCoordinateSystem(std::string_view word) {
  const std::string normal = NormalizeWord(word);
  for (const auto& [name, system] : kWords) {
    if (normal == name) return system;
  }
  return std::nullopt;
}

bool NeedsWindow(CoordinateSystem system) {
  return system != CoordinateSystem::kObject && system != CoordinateSystem::kWorld &&
         system != CoordinateSystem::kViewpoint;
}

}  // namespace graphics
