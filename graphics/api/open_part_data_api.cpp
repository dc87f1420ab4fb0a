// Data set through an open vertex, edge or face of a shell or mesh: its
// normal, and a vertex's texture parameters. Vertex data live in the
// surface's per-vertex arrays, so the bulk (MSet_/MShow_) calls see them;
// face and edge normals live with the part's own attributes.
#include <cmath>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "api/arguments.h"
#include "api/attribute_target.h"
#include "api/call.h"
#include "api/geometry_arguments.h"
#include "attributes/value_attributes.h"
#include "geometry/surface.h"
#include "hc/hc.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;
using Kind = OpenFrame::Kind;

namespace {

// The open part of a shell or mesh on top of the thread's stack, or why
// there is none. An empty result (no part, no error) is a dead frame.
struct OpenPart {
  Surface* surface = nullptr;
  Kind kind = Kind::kVertex;
  int first = 0;
  int second = 0;
  Geometry::PartId id{};
};

Result<std::optional<OpenPart>> FindOpenPart(Session& session, std::initializer_list<Kind> kinds,
                                             std::string_view expected) {
  const OpenStack& stack = session.open_stack();
  if (stack.top_is_dead()) return std::optional<OpenPart>();
  if (stack.top_is_geometry()) {
    const OpenFrame& frame = stack.top_frame();
    const GeometryType type = frame.geometry->type();
    const bool surface = type == GeometryType::kShell || type == GeometryType::kMesh;
    for (Kind kind : kinds) {
      if (surface && frame.kind == kind) {
        return std::optional<OpenPart>(
            OpenPart{static_cast<Surface*>(frame.geometry), frame.kind, frame.first, frame.second, api::PartIdOf(frame)});
      }
    }
  }
  return Error(errc::kNothingOpen, "no open " + std::string(expected) + " of a shell or mesh");
}

constexpr std::initializer_list<Kind> kNormalParts = {Kind::kVertex, Kind::kEdge, Kind::kFace};

const Point* ExplicitNormal(const OpenPart& part) {
  if (part.kind == Kind::kVertex) {
    const auto& normals = part.surface->vertex_normals();
    const size_t vertex = static_cast<size_t>(part.first);
    return vertex < normals.size() && normals[vertex] ? &*normals[vertex] : nullptr;
  }
  const AttributeStore* store = part.surface->PartAttributes(part.id);
  const Normal* normal = store ? store->Find<Normal>() : nullptr;
  return normal ? &normal->value : nullptr;
}

Point Normalized(double x, double y, double z) {
  const double length = std::sqrt(x * x + y * y + z * z);
  if (length == 0) return Point{0, 0, 0};
  return Point{static_cast<float>(x / length), static_cast<float>(y / length), static_cast<float>(z / length)};
}

// The unit normal of face `face` by Newell's method; (0,0,0) for a face of
// no area.
Point FaceNormal(const Surface& surface, int face) {
  double x = 0, y = 0, z = 0;
  int index = 0;
  surface.ForEachFace([&](std::span<const int> outline) {
    if (index++ != face) return;
    const auto& points = surface.points();
    for (size_t i = 0; i < outline.size(); ++i) {
      const Point& a = points[static_cast<size_t>(outline[i])];
      const Point& b = points[static_cast<size_t>(outline[(i + 1) % outline.size()])];
      x += (double(a.y) - b.y) * (double(a.z) + b.z);
      y += (double(a.z) - b.z) * (double(a.x) + b.x);
      z += (double(a.x) - b.x) * (double(a.y) + b.y);
    }
  });
  return Normalized(x, y, z);
}

// What the surface would use without an explicit normal: the vertex's mean
// of its faces, a face's plane, the mean of an edge's two vertices.
Point ComputedNormal(const OpenPart& part) {
  if (part.kind == Kind::kFace) return FaceNormal(*part.surface, part.first);
  if (part.kind == Kind::kVertex) return part.surface->NetVertexNormals(static_cast<size_t>(part.first), 1).front();
  const Point a = part.surface->NetVertexNormals(static_cast<size_t>(part.first), 1).front();
  const Point b = part.surface->NetVertexNormals(static_cast<size_t>(part.second), 1).front();
  return Normalized(double(a.x) + b.x, double(a.y) + b.y, double(a.z) + b.z);
}

}  // namespace

// A zero vector is refused: it has no direction.
extern "C" void HC_Set_Normal(double x, double y, double z) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto normal = api::ToPoint(x, y, z, "normal");
    if (!normal.ok()) return normal.error();
    if (x == 0 && y == 0 && z == 0) return Error(errc::kOutOfRange, "a normal cannot be the zero vector");
    auto part = FindOpenPart(session, kNormalParts, "vertex, edge or face");
    if (!part.ok()) return part.error();
    if (!part.value()) return Done{};
    const OpenPart& open = *part.value();
    if (open.kind == Kind::kVertex) {
      open.surface->SetVertexNormals(static_cast<size_t>(open.first), std::span<const Point>(&normal.value(), 1));
    } else {
      open.surface->MutablePartAttributes(open.id).Set(Normal{normal.value()});
    }
    return Done{};
  });
}

// No explicit normal on the part is reported, the outputs left alone.
extern "C" void HC_Show_Normal(float* x, float* y, float* z) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto part = FindOpenPart(session, kNormalParts, "vertex, edge or face");
    if (!part.ok()) return part.error();
    if (!part.value()) return Done{};
    const Point* normal = ExplicitNormal(*part.value());
    if (normal == nullptr) return Error(errc::kNotSet, "no normal is set here");
    api::WritePoint(x, y, z, *normal);
    return Done{};
  });
}

extern "C" void HC_Show_Net_Normal(float* x, float* y, float* z) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto part = FindOpenPart(session, kNormalParts, "vertex, edge or face");
    if (!part.ok()) return part.error();
    if (!part.value()) return Done{};
    const Point* normal = ExplicitNormal(*part.value());
    api::WritePoint(x, y, z, normal ? *normal : ComputedNormal(*part.value()));
    return Done{};
  });
}

// Unsetting a normal that is not set does nothing.
extern "C" void HC_UnSet_Normal(void) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto part = FindOpenPart(session, kNormalParts, "vertex, edge or face");
    if (!part.ok()) return part.error();
    if (!part.value()) return Done{};
    const OpenPart& open = *part.value();
    if (open.kind == Kind::kVertex) {
      open.surface->UnSetVertexNormal(static_cast<size_t>(open.first));
    } else {
      open.surface->MutablePartAttributes(open.id).Remove(AttributeKind::kNormal);
    }
    return Done{};
  });
}

// One to three values (u; u, v; u, v, w) for the open vertex, of the width
// the surface's other vertices use, if any.
extern "C" void HC_Set_Parameter(int number, float const* p) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    if (number < 1 || number > 3) {
      return Error(errc::kOutOfRange, "a vertex takes 1 to 3 parameters, not " + std::to_string(number));
    }
    auto values = api::ReadFloats(p, number, "parameters");
    if (!values.ok()) return values.error();
    auto part = FindOpenPart(session, {Kind::kVertex}, "vertex");
    if (!part.ok()) return part.error();
    if (!part.value()) return Done{};
    Surface& surface = *part.value()->surface;
    if (surface.parameter_width() != 0 && surface.parameter_width() != number) {
      return Error(errc::kOutOfRange, "parameters of width " + std::to_string(number) + " where " +
                                          std::to_string(surface.parameter_width()) + " is in use");
    }
    surface.SetParameters(static_cast<size_t>(part.value()->first), number, values.value());
    return Done{};
  });
}
