// Polylines that follow stored curves: circles and their arcs, chords and
// wedges, ellipses and elliptical arcs, and NURBS curves. The size call and
// the fill call cut a curve the same way for the same options.
#include <cmath>
#include <numbers>
#include <optional>
#include <string>
#include <vector>

#include "api/arguments.h"
#include "api/call.h"
#include "api/compute_inputs.h"
#include "attributes/option_family.h"
#include "attributes/option_string.h"
#include "geometry/conic.h"
#include "geometry/nurbs_curve.h"
#include "hc/hc.h"
#include "math/curve_tessellation.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;

namespace {

// Without a "maximum deviation" value, the polyline stays within this
// fraction of the diagonal of the curve's box.
constexpr double kDefaultDeviationFraction = 1e-3;

// The largest distance the options ask for: a value, the default (nothing
// said, or "maximum deviation" bare), or none ("no maximum deviation").
struct Deviation {
  bool limited = true;
  std::optional<double> value;
};

Result<Deviation> ParseCurveOptions(const char* options) {
  auto required = api::Require(options, "options");
  if (!required.ok()) return required.error();
  auto items = ParseOptionList(options);
  if (!items.ok()) return items.error();
  Deviation deviation;
  for (const OptionItem& item : items.value()) {
    if (item.name != "maximum deviation") {
      return Error(errc::kUnknownOption, "unrecognised curve option '" + item.name + "'");
    }
    deviation = Deviation{!item.negated, std::nullopt};
    if (!item.value) continue;
    const std::optional<float> value = ParseNumber(*item.value);
    if (!value || !(*value > 0) || !std::isfinite(*value)) {
      return Error(errc::kOutOfRange, "the maximum deviation must be a positive number");
    }
    deviation.value = *value;
  }
  return deviation;
}

std::optional<double> DistanceFor(const Deviation& deviation, const Geometry& curve) {
  if (!deviation.limited) return std::nullopt;
  if (deviation.value) return deviation.value;
  const Bounds box = curve.ComputeBounds();
  const double dx = box.max().x - box.min().x, dy = box.max().y - box.min().y, dz = box.max().z - box.min().z;
  const double diagonal = std::sqrt(dx * dx + dy * dy + dz * dz);
  if (!(diagonal > 0)) return std::nullopt;  // a curve of no size needs no detail
  return diagonal * kDefaultDeviationFraction;
}

std::vector<Point> ConicPolyline(const Conic& conic, std::optional<double> distance) {
  const auto& p = conic.points();
  if (IsCircular(conic.type())) {
    EllipseArc arc = ArcThrough(p[0], p[1], p[2]);
    if (conic.type() == GeometryType::kCircle) arc.end = 2 * std::numbers::pi;
    std::vector<Point> points = TessellateArc(arc, distance);
    // A chord closes straight back; a wedge through the centre.
    if (conic.type() == GeometryType::kCircularWedge) points.push_back(arc.center);
    if (conic.type() == GeometryType::kCircularChord || conic.type() == GeometryType::kCircularWedge) {
      points.push_back(points.front());
    }
    return points;
  }
  const Point& center = p[0];
  const Point major{p[1].x - center.x, p[1].y - center.y, p[1].z - center.z};
  const Point minor{p[2].x - center.x, p[2].y - center.y, p[2].z - center.z};
  // An arc whose end comes before its start goes on round through 0.
  const double end = conic.end() < conic.start() ? conic.end() + 1.0 : conic.end();
  const double turn = 2 * std::numbers::pi;
  return TessellateArc(EllipseArc{center, major, minor, conic.start() * turn, end * turn}, distance);
}

std::vector<Point> NurbsPolyline(const NurbsCurve& curve, std::optional<double> distance) {
  return TessellateNurbs(NurbsCurveData{curve.degree(), curve.control_points(), curve.weights(), curve.knots(),
                                        curve.start_u(), curve.end_u()},
                         distance);
}

// The polyline of the curve `key`, or why there is none.
Result<std::vector<Point>> CurvePolyline(Session& session, long long key, const char* options) {
  auto item = session.database().FindItem(key);
  if (!item.ok()) return item.error();
  auto deviation = ParseCurveOptions(options);
  if (!deviation.ok()) return deviation.error();
  const auto* geometry =
      item.value()->kind() == EntityKind::kGeometry ? static_cast<const Geometry*>(item.value()) : nullptr;
  switch (geometry ? geometry->type() : GeometryType::kPolyline) {
    case GeometryType::kCircle:
    case GeometryType::kCircularArc:
    case GeometryType::kCircularChord:
    case GeometryType::kCircularWedge:
    case GeometryType::kEllipse:
    case GeometryType::kEllipticalArc:
      return ConicPolyline(static_cast<const Conic&>(*geometry), DistanceFor(deviation.value(), *geometry));
    case GeometryType::kNurbsCurve:
      return NurbsPolyline(static_cast<const NurbsCurve&>(*geometry), DistanceFor(deviation.value(), *geometry));
    default:
      return Error(errc::kWrongKeyKind, "key " + std::to_string(key) + " is not a curve");
  }
}

}  // namespace

// On failure the count is 0.
extern "C" void HC_Compute_Pline_From_Crv_Size(long long key, char const* options, int* pcount) {
  const int count = Run(Access::kRead, __func__, 0, [&](Session& session) -> Result<int> {
    auto polyline = CurvePolyline(session, key, options);
    if (!polyline.ok()) return polyline.error();
    return static_cast<int>(polyline.value().size());
  });
  api::Write(pcount, count);
}

// On failure the count is 0 and the points are untouched.
extern "C" bool HC_Compute_Polyline_From_Curve(long long key, char const* options, int* pcount, void* points) {
  int count = 0;
  const bool done = Run(Access::kRead, __func__, false, [&](Session& session) -> Result<bool> {
    auto polyline = CurvePolyline(session, key, options);
    if (!polyline.ok()) return polyline.error();
    count = static_cast<int>(polyline.value().size());
    if (points != nullptr) {
      for (int i = 0; i < count; ++i) api::WritePointAt(points, polyline.value()[static_cast<size_t>(i)], i);
    }
    return true;
  });
  api::Write(pcount, count);
  return done;
}
