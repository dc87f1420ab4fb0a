// Data set on many vertices or faces of a shell or mesh at once: normals,
// texture parameters and colours.
#include <array>
#include <string>
#include <vector>

#include "api/arguments.h"
#include "api/call.h"
#include "api/geometry_arguments.h"
#include "attributes/option_string.h"
#include "geometry/color_space.h"
#include "geometry/surface.h"
#include "hc/hc.h"

using graphics::Done;
using graphics::Error;
using graphics::GeometryType;
using graphics::Point;
using graphics::Result;
using graphics::Session;
using graphics::Status;
using graphics::Surface;
using graphics::SurfaceColor;
using graphics::api::Access;
using graphics::api::CheckRange;
using graphics::api::FindGeometryAs;
using graphics::api::ReadFloats;
using graphics::api::ReadPoints;
using graphics::api::Run;
using graphics::api::Write;
using graphics::api::WritePoints;
namespace errc = graphics::errc;

namespace {

// The surface of `key` with [offset, offset + count) inside its vertices
// (or faces).
Result<Surface*> FindRange(Session& session, long long key, int offset, int count, bool faces) {
  auto found = FindGeometryAs<Surface>(session, key, {GeometryType::kShell, GeometryType::kMesh}, "shell or mesh");
  if (!found.ok()) return found.error();
  const size_t size = faces ? static_cast<size_t>(found.value()->FaceCount()) : found.value()->points().size();
  auto inside = CheckRange(offset, count, size, faces ? "faces" : "vertices");
  if (!inside.ok()) return inside.error();
  return found.value();
}

// Checks a list of the parts a colour applies to against `allowed`.
Status CheckColorTypes(const char* type, std::span<const std::string_view> allowed) {
  if (type == nullptr) return Error(errc::kNullArgument, "null colour type");
  auto items = graphics::ParseOptionList(type);
  if (!items.ok()) return items.error();
  for (const graphics::OptionItem& item : items.value()) {
    if (item.negated || item.value || !graphics::FindOptionName(item.name, allowed)) {
      return Error(errc::kUnknownOption, "unrecognised colour type '" + item.name + "'");
    }
  }
  return Done{};
}

constexpr std::array<std::string_view, 4> kVertexParts{"markers", "vertex", "edges", "faces"};
constexpr std::array<std::string_view, 1> kFaceParts{"faces"};

Result<std::vector<SurfaceColor>> ReadValues(const char* space, int count, const void* values) {
  if (space == nullptr) return Error(errc::kNullArgument, "null colour space");
  auto floats = ReadFloats(static_cast<const float*>(values), count < 0 ? count : 3 * count, "colour values");
  if (!floats.ok()) return floats.error();
  std::vector<SurfaceColor> colors;
  for (size_t i = 0; i < floats.value().size(); i += 3) {
    const auto& f = floats.value();
    auto rgb = graphics::ToRgb(space, {f[i], f[i + 1], f[i + 2]});
    if (!rgb) return Error(errc::kUnknownOption, "unrecognised colour space '" + std::string(space) + "'");
    colors.push_back(SurfaceColor{false, *rgb, 0});
  }
  return colors;
}

Result<std::vector<SurfaceColor>> ReadIndices(int count, const float* findices) {
  auto floats = ReadFloats(findices, count, "colour indices");
  if (!floats.ok()) return floats.error();
  std::vector<SurfaceColor> colors;
  for (float index : floats.value()) colors.push_back(SurfaceColor{true, {}, index});
  return colors;
}

// The shared frame of the four colour setters.
void SetColors(const char* routine, long long key, const char* type, int offset, int count, bool faces,
               const std::function<Result<std::vector<SurfaceColor>>()>& read) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    auto checked = faces ? CheckColorTypes(type, kFaceParts) : CheckColorTypes(type, kVertexParts);
    if (!checked.ok()) return checked;
    auto surface = FindRange(session, key, offset, count, faces);
    if (!surface.ok()) return surface.error();
    auto colors = read();
    if (!colors.ok()) return colors.error();
    if (faces) {
      surface.value()->SetFaceColors(static_cast<size_t>(offset), colors.value());
    } else {
      surface.value()->SetVertexColors(static_cast<size_t>(offset), colors.value());
    }
    return Done{};
  });
}

void UnSetColors(const char* routine, long long key, int offset, int count, bool faces) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    auto surface = FindRange(session, key, offset, count, faces);
    if (!surface.ok()) return surface.error();
    if (faces) {
      surface.value()->UnSetFaceColors(static_cast<size_t>(offset), static_cast<size_t>(count));
    } else {
      surface.value()->UnSetVertexColors(static_cast<size_t>(offset), static_cast<size_t>(count));
    }
    return Done{};
  });
}

}  // namespace

extern "C" void HC_MSet_Vertex_Normals(long long key, int offset, int count, void const* normals) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto surface = FindRange(session, key, offset, count, false);
    if (!surface.ok()) return surface.error();
    auto read = ReadPoints(normals, count, "normals");
    if (!read.ok()) return read.error();
    surface.value()->SetVertexNormals(static_cast<size_t>(offset), read.value());
    return Done{};
  });
}

extern "C" void HC_MShow_Net_Vertex_Normals(long long key, int offset, int count, void* normals) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto surface = FindRange(session, key, offset, count, false);
    if (!surface.ok()) return surface.error();
    WritePoints(normals, surface.value()->NetVertexNormals(static_cast<size_t>(offset), static_cast<size_t>(count)));
    return Done{};
  });
}

// Every vertex of a surface has parameters of one width: the first call
// fixes it, and a call with another width is refused.
extern "C" void HC_MSet_Vertex_Parameters(long long key, int offset, int pcount, int number, float const* parameters) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto surface = FindRange(session, key, offset, pcount, false);
    if (!surface.ok()) return surface.error();
    const int width = surface.value()->parameter_width();
    if (number < 1 || (width != 0 && number != width)) {
      return Error(errc::kOutOfRange, "parameters of width " + std::to_string(number) + " where " +
                                          (width != 0 ? std::to_string(width) + " is in use" : "1 or more is needed"));
    }
    auto read = ReadFloats(parameters, pcount * number, "parameters");
    if (!read.ok()) return read.error();
    surface.value()->SetParameters(static_cast<size_t>(offset), number, read.value());
    return Done{};
  });
}

extern "C" void HC_MShow_Vertex_Parameter_Size(long long key, int* number) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto surface = FindRange(session, key, 0, 0, false);
    if (!surface.ok()) return surface.error();
    Write(number, surface.value()->parameter_width());
    return Done{};
  });
}

// With no parameters set, reports that nothing is set.
extern "C" void HC_MShow_Vertex_Parameters(long long key, int offset, int pcount, int* number, float* parameters) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto surface = FindRange(session, key, offset, pcount, false);
    if (!surface.ok()) return surface.error();
    const int width = surface.value()->parameter_width();
    if (width == 0) return Error(errc::kNotSet, "no vertex parameters are set");
    Write(number, width);
    if (parameters != nullptr) {
      const auto& all = surface.value()->parameters();
      const auto first = all.begin() + static_cast<std::ptrdiff_t>(offset) * width;
      std::copy(first, first + static_cast<std::ptrdiff_t>(pcount) * width, parameters);
    }
    return Done{};
  });
}

extern "C" void HC_MSet_Vertex_Colors_By_Value(long long key, char const* type, int offset, char const* color_space,
                                               int count, void const* values) {
  SetColors(__func__, key, type, offset, count, false, [&] { return ReadValues(color_space, count, values); });
}
extern "C" void HC_MSet_Vertex_Colors_By_FIndex(long long key, char const* type, int offset, int count,
                                                float const* findices) {
  SetColors(__func__, key, type, offset, count, false, [&] { return ReadIndices(count, findices); });
}
extern "C" void HC_MSet_Face_Colors_By_Value(long long key, char const* type, int offset, char const* color_space,
                                             int count, void const* values) {
  SetColors(__func__, key, type, offset, count, true, [&] { return ReadValues(color_space, count, values); });
}
extern "C" void HC_MSet_Face_Colors_By_FIndex(long long key, char const* type, int offset, int count,
                                              float const* findices) {
  SetColors(__func__, key, type, offset, count, true, [&] { return ReadIndices(count, findices); });
}
extern "C" void HC_MUnSet_Vertex_Colors(long long key, int offset, int count) {
  UnSetColors(__func__, key, offset, count, false);
}
extern "C" void HC_MUnSet_Face_Colors(long long key, int offset, int count) {
  UnSetColors(__func__, key, offset, count, true);
}
