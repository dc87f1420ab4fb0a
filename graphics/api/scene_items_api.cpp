// Grids, cutting planes, spheres and lights.
#include <cmath>
#include <memory>
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "api/geometry_arguments.h"
#include "attributes/option_string.h"
#include "geometry/cutting_plane.h"
#include "geometry/grid.h"
#include "geometry/light.h"
#include "geometry/sphere.h"
#include "hc/hc.h"
#include "strings/text.h"

using graphics::CuttingPlane;
using graphics::Done;
using graphics::Error;
using graphics::GeometryType;
using graphics::Grid;
using graphics::Light;
using graphics::Point;
using graphics::Result;
using graphics::Session;
using graphics::Sphere;
using graphics::Status;
using graphics::api::Access;
using graphics::api::FindGeometryAs;
using graphics::api::InsertIntoCurrent;
using graphics::api::ReadPoint;
using graphics::api::Require;
using graphics::api::Run;
using graphics::api::ToPoint;
using graphics::api::Write;
using graphics::api::WritePoints;
using graphics::api::WriteString;
namespace errc = graphics::errc;

namespace {

void WriteOne(void* out, const Point& p) { WritePoints(out, std::span<const Point>(&p, 1)); }

bool IsZero(const Point& p) { return p.x == 0 && p.y == 0 && p.z == 0; }

// Moves a light of one of `types` with `move(light, point)`.
template <typename Move>
void MoveLight(const char* routine, long long key, std::initializer_list<GeometryType> types, const char* expected,
               double x, double y, double z, Move move) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    auto at = ToPoint(x, y, z, "light position");
    if (!at.ok()) return at.error();
    auto found = FindGeometryAs<Light>(session, key, types, expected);
    if (!found.ok()) return found.error();
    move(*found.value(), at.value());
    return Done{};
  });
}

constexpr std::array<std::string_view, 5> kSpotOptions{"illumination cone", "edge sharpness", "concentration",
                                                       "camera relative", "outer cone"};

}  // namespace

extern "C" long long HC_Insert_Grid(char const* type, void const* origin, void const* ref1, void const* ref2,
                                    int count1, int count2) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto required = Require(type, "grid type");
    if (!required.ok()) return required.error();
    const std::string word = graphics::NormalizeWord(type);
    if (word != "quadrilateral" && word != "radial") {
      return Error(errc::kUnknownOption, "unrecognised grid type '" + std::string(type) + "'");
    }
    auto o = ReadPoint(origin, "grid origin");
    if (!o.ok()) return o.error();
    auto r1 = ReadPoint(ref1, "first grid reference");
    if (!r1.ok()) return r1.error();
    auto r2 = ReadPoint(ref2, "second grid reference");
    if (!r2.ok()) return r2.error();
    return InsertIntoCurrent(session,
                             std::make_unique<Grid>(word, o.value(), r1.value(), r2.value(), count1, count2));
  });
}

extern "C" void HC_Show_Grid(long long key, char* type, void* origin, void* ref1, void* ref2, int* count1,
                             int* count2) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindGeometryAs<Grid>(session, key, {GeometryType::kGrid}, "grid");
    if (!found.ok()) return found.error();
    const Grid& grid = *found.value();
    WriteString(type, grid.grid_type());
    WriteOne(origin, grid.origin());
    WriteOne(ref1, grid.ref1());
    WriteOne(ref2, grid.ref2());
    Write(count1, grid.count1());
    Write(count2, grid.count2());
    return Done{};
  });
}

// The plane a*x + b*y + c*z + d = 0; a, b and c must not all be zero.
extern "C" long long HC_Insert_Cutting_Plane(double a, double b, double c, double d) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto normal = ToPoint(a, b, c, "plane normal");
    if (!normal.ok()) return normal.error();
    const float offset = static_cast<float>(d);
    if (!std::isfinite(offset)) return Error(errc::kOutOfRange, "the plane offset is not finite");
    if (IsZero(normal.value())) return Error(errc::kDegenerate, "a cutting plane needs a non-zero normal");
    const Point& n = normal.value();
    return InsertIntoCurrent(session, std::make_unique<CuttingPlane>(n.x, n.y, n.z, offset));
  });
}

extern "C" void HC_Show_Cutting_Plane(long long key, float* a, float* b, float* c, float* d) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindGeometryAs<CuttingPlane>(session, key, {GeometryType::kCuttingPlane}, "cutting plane");
    if (!found.ok()) return found.error();
    const float* abcd = found.value()->coefficients();
    Write(a, abcd[0]);
    Write(b, abcd[1]);
    Write(c, abcd[2]);
    Write(d, abcd[3]);
    return Done{};
  });
}

// A null axis points up (0, 1, 0) and a null ortho along (1, 0, 0).
extern "C" long long HC_Insert_Sphere(void const* center, double radius, void const* axis, void const* ortho) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto c = ReadPoint(center, "sphere centre");
    if (!c.ok()) return c.error();
    const float r = static_cast<float>(radius);
    if (!(std::isfinite(r) && r > 0)) return Error(errc::kDegenerate, "a sphere needs a positive radius");
    auto a = axis ? ReadPoint(axis, "sphere axis") : Result<Point>(Point{0, 1, 0});
    if (!a.ok()) return a.error();
    auto o = ortho ? ReadPoint(ortho, "sphere ortho") : Result<Point>(Point{1, 0, 0});
    if (!o.ok()) return o.error();
    if (IsZero(a.value()) || IsZero(o.value())) return Error(errc::kDegenerate, "sphere axes must not be zero");
    return InsertIntoCurrent(session, std::make_unique<Sphere>(c.value(), r, a.value(), o.value()));
  });
}

extern "C" void HC_Show_Sphere(long long key, void* center, float* radius, void* axis, void* ortho) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindGeometryAs<Sphere>(session, key, {GeometryType::kSphere}, "sphere");
    if (!found.ok()) return found.error();
    const Sphere& sphere = *found.value();
    WriteOne(center, sphere.center());
    Write(radius, sphere.radius());
    WriteOne(axis, sphere.axis());
    WriteOne(ortho, sphere.ortho());
    return Done{};
  });
}

extern "C" long long HC_Insert_Distant_Light(double di, double dj, double dk) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto direction = ToPoint(di, dj, dk, "light direction");
    if (!direction.ok()) return direction.error();
    if (IsZero(direction.value())) return Error(errc::kDegenerate, "a distant light needs a direction");
    return InsertIntoCurrent(session, std::make_unique<Light>(GeometryType::kDistantLight, direction.value()));
  });
}

extern "C" long long HC_Insert_Local_Light(double x, double y, double z) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto at = ToPoint(x, y, z, "light position");
    if (!at.ok()) return at.error();
    return InsertIntoCurrent(session, std::make_unique<Light>(GeometryType::kLocalLight, at.value()));
  });
}

// Options: "illumination cone", "outer cone", "edge sharpness",
// "concentration", "[no] camera relative"; null reads as none.
extern "C" long long HC_Insert_Spot_Light(void const* position, void const* target, char const* list) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto at = ReadPoint(position, "light position");
    if (!at.ok()) return at.error();
    auto aim = ReadPoint(target, "light target");
    if (!aim.ok()) return aim.error();
    if (at.value() == aim.value()) return Error(errc::kDegenerate, "a spot light's target must differ from its position");
    auto items = graphics::ParseOptionList(list ? list : "");
    if (!items.ok()) return items.error();
    for (const graphics::OptionItem& item : items.value()) {
      if (!graphics::FindOptionName(item.name, kSpotOptions)) {
        return Error(errc::kUnknownOption, "unrecognised spot light option '" + item.name + "'");
      }
    }
    return InsertIntoCurrent(session, std::make_unique<Light>(GeometryType::kSpotLight, at.value(), aim.value(),
                                                              list ? list : ""));
  });
}

extern "C" void HC_Show_Distant_Light(long long key, float* di, float* dj, float* dk) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindGeometryAs<Light>(session, key, {GeometryType::kDistantLight}, "distant light");
    if (!found.ok()) return found.error();
    graphics::api::WritePoint(di, dj, dk, found.value()->position());
    return Done{};
  });
}

extern "C" void HC_Show_Local_Light(long long key, float* x, float* y, float* z) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindGeometryAs<Light>(session, key, {GeometryType::kLocalLight}, "local light");
    if (!found.ok()) return found.error();
    graphics::api::WritePoint(x, y, z, found.value()->position());
    return Done{};
  });
}

extern "C" void HC_Show_Spot_Light(long long key, void* position, void* target, char* list) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindGeometryAs<Light>(session, key, {GeometryType::kSpotLight}, "spot light");
    if (!found.ok()) return found.error();
    WriteOne(position, found.value()->position());
    WriteOne(target, found.value()->target());
    WriteString(list, found.value()->options());
    return Done{};
  });
}

extern "C" void HC_Move_Distant_Light(long long key, double di, double dj, double dk) {
  MoveLight(__func__, key, {GeometryType::kDistantLight}, "distant light", di, dj, dk,
            [](Light& light, const Point& p) { light.MovePosition(p); });
}

// A local or spot light; a spot light keeps its target.
extern "C" void HC_Move_Light_Position(long long key, double x, double y, double z) {
  MoveLight(__func__, key, {GeometryType::kLocalLight, GeometryType::kSpotLight}, "local or spot light", x, y, z,
            [](Light& light, const Point& p) { light.MovePosition(p); });
}

extern "C" void HC_Move_Light_Target(long long key, double x, double y, double z) {
  MoveLight(__func__, key, {GeometryType::kSpotLight}, "spot light", x, y, z,
            [](Light& light, const Point& p) { light.MoveTarget(p); });
}
