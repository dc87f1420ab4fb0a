#include "viewing/view_setup.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "attributes/camera.h"
#include "attributes/option_family.h"
#include "attributes/option_string.h"
#include "attributes/value_attributes.h"

namespace graphics {

namespace {

// A window segment of a driver: a child of a child of "/driver".
bool IsDriverWindow(const Segment& segment) {
  const Segment* kind = segment.owner();
  const Segment* drivers = kind ? kind->owner() : nullptr;
  return drivers != nullptr && drivers->name() == "driver" && drivers->owner() != nullptr &&
         drivers->owner()->owner() == nullptr;
}

// The "screen range" rendering option, "(left, right, bottom, top)" in the
// local window; the whole window when it is not set or not a proper
// rectangle.
WindowRect ScreenRange(const AttributePath& path) {
  const WindowRect whole;
  const NetOption option = path.NetOptionValue(*FamilyOf(AttributeKind::kRenderingOptions), "screen range");
  const std::optional<std::string_view> body = SubListBody(option.value);
  if (!body) return whole;
  std::vector<double> sides;
  size_t start = 0;
  while (start <= body->size()) {
    const size_t comma = std::min(body->find(',', start), body->size());
    const std::optional<float> side = ParseNumber(body->substr(start, comma - start));
    if (!side) return whole;
    sides.push_back(*side);
    start = comma + 1;
  }
  if (sides.size() != 4 || !(sides[0] < sides[1]) || !(sides[2] < sides[3])) return whole;
  return {sides[0], sides[1], sides[2], sides[3]};
}

}  // namespace

ViewSetup ViewSetupOf(const AttributePath& path) {
  ViewSetup setup;
  setup.modelling = path.NetModellingMatrix();
  if (const Camera* camera = path.NetLocal<Camera>()) setup.camera = camera->state();
  std::optional<WindowRect> local;
  path.Walk([&](const Segment& segment) {
    // A driver's window starts over: windows above it belong to no display.
    if (IsDriverWindow(segment)) local = WindowRect{};
    if (!local) return;
    if (const auto* window = segment.attributes().Find<Window>()) {
      const WindowExtent& w = window->value;
      local = local->Nested({w.left, w.right, w.bottom, w.top});
    }
  });
  if (local) {
    setup.window = WindowGeometry{kDefaultDeviceWidthPixels, kDefaultDeviceHeightPixels, *local, ScreenRange(path)};
  }
  return setup;
}

}  // namespace graphics
