#pragma once
// What a segment's net attributes say about how it is viewed: its net
// modelling matrix and camera, and the window it draws in. A segment has a
// window when a driver's window segment ("/driver/<kind>/<name>") is on its
// path; until drivers render, that window is the default device's 1024 x 768
// pixels, and the windows set from there down nest inside it.
#include "traversal/attribute_path.h"
#include "viewing/viewing_pipeline.h"

namespace graphics {

inline constexpr double kDefaultDeviceWidthPixels = 1024;
inline constexpr double kDefaultDeviceHeightPixels = 768;

// An empty path gives the identity, the default camera and no window.
ViewSetup ViewSetupOf(const AttributePath& path);

}  // namespace graphics
