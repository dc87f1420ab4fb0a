// NURBS curves and polycylinders.
#include <algorithm>
#include <memory>
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "api/geometry_arguments.h"
#include "geometry/nurbs_curve.h"
#include "geometry/polycylinder.h"
#include "hc/hc.h"
#include "strings/text.h"

using graphics::Done;
using graphics::Error;
using graphics::GeometryType;
using graphics::NurbsCurve;
using graphics::PolyCylinder;
using graphics::Result;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::FindGeometryAs;
using graphics::api::InsertIntoCurrent;
using graphics::api::ReadFloats;
using graphics::api::ReadPoints;
using graphics::api::Run;
using graphics::api::Write;
using graphics::api::WritePoints;
namespace errc = graphics::errc;

namespace {

// A clamped uniform knot vector: degree + 1 zeros, evenly spaced inner
// knots, degree + 1 ones.
std::vector<float> ClampedUniformKnots(int degree, int count) {
  const int total = count + degree + 1;
  const int spans = count - degree;
  std::vector<float> knots(static_cast<size_t>(total));
  for (int i = 0; i < total; ++i) {
    const int inner = std::clamp(i - degree, 0, spans);
    knots[static_cast<size_t>(i)] = static_cast<float>(inner) / static_cast<float>(spans);
  }
  return knots;
}

Result<const NurbsCurve*> FindCurve(Session& session, long long key) {
  auto found = FindGeometryAs<NurbsCurve>(session, key, {GeometryType::kNurbsCurve}, "nurbs curve");
  if (!found.ok()) return found.error();
  return found.value();
}

void WriteFloats(float* out, const std::vector<float>& values) {
  if (out != nullptr) std::copy(values.begin(), values.end(), out);
}

}  // namespace

// Null weights mean unit weights and null knots a clamped uniform vector;
// shows then report no weights or knots, as none were given.
extern "C" long long HC_Insert_NURBS_Curve(int degree, int cpcount, void const* control_points, float const* weights,
                                           float const* knots, double start_u, double end_u) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    if (degree < 1 || cpcount <= degree) {
      return Error(errc::kDegenerate, "a curve of degree " + std::to_string(degree) + " needs more than " +
                                          std::to_string(degree) + " control points");
    }
    auto points = ReadPoints(control_points, cpcount, "control points");
    if (!points.ok()) return points.error();
    auto given_weights = ReadFloats(weights, weights ? cpcount : 0, "weights");
    if (!given_weights.ok()) return given_weights.error();
    const auto& w = given_weights.value();
    if (!w.empty() && std::all_of(w.begin(), w.end(), [](float v) { return v == 0; })) {
      return Error(errc::kDegenerate, "the weights are all zero");
    }
    auto given_knots = ReadFloats(knots, knots ? cpcount + degree + 1 : 0, "knots");
    if (!given_knots.ok()) return given_knots.error();
    if (!std::is_sorted(given_knots.value().begin(), given_knots.value().end())) {
      return Error(errc::kOutOfRange, "the knots must not decrease");
    }
    if (!(start_u >= 0 && start_u <= end_u && end_u <= 1)) {
      return Error(errc::kOutOfRange, "the parameter range must lie from 0 to 1, start before end");
    }
    auto curve = std::make_unique<NurbsCurve>(degree, std::move(points.value()), std::move(given_weights.value()),
                                              std::move(given_knots.value()), static_cast<float>(start_u),
                                              static_cast<float>(end_u));
    return InsertIntoCurrent(session, std::move(curve));
  });
}

extern "C" void HC_Show_NURBS_Curve_Size(long long key, int* degree, int* cp_count, int* weight_count,
                                         int* knot_count) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindCurve(session, key);
    if (!found.ok()) return found.error();
    const NurbsCurve& curve = *found.value();
    Write(degree, curve.degree());
    Write(cp_count, static_cast<int>(curve.control_points().size()));
    Write(weight_count, static_cast<int>(curve.weights().size()));
    Write(knot_count, static_cast<int>(curve.knots().size()));
    return Done{};
  });
}

// Weights and knots the caller left out come back as the ones in use.
extern "C" void HC_Show_NURBS_Curve(long long key, int* degree, int* cp_count, void* points, float* weights,
                                    float* knots, float* start_u, float* end_u) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindCurve(session, key);
    if (!found.ok()) return found.error();
    const NurbsCurve& curve = *found.value();
    const int count = static_cast<int>(curve.control_points().size());
    Write(degree, curve.degree());
    Write(cp_count, count);
    WritePoints(points, curve.control_points());
    WriteFloats(weights, curve.weights().empty() ? std::vector<float>(static_cast<size_t>(count), 1.0f)
                                                 : curve.weights());
    WriteFloats(knots, curve.knots().empty() ? ClampedUniformKnots(curve.degree(), count) : curve.knots());
    Write(start_u, curve.start_u());
    Write(end_u, curve.end_u());
    return Done{};
  });
}

extern "C" long long HC_Insert_PolyCylinder(int p_count, void const* pts, int r_count, float const* radii,
                                            char const* capping) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto points = ReadPoints(pts, p_count, "polycylinder points");
    if (!points.ok()) return points.error();
    if (p_count < 2) return Error(errc::kDegenerate, "a polycylinder needs two points");
    if (r_count < 1 || r_count > p_count) {
      return Error(errc::kOutOfRange, "a polycylinder needs from 1 to " + std::to_string(p_count) + " radii");
    }
    auto read_radii = ReadFloats(radii, r_count, "radii");
    if (!read_radii.ok()) return read_radii.error();
    const std::string caps = capping ? graphics::NormalizeWord(capping) : "both";
    if (caps != "none" && caps != "first" && caps != "second" && caps != "both") {
      return Error(errc::kUnknownOption, "unrecognised capping '" + std::string(capping) + "'");
    }
    return InsertIntoCurrent(
        session, std::make_unique<PolyCylinder>(std::move(points.value()), std::move(read_radii.value()), caps));
  });
}

extern "C" void HC_Show_PolyCylinder_Counts(long long key, int* p_count, int* r_count, char* capping) {
  HC_Show_PolyCylinder(key, p_count, nullptr, r_count, nullptr, capping);
}

extern "C" void HC_Show_PolyCylinder(long long key, int* p_count, void* pts, int* r_count, float* radii,
                                     char* capping) {
  Run(Access::kRead, "HC_Show_PolyCylinder", [&](Session& session) -> Status {
    auto found = FindGeometryAs<PolyCylinder>(session, key, {GeometryType::kPolyCylinder}, "polycylinder");
    if (!found.ok()) return found.error();
    const PolyCylinder& cylinder = *found.value();
    Write(p_count, static_cast<int>(cylinder.points().size()));
    WritePoints(pts, cylinder.points());
    Write(r_count, static_cast<int>(cylinder.radii().size()));
    WriteFloats(radii, cylinder.radii());
    graphics::api::WriteString(capping, cylinder.capping());
    return Done{};
  });
}
