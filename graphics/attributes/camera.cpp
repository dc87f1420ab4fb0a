#include "attributes/camera.h"

#include <cmath>
#include <numbers>

#include "strings/text.h"

namespace graphics {

namespace {

struct Vec {
  double x, y, z;
};

Vec V(const Point& p) { return {p.x, p.y, p.z}; }
Point P(const Vec& v) { return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)}; }
Vec operator-(Vec a, Vec b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Vec operator+(Vec a, Vec b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Vec operator*(Vec a, double s) { return {a.x * s, a.y * s, a.z * s}; }
double Dot(Vec a, Vec b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
Vec Cross(Vec a, Vec b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }
double Length(Vec a) { return std::sqrt(Dot(a, a)); }
Vec Unit(Vec a) { return a * (1 / Length(a)); }

double Radians(double degrees) { return degrees * std::numbers::pi / 180; }

Error Bad(std::string message) { return Error(errc::kOutOfRange, std::move(message)); }

// The camera's right: up x sight in the default left-handed world.
Vec Right(const CameraState& s, bool right_handed) {
  const Vec sight = Unit(V(s.target) - V(s.position));
  const Vec right = Unit(Cross(V(s.up), sight));
  return right_handed ? right * -1 : right;
}

}  // namespace

Result<std::string> ParseProjection(std::string_view text) {
  const std::string word = NormalizeWord(text);
  std::string_view base = word;
  if (base.starts_with("oblique ")) base.remove_prefix(8);
  if (base == "perspective" || base == "orthographic" || base == "stretched") return word;
  return Error(errc::kUnknownOption, "unrecognised camera projection '" + std::string(text) + "'");
}

Result<Camera> Camera::Make(CameraState state) {
  const Vec sight = V(state.target) - V(state.position);
  const double distance = Length(sight);
  if (!IsFinite(state.position) || !IsFinite(state.target) || !IsFinite(state.up)) {
    return Bad("camera positions must be finite");
  }
  if (distance == 0) return Bad("the camera position is on its target");
  const Vec d = sight * (1 / distance);
  const Vec up = V(state.up) - d * Dot(V(state.up), d);
  if (Length(up) <= 1e-6 * Length(V(state.up)) || Length(V(state.up)) == 0) {
    return Bad("the camera up vector is zero or along the line of sight");
  }
  state.up = P(Unit(up));
  if (!(state.width > 0) || !(state.height > 0) || !std::isfinite(state.width) || !std::isfinite(state.height)) {
    return Bad("the camera field must be positive");
  }
  auto projection = ParseProjection(state.projection);
  if (!projection.ok()) return projection.error();
  state.projection = projection.value();
  return Camera(std::move(state));
}

Result<Camera> Camera::ByVolume(std::string_view projection, double xmin, double xmax, double ymin, double ymax) {
  if (!(xmin < xmax) || !(ymin < ymax)) return Bad("a camera volume needs min < max on both axes");
  CameraState state;
  state.projection = std::string(projection);
  const double cx = (xmin + xmax) / 2;
  const double cy = (ymin + ymax) / 2;
  state.target = P({cx, cy, 0});
  state.position = P({cx, cy, -2.5 * std::max(xmax - xmin, ymax - ymin)});
  state.width = static_cast<float>(xmax - xmin);
  state.height = static_cast<float>(ymax - ymin);
  return Make(std::move(state));
}

Status Camera::Moved(CameraState moved) {
  const double before = Length(V(state_.target) - V(state_.position));
  const double after = Length(V(moved.target) - V(moved.position));
  if (after == 0 || !std::isfinite(after)) return Bad("the camera position would be on its target");
  moved.width = static_cast<float>(moved.width * after / before);
  moved.height = static_cast<float>(moved.height * after / before);
  auto made = Make(std::move(moved));
  if (!made.ok()) return made.error();
  *this = std::move(made.value());
  return Done{};
}

Status Camera::SetPosition(const Point& position) {
  CameraState moved = state_;
  moved.position = position;
  return Moved(std::move(moved));
}

Status Camera::SetTarget(const Point& target) {
  CameraState moved = state_;
  moved.target = target;
  return Moved(std::move(moved));
}

Status Camera::SetUpVector(const Point& up) {
  CameraState changed = state_;
  changed.up = up;
  auto made = Make(std::move(changed));
  if (!made.ok()) return made.error();
  *this = std::move(made.value());
  return Done{};
}

Status Camera::SetField(double width, double height) {
  CameraState changed = state_;
  changed.width = static_cast<float>(width);
  changed.height = static_cast<float>(height);
  auto made = Make(std::move(changed));
  if (!made.ok()) return made.error();
  *this = std::move(made.value());
  return Done{};
}

Status Camera::SetProjection(std::string_view projection) {
  auto parsed = ParseProjection(projection);
  if (!parsed.ok()) return parsed.error();
  state_.projection = parsed.value();
  return Done{};
}

void Camera::SetNearLimit(float limit) {
  state_.near_limit = limit;
  state_.near_limit_set = true;
}

Status Camera::Dolly(double right, double up, double in, bool right_handed) {
  const Vec sight = Unit(V(state_.target) - V(state_.position));
  const Vec offset = Right(state_, right_handed) * right + V(state_.up) * up + sight * in;
  CameraState moved = state_;
  moved.position = P(V(state_.position) + offset);
  moved.target = P(V(state_.target) + offset);
  return Moved(std::move(moved));
}

Status Camera::Orbit(double theta, double phi, bool right_handed) {
  const Vec target = V(state_.target);
  Vec from_target = V(state_.position) - target;
  const double distance = Length(from_target);
  const Vec right = Right(state_, right_handed);
  from_target = from_target * std::cos(Radians(theta)) + right * (distance * std::sin(Radians(theta)));
  const Vec away = Unit(from_target);
  const Vec up = V(state_.up);
  CameraState moved = state_;
  moved.position = P(target + away * (distance * std::cos(Radians(phi))) + up * (distance * std::sin(Radians(phi))));
  moved.up = P(up * std::cos(Radians(phi)) - away * std::sin(Radians(phi)));
  return Moved(std::move(moved));
}

Status Camera::Roll(double theta, bool right_handed) {
  const Vec right = Right(state_, right_handed);
  CameraState rolled = state_;
  rolled.up = P(V(state_.up) * std::cos(Radians(theta)) - right * std::sin(Radians(theta)));
  auto made = Make(std::move(rolled));
  if (!made.ok()) return made.error();
  *this = std::move(made.value());
  return Done{};
}

}  // namespace graphics
