// Bounding volumes: the ones the engine keeps per segment (show calls) and
// the ones computed on request (compute and filter calls). Both rest on the
// cached bounds of each segment, which a change below marks stale, so they
// cost a walk only over what changed since the last question.
#include <cmath>
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "api/geometry_arguments.h"
#include "attributes/option_string.h"
#include "database/visible_bounds.h"
#include "engine/system_switches.h"
#include "geometry/geometry.h"
#include "geometry/vector_ops.h"
#include "hc/hc.h"
#include "search/segment_spec.h"

using graphics::Bounds;
using graphics::Done;
using graphics::EntityKind;
using graphics::Error;
using graphics::Geometry;
using graphics::GeometryType;
using graphics::Point;
using graphics::Result;
using graphics::Segment;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::ReadPoint;
using graphics::api::Require;
using graphics::api::Run;
using graphics::api::RunDuringUpdate;
using graphics::api::Write;
using graphics::api::WritePoints;

namespace {

// The cached bounds refill under the lock, so every call here writes.
constexpr Access kBoundsAccess = Access::kWrite;

struct Sphere {
  Point center;
  float radius;
};

Sphere Enclosing(const Bounds& box) {
  const graphics::Vec3 low = graphics::ToVec(box.min());
  const graphics::Vec3 high = graphics::ToVec(box.max());
  return Sphere{graphics::ToPoint((low + high) * 0.5), static_cast<float>(graphics::Length(high - low) / 2)};
}

// The cube around a sphere.
Bounds CubeAround(const Segment::BoundingSphere& sphere) {
  const Point& c = sphere.center;
  const float r = sphere.radius;
  Bounds box;
  box.Include(Point{c.x - r, c.y - r, c.z - r});
  box.Include(Point{c.x + r, c.y + r, c.z + r});
  return box;
}

bool WriteBox(const Bounds& box, void* min, void* max) {
  if (box.empty()) return false;
  WritePoints(min, std::span<const Point>(&box.min(), 1));
  WritePoints(max, std::span<const Point>(&box.max(), 1));
  return true;
}

bool WriteSphere(const Sphere& sphere, void* center, float* radius) {
  WritePoints(center, std::span<const Point>(&sphere.center, 1));
  Write(radius, sphere.radius);
  return true;
}

// Includes and styles have no extent: they are references.
Error NoBoundsOfItsOwn(long long key, const graphics::Entity& item) {
  return Error(graphics::errc::kWrongKeyKind, "key " + std::to_string(key) + " refers to an " +
                                                  std::string(item.TypeWord()) + ", which has no bounds of its own");
}

// The union of the content bounds of the segments `spec` designates;
// `visible_only` leaves out what would not be drawn.
Result<Bounds> BoundsOf(Session& session, const char* spec, bool visible_only = false) {
  auto required = Require(spec, "segment specification");
  if (!required.ok()) return required.error();
  auto segments = graphics::MatchSegments(session.database(), session.current(), spec);
  if (!segments.ok()) return segments.error();
  Bounds box;
  for (const Segment* segment : segments.value()) {
    box.Include(visible_only ? graphics::VisibleContentBounds(session.database(), *segment)
                             : segment->ContentBounds());
  }
  return box;
}

// A segment's content bounds or a geometry item's own; `visible_only` as
// above.
Result<Bounds> BoundsOfKey(Session& session, long long key, bool visible_only = false) {
  auto item = session.database().FindItem(key);
  if (!item.ok()) return item.error();
  switch (item.value()->kind()) {
    case EntityKind::kSegment: {
      const auto& segment = *static_cast<const Segment*>(item.value());
      return visible_only ? graphics::VisibleContentBounds(session.database(), segment) : segment.ContentBounds();
    }
    case EntityKind::kGeometry: {
      const auto& geometry = *static_cast<const Geometry*>(item.value());
      return visible_only ? graphics::VisibleItemBounds(geometry) : geometry.ComputeBounds();
    }
    default:
      return NoBoundsOfItsOwn(key, *item.value());
  }
}

// Whether the filter options ask for visible geometry only: "visibility"
// (the default) or "no visibility", the last one winning. Other words are
// errors.
Result<bool> ReadVisibilityFilter(const char* options) {
  auto required = Require(options, "options");
  if (!required.ok()) return required.error();
  auto items = graphics::ParseOptionList(options);
  if (!items.ok()) return items.error();
  bool visible_only = true;
  for (const graphics::OptionItem& item : items.value()) {
    if (item.name != "visibility" || item.value) {
      return Error(graphics::errc::kUnknownOption, "unrecognised option '" + item.name + "'");
    }
    visible_only = !item.negated;
  }
  return visible_only;
}

// The kept volume of a segment: the program's sphere if it set one, else
// the cached bounds.
struct KeptVolume {
  Bounds box;
  std::optional<Segment::BoundingSphere> sphere;
};

KeptVolume Kept(const Segment& segment) { return KeptVolume{segment.ContentBounds(), segment.explicit_sphere()}; }

// The kept volume of a key: segments, shells and meshes keep one; other
// items answer nothing, silently, and so does every item while the
// "bounding volumes" system option is off.
Result<std::optional<KeptVolume>> KeptOfKey(Session& session, long long key) {
  auto item = session.database().FindItem(key);
  if (!item.ok()) return item.error();
  if (!graphics::BoundingVolumesOn()) return std::optional<KeptVolume>();
  if (item.value()->kind() == EntityKind::kSegment) {
    return std::optional<KeptVolume>(Kept(*static_cast<const Segment*>(item.value())));
  }
  if (item.value()->kind() == EntityKind::kGeometry) {
    const auto* geometry = static_cast<const Geometry*>(item.value());
    if (geometry->type() == GeometryType::kShell || geometry->type() == GeometryType::kMesh) {
      return std::optional<KeptVolume>(KeptVolume{geometry->ComputeBounds(), std::nullopt});
    }
  }
  return std::optional<KeptVolume>();
}

std::optional<KeptVolume> KeptOfCurrent(Session& session) {
  const Segment* segment = session.SegmentToRead();
  if (segment == nullptr || !graphics::BoundingVolumesOn()) return std::nullopt;
  return Kept(*segment);
}

bool ShowCuboid(const std::optional<KeptVolume>& kept, void* min, void* max) {
  if (!kept) return false;
  return WriteBox(kept->sphere ? CubeAround(*kept->sphere) : kept->box, min, max);
}

bool ShowSphere(const std::optional<KeptVolume>& kept, void* center, float* radius) {
  if (!kept) return false;
  if (kept->sphere) return WriteSphere(Sphere{kept->sphere->center, kept->sphere->radius}, center, radius);
  if (kept->box.empty()) return false;
  return WriteSphere(Enclosing(kept->box), center, radius);
}

Result<bool> ShowCuboidOfKey(Session& session, long long key, void* min, void* max) {
  auto kept = KeptOfKey(session, key);
  if (!kept.ok()) return kept.error();
  return ShowCuboid(kept.value(), min, max);
}

Result<bool> ShowSphereOfKey(Session& session, long long key, void* center, float* radius) {
  auto kept = KeptOfKey(session, key);
  if (!kept.ok()) return kept.error();
  return ShowSphere(kept.value(), center, radius);
}

// The immediate-mode forms answer as the plain ones; no renderer consults
// the rendition yet, but it must be given.
template <typename Show>
bool ShowDuringUpdate(const char* routine, HIC_Rendition const* nr, Show&& show) {
  return RunDuringUpdate(kBoundsAccess, routine, false, [&](Session& session) -> Result<bool> {
    auto required = Require(nr, "rendition");
    if (!required.ok()) return required.error();
    return show(session);
  });
}

}  // namespace

extern "C" bool HC_Compute_Circumcuboid(char const* segment, void* min, void* max) {
  return Run(kBoundsAccess, __func__, false, [&](Session& session) -> Result<bool> {
    auto box = BoundsOf(session, segment);
    if (!box.ok()) return box.error();
    return WriteBox(box.value(), min, max);
  });
}

extern "C" bool HC_Compute_Circumcuboid_By_Key(long long key, void* min, void* max) {
  return Run(kBoundsAccess, __func__, false, [&](Session& session) -> Result<bool> {
    auto box = BoundsOfKey(session, key);
    if (!box.ok()) return box.error();
    return WriteBox(box.value(), min, max);
  });
}

extern "C" bool HC_Compute_Circumsphere(char const* segment, void* center, float* radius) {
  return Run(kBoundsAccess, __func__, false, [&](Session& session) -> Result<bool> {
    auto box = BoundsOf(session, segment);
    if (!box.ok()) return box.error();
    return !box.value().empty() && WriteSphere(Enclosing(box.value()), center, radius);
  });
}

extern "C" bool HC_Compute_Circumsphere_By_Key(long long key, void* center, float* radius) {
  return Run(kBoundsAccess, __func__, false, [&](Session& session) -> Result<bool> {
    auto box = BoundsOfKey(session, key);
    if (!box.ok()) return box.error();
    return !box.value().empty() && WriteSphere(Enclosing(box.value()), center, radius);
  });
}

// "visibility" (the default) leaves out geometry that would not be drawn.
extern "C" bool HC_Filter_Circumcuboid(char const* segment, char const* options, void* min, void* max) {
  return Run(kBoundsAccess, __func__, false, [&](Session& session) -> Result<bool> {
    auto visible_only = ReadVisibilityFilter(options);
    if (!visible_only.ok()) return visible_only.error();
    auto box = BoundsOf(session, segment, visible_only.value());
    if (!box.ok()) return box.error();
    return WriteBox(box.value(), min, max);
  });
}

extern "C" bool HC_Filter_Circumcuboid_By_Key(long long key, char const* options, void* min, void* max) {
  return Run(kBoundsAccess, __func__, false, [&](Session& session) -> Result<bool> {
    auto visible_only = ReadVisibilityFilter(options);
    if (!visible_only.ok()) return visible_only.error();
    auto box = BoundsOfKey(session, key, visible_only.value());
    if (!box.ok()) return box.error();
    return WriteBox(box.value(), min, max);
  });
}

extern "C" bool HC_Show_Bounding_Cuboid(void* min, void* max) {
  return Run(kBoundsAccess, __func__, false,
             [&](Session& session) -> Result<bool> { return ShowCuboid(KeptOfCurrent(session), min, max); });
}

extern "C" bool HC_Show_Bounding_Cuboid_By_Key(long long key, void* min, void* max) {
  return Run(kBoundsAccess, __func__, false,
             [&](Session& session) { return ShowCuboidOfKey(session, key, min, max); });
}

extern "C" bool HC_Show_Bounding_Sphere(void* center, float* radius) {
  return Run(kBoundsAccess, __func__, false,
             [&](Session& session) -> Result<bool> { return ShowSphere(KeptOfCurrent(session), center, radius); });
}

extern "C" bool HC_Show_Bounding_Sphere_By_Key(long long key, void* center, float* radius) {
  return Run(kBoundsAccess, __func__, false,
             [&](Session& session) { return ShowSphereOfKey(session, key, center, radius); });
}

extern "C" bool HIC_Show_Bounding_Cuboid_By_Key(HIC_Rendition const* nr, long long key, void* min, void* max) {
  return ShowDuringUpdate(__func__, nr, [&](Session& session) { return ShowCuboidOfKey(session, key, min, max); });
}

extern "C" bool HIC_Show_Bounding_Sphere_By_Key(HIC_Rendition const* nr, long long key, void* center, float* radius) {
  return ShowDuringUpdate(__func__, nr,
                          [&](Session& session) { return ShowSphereOfKey(session, key, center, radius); });
}

// On the current segment; it lasts until something below changes.
extern "C" void HC_Set_Bounding_Sphere(void const* center, double radius) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto c = ReadPoint(center, "sphere centre");
    if (!c.ok()) return c.error();
    const float r = static_cast<float>(radius);
    if (!(std::isfinite(r) && r >= 0)) return Error(graphics::errc::kOutOfRange, "a radius must be finite and not negative");
    if (Segment* segment = session.SegmentToChange()) segment->SetExplicitSphere({c.value(), r});
    return Done{};
  });
}

extern "C" void HC_UnSet_Bounding_Volume(void) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    if (Segment* segment = session.SegmentToChange()) segment->UnSetExplicitSphere();
    return Done{};
  });
}
