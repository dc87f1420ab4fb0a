// Conversions of positions between coordinate systems (object, world,
// viewpoint, windows, pixels) with the net modelling matrix, camera and
// windows of a segment or a key path.
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "api/compute_inputs.h"
#include "api/net_path.h"
#include "hc/hc.h"
#include "viewing/view_setup.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;

namespace {

Result<CoordinateSystem> SystemNamed(const char* word, const char* what) {
  auto required = api::Require(word, what);
  if (!required.ok()) return required.error();
  const std::optional<CoordinateSystem> system = FindCoordinateSystem(word);
  if (!system) return Error(errc::kUnknownOption, "unrecognised coordinate system '" + std::string(word) + "'");
  return *system;
}

Result<AttributePath> SegmentPath(Session& session, const char* segment) {
  auto required = api::Require(segment, "segment");
  if (!required.ok()) return required.error();
  auto found = session.FindSegment(segment);
  if (!found.ok()) return found.error();
  if (found.value() == nullptr) return Error(errc::kNoSuchSegment, "no segment to compute coordinates in");
  return AttributePath::Of(*found.value());
}

// The matrix from `in_system` to `out_system` along the path `path_of`
// gives; the words are checked before the path is looked up.
template <typename PathOf>
Result<Matrix> Conversion(Session& session, const char* in_system, const char* out_system, PathOf&& path_of) {
  auto from = SystemNamed(in_system, "input coordinate system");
  if (!from.ok()) return from.error();
  auto to = SystemNamed(out_system, "output coordinate system");
  if (!to.ok()) return to.error();
  Result<AttributePath> path = path_of(session);
  if (!path.ok()) return path.error();
  return ViewingPipeline(ViewSetupOf(path.value())).Between(from.value(), to.value());
}

// Converts one position; false and the output untouched on failure.
template <typename PathOf>
bool ConvertPosition(const char* routine, const char* in_system, const void* in_position, const char* out_system,
                     void* out_position, PathOf&& path_of) {
  return Run(Access::kRead, routine, false, [&](Session& session) -> Result<bool> {
    auto matrix = Conversion(session, in_system, out_system, path_of);
    if (!matrix.ok()) return matrix.error();
    auto required = api::Require(in_position, "input position");
    if (!required.ok()) return required.error();
    const Point in = api::ReadPoint(in_position);
    if (!IsFinite(in)) return Error(errc::kOutOfRange, "the input position is not finite");
    const Point out = matrix.value().Transform(in);
    if (!IsFinite(out)) return Error(errc::kOutOfRange, "the position has no finite image in the output system");
    if (out_position != nullptr) api::WritePointAt(out_position, out);
    return true;
  });
}

}  // namespace

extern "C" bool HC_Compute_Coordinates(char const* segment, char const* in_system, void const* in_position,
                                       char const* out_system, void* out_position) {
  return ConvertPosition(__func__, in_system, in_position, out_system, out_position,
                         [&](Session& session) { return SegmentPath(session, segment); });
}

extern "C" bool HC_Compute_Coordinates_By_Path(int count, long long const* keys, char const* in_system,
                                               void const* in_position, char const* out_system,
                                               void* out_position) {
  return ConvertPosition(__func__, in_system, in_position, out_system, out_position,
                         [&](Session& session) { return api::NetPath(session, count, keys); });
}

// Perspective conversions carry the homogeneous column, which
// HC_Compute_Transformed_Points divides by.
extern "C" bool HC_Compute_Transform(char const* segment, char const* in_system, char const* out_system,
                                     float* matrix) {
  return Run(Access::kRead, __func__, false, [&](Session& session) -> Result<bool> {
    auto conversion =
        Conversion(session, in_system, out_system, [&](Session& s) { return SegmentPath(s, segment); });
    if (!conversion.ok()) return conversion.error();
    if (matrix != nullptr) {
      for (int i = 0; i < 16; ++i) matrix[i] = static_cast<float>(conversion.value().elements()[i]);
    }
    return true;
  });
}
