#pragma once
// The coordinate systems positions can be converted between, and the words
// that name them in computation calls.
#include <optional>
#include <string_view>

namespace graphics {

enum class CoordinateSystem {
  kObject,       // a segment's own coordinates, before its net modelling matrix
  kWorld,        // after the net modelling matrix; what cameras look at
  kViewpoint,    // origin at the camera, z along the line of sight, y up
  kProjection,   // normalised device coordinates of the local window
  kScreenRange,  // the local window's "screen range" rectangle as -1..+1
  kLocalWindow,  // -1..+1 across the segment's innermost window
  kOuterWindow,  // -1..+1 across the driver's window
  kLocalPixels,  // pixels of the local window, (0, 0) at its upper left
  kOuterPixels,  // pixels of the driver's window, (0, 0) at its upper left
};

// The system `word` names, compared without case and with runs of blanks as
// one; "camera" is the published older name of world coordinates. Nothing for
// any other word.
std::optional<CoordinateSystem> FindCoordinateSystem(std::string_view word);

// Whether positions in `system` depend on a window, which only a segment
// below a driver has.
bool NeedsWindow(CoordinateSystem system);

}  // namespace graphics
