#include "viewing/viewing_pipeline.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string_view>

#include "math/matrix_inverse.h"

namespace graphics {

namespace {

struct Vec {
  double x, y, z;
};

Vec V(const Point& p) { return {p.x, p.y, p.z}; }
Vec operator-(Vec a, Vec b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Vec operator*(Vec a, double s) { return {a.x * s, a.y * s, a.z * s}; }
double Dot(Vec a, Vec b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
Vec Cross(Vec a, Vec b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }
Vec Unit(Vec a) { return a * (1 / std::sqrt(Dot(a, a))); }

// p' = p * scale + offset, axis by axis, and its inverse.
std::array<Matrix, 2> AxisMap(Vec scale, Vec offset) {
  return {Matrix({scale.x, 0, 0, 0, 0, scale.y, 0, 0, 0, 0, scale.z, 0, offset.x, offset.y, offset.z, 1}),
          Matrix({1 / scale.x, 0, 0, 0, 0, 1 / scale.y, 0, 0, 0, 0, 1 / scale.z, 0, -offset.x / scale.x,
                  -offset.y / scale.y, -offset.z / scale.z, 1})};
}

// From coordinates spanning `rect` as -1..+1 to the coordinates `rect` is
// given in. Depth scales with the height, as window depth is in y units.
std::array<Matrix, 2> FromRect(const WindowRect& rect) {
  const double half_width = (rect.right - rect.left) / 2;
  const double half_height = (rect.top - rect.bottom) / 2;
  return AxisMap({half_width, half_height, half_height},
                 {(rect.left + rect.right) / 2, (rect.bottom + rect.top) / 2, 0});
}

// From pixels (origin upper left, y down) of a width x height window to its
// -1..+1 window coordinates.
std::array<Matrix, 2> FromPixels(double width, double height) {
  return AxisMap({2 / width, -2 / height, 2 / height}, {-1, 1, 0});
}

// World to viewpoint: the camera at the origin, x to its right (up x sight in
// the default left-handed world), y up, z along the line of sight. The axes
// are orthonormal, so the inverse is the transpose.
std::array<Matrix, 2> Positioning(const CameraState& camera) {
  const Vec position = V(camera.position);
  const Vec sight = Unit(V(camera.target) - position);
  const Vec up = Unit(V(camera.up) - sight * Dot(V(camera.up), sight));
  const Vec right = Cross(up, sight);
  const Matrix forward({right.x, up.x, sight.x, 0, right.y, up.y, sight.y, 0, right.z, up.z, sight.z, 0,
                        -Dot(position, right), -Dot(position, up), -Dot(position, sight), 1});
  const Matrix backward({right.x, right.y, right.z, 0, up.x, up.y, up.z, 0, sight.x, sight.y, sight.z, 0,
                         position.x, position.y, position.z, 1});
  return {forward, backward};
}

// Viewpoint to local window for a window of width x height pixels.
std::array<Matrix, 2> Projecting(const CameraState& camera, double width, double height) {
  const double eye = std::sqrt(Dot(V(camera.target) - V(camera.position), V(camera.target) - V(camera.position)));
  const std::string_view projection = camera.projection;
  double x_scale = width / camera.width;  // pixels per world unit at the target
  double y_scale = height / camera.height;
  if (projection.find("stretched") == std::string_view::npos) x_scale = y_scale = std::min(x_scale, y_scale);
  const double ax = x_scale / (width / 2);
  const double ay = y_scale / (height / 2);
  if (projection.find("perspective") == std::string_view::npos) {
    return AxisMap({ax, ay, ay}, {0, 0, -eye * ay});
  }
  // w' = z / eye divides x, y and depth by the distance relative to the
  // target's; depth (z - eye) * ay / w' is 0 on the target plane and keeps
  // the orthographic slope there.
  return {Matrix({ax, 0, 0, 0, 0, ay, 0, 0, 0, 0, ay, 1 / eye, 0, 0, -eye * ay, 0}),
          Matrix({1 / ax, 0, 0, 0, 0, 1 / ay, 0, 0, 0, 0, 0, -1 / (eye * ay), 0, 0, eye, 1})};
}

}  // namespace

WindowRect WindowRect::Nested(const WindowRect& inner) const {
  const double cx = (left + right) / 2, cy = (bottom + top) / 2;
  const double hx = (right - left) / 2, hy = (top - bottom) / 2;
  return {cx + inner.left * hx, cx + inner.right * hx, cy + inner.bottom * hy, cy + inner.top * hy};
}

ViewingPipeline::ViewingPipeline(const ViewSetup& setup) : has_window_(setup.window.has_value()) {
  stages_[kModelling] = {setup.modelling, Inverse(setup.modelling)};
  const auto positioning = Positioning(setup.camera);
  stages_[kPositioning] = {positioning[0], positioning[1]};
  if (!has_window_) return;  // the window stages stay the identity, never used
  const WindowGeometry& window = *setup.window;
  const auto projecting = Projecting(setup.camera, window.local_width(), window.local_height());
  stages_[kProjecting] = {projecting[0], projecting[1]};
  const auto screen_range = FromRect(window.screen_range);
  stages_[kFromScreenRange] = {screen_range[0], screen_range[1]};
  const auto local_in_outer = FromRect(window.local);  // local -> outer; this stage goes the other way
  stages_[kFromOuterWindow] = {local_in_outer[1], local_in_outer[0]};
  const auto local_pixels = FromPixels(window.local_width(), window.local_height());
  stages_[kFromLocalPixels] = {local_pixels[0], local_pixels[1]};
  const auto outer_pixels = FromPixels(window.outer_width, window.outer_height);
  stages_[kFromOuterPixels] = {outer_pixels[0], outer_pixels[1]};
}

Result<Matrix> ViewingPipeline::Between(CoordinateSystem from, CoordinateSystem to) const {
  if (from == to) return Matrix();
  if (!has_window_ && (NeedsWindow(from) || NeedsWindow(to))) {
    return Error(errc::kNotSet, "there is no window: the segment is not below a driver");
  }
  // Each system's steps to the local window, where the chains meet.
  static constexpr StageId kObjectChain[] = {kModelling, kPositioning, kProjecting};
  static constexpr StageId kOuterPixelsChain[] = {kFromOuterPixels, kFromOuterWindow};
  const auto chain = [](CoordinateSystem system) -> std::span<const StageId> {
    switch (system) {
      case CoordinateSystem::kObject: return kObjectChain;
      case CoordinateSystem::kWorld: return std::span(kObjectChain).subspan(1);
      case CoordinateSystem::kViewpoint: return std::span(kObjectChain).subspan(2);
      case CoordinateSystem::kProjection:
      case CoordinateSystem::kLocalWindow: return {};
      case CoordinateSystem::kScreenRange: {
        static constexpr StageId kChain[] = {kFromScreenRange};
        return kChain;
      }
      case CoordinateSystem::kOuterWindow: return std::span(kOuterPixelsChain).subspan(1);
      case CoordinateSystem::kLocalPixels: {
        static constexpr StageId kChain[] = {kFromLocalPixels};
        return kChain;
      }
      case CoordinateSystem::kOuterPixels: return kOuterPixelsChain;
    }
    return {};
  };
  std::span<const StageId> up = chain(from);
  std::span<const StageId> down = chain(to);
  // Steps both chains share cancel out, which keeps conversions along one
  // chain (object to world, pixels to window) exact.
  while (!up.empty() && !down.empty() && up.back() == down.back()) {
    up = up.first(up.size() - 1);
    down = down.first(down.size() - 1);
  }
  Matrix result;
  for (StageId id : up) result = result.Then(stages_[id].forward);
  for (size_t i = down.size(); i-- > 0;) {
    const std::optional<Matrix>& backward = stages_[down[i]].backward;
    if (!backward) return Error(errc::kDegenerate, "the modelling matrix has no inverse");
    result = result.Then(*backward);
  }
  return result;
}

}  // namespace graphics
