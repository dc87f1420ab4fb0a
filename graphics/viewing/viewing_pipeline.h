#pragma once
// The chain of transforms that carries positions from a segment's object
// coordinates through world, viewpoint and window coordinates to pixels, and
// back. Every conversion between two coordinate systems is one matrix for row
// vectors (p' = p * M, divided by the homogeneous w), so callers convert
// whole point arrays at once: the computation calls, and later the renderer
// and selection.
#include <array>
#include <optional>

#include "attributes/camera.h"
#include "errors/error.h"
#include "math/matrix.h"
#include "viewing/coordinate_system.h"

namespace graphics {

// A rectangle in window coordinates, where -1..+1 spans the window each way.
struct WindowRect {
  double left = -1;
  double right = 1;
  double bottom = -1;
  double top = 1;

  // `inner`, given in this rectangle's own -1..+1 coordinates, in the
  // coordinates this rectangle is given in.
  WindowRect Nested(const WindowRect& inner) const;
};

// The window a segment draws in, when it has one.
struct WindowGeometry {
  // The driver's window in pixels.
  double outer_width = 0;
  double outer_height = 0;
  // The segment's innermost window, in outer window coordinates.
  WindowRect local;
  // The "screen range" rectangle, in local window coordinates; the whole
  // local window when none is set.
  WindowRect screen_range;

  double local_width() const { return outer_width * (local.right - local.left) / 2; }
  double local_height() const { return outer_height * (local.top - local.bottom) / 2; }
};

// Everything the transforms of one segment depend on.
struct ViewSetup {
  Matrix modelling;  // object to world: the net modelling matrix
  CameraState camera;
  std::optional<WindowGeometry> window;  // absent outside any driver
};

// Window coordinates (local window, projection) follow the engine's
// projection: the camera's field fits the local window without distortion
// (stretched to fill it under "stretched"), 0 depth on the target plane and
// positive behind it, measured in the same units as y; a perspective camera
// also divides x, y and depth by the distance along the line of sight over
// the target's. Pixel coordinates run from (0, 0) at the window's upper left
// corner to (width, height) at its lower right, y downwards, depth in pixels.
class ViewingPipeline {
 public:
  explicit ViewingPipeline(const ViewSetup& setup);

  // The matrix taking positions in `from` to `to`. Errors: a window or pixel
  // system without a window (23/2303), and a way back into object coordinates
  // through a modelling matrix that has no inverse (25/2501). Converting a
  // system to itself is the identity.
  Result<Matrix> Between(CoordinateSystem from, CoordinateSystem to) const;

 private:
  // One step towards the local window, with its inverse; only the modelling
  // step can lack one.
  struct Stage {
    Matrix forward;
    std::optional<Matrix> backward;
  };
  enum StageId {
    kModelling,         // object -> world
    kPositioning,       // world -> viewpoint
    kProjecting,        // viewpoint -> local window
    kFromScreenRange,   // screen range -> local window
    kFromOuterWindow,   // outer window -> local window
    kFromLocalPixels,   // local pixels -> local window
    kFromOuterPixels,   // outer pixels -> outer window
    kStageCount,
  };

  std::array<Stage, kStageCount> stages_;
  bool has_window_;
};

}  // namespace graphics
