#pragma once
// A segment's camera: where it stands, what it looks at, which way is up,
// the field around the target and the projection. The field is kept as an
// angle: moving the position or the target scales width and height with the
// distance between them, as the published camera does.
#include <string>
#include <string_view>
#include <utility>

#include "attributes/attribute_kind.h"
#include "errors/error.h"
#include "math/point.h"

namespace graphics {

struct CameraState {
  Point position{0, 0, -5};
  Point target{0, 0, 0};
  Point up{0, 1, 0};
  float width = 2;
  float height = 2;
  std::string projection = "orthographic";
  // Fraction of the way from camera to target; absent: the system option.
  bool near_limit_set = false;
  float near_limit = 0;

  bool operator==(const CameraState&) const = default;
};

class Camera {
 public:
  static constexpr AttributeKind kKind = AttributeKind::kCamera;

  // The default camera: at (0,0,-5) looking at the origin, up (0,1,0),
  // field 2 x 2, orthographic.
  Camera() = default;
  // Checks the whole camera: position apart from target, an up vector not
  // zero nor along the line of sight (it is made perpendicular), a positive
  // field, a known projection.
  static Result<Camera> Make(CameraState state);
  // The camera that shows the box from (xmin, ymin) to (xmax, ymax) at z 0:
  // looking along +Z from 2.5 times the larger side.
  static Result<Camera> ByVolume(std::string_view projection, double xmin, double xmax, double ymin, double ymax);

  const CameraState& state() const { return state_; }

  // Each change checks the result as Make does and leaves the camera as it
  // was on failure.
  Status SetPosition(const Point& position);
  Status SetTarget(const Point& target);
  Status SetUpVector(const Point& up);
  Status SetField(double width, double height);
  Status SetProjection(std::string_view projection);
  void SetNearLimit(float limit);

  // Moves position and target together: to the camera's right, up, and in
  // along the line of sight. `right_handed` mirrors "right".
  Status Dolly(double right, double up, double in, bool right_handed);
  // Walks the camera round the target: `theta` degrees to its right about
  // the up vector, then `phi` degrees up and over.
  Status Orbit(double theta, double phi, bool right_handed);
  // Turns the camera about its line of sight, counter-clockwise for positive
  // degrees.
  Status Roll(double theta, bool right_handed);

  bool operator==(const Camera&) const = default;

 private:
  explicit Camera(CameraState state) : state_(std::move(state)) {}
  // Keeps the field's angle when the distance to the target changes.
  Status Moved(CameraState moved);

  CameraState state_;
};

// "perspective", "orthographic", "stretched", optionally after "oblique",
// any case; the stored form is lower case, blanks normalised.
Result<std::string> ParseProjection(std::string_view text);

}  // namespace graphics
