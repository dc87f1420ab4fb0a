// The current segment's polygonal clip region and text region, and the
// drawing priority of any item.
#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "api/arguments.h"
#include "api/call.h"
#include "api/local_value_calls.h"
#include "attributes/priorities.h"
#include "attributes/regions.h"
#include "hc/hc.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;

namespace {

Result<std::vector<Point>> Points(int count, const void* points) {
  auto required = api::Require(points, "points");
  if (!required.ok()) return required.error();
  std::vector<Point> out;
  const auto* f = static_cast<const float*>(points);
  for (int i = 0; i < count; ++i) {
    const Point p{f[3 * i], f[3 * i + 1], f[3 * i + 2]};
    if (!IsFinite(p)) return Error(errc::kOutOfRange, "region points must be finite");
    out.push_back(p);
  }
  return out;
}

void WritePoints(void* out, const std::vector<Point>& points) {
  if (out == nullptr) return;
  auto* f = static_cast<float*>(out);
  for (const Point& p : points) *f++ = p.x, *f++ = p.y, *f++ = p.z;
}

// An item's rank among its siblings of the same list, from 0.
template <typename List>
int RankIn(const List& list, const Entity* item) {
  int rank = 0;
  for (const auto& sibling : list) {
    if (&sibling == item) return rank;
    ++rank;
  }
  return 0;
}

}  // namespace

extern "C" void HC_Set_Polygonal_Clip_Region(int count, void const* points, char const* options) {
  api::SetLocal<ClipRegion>(__func__, [&]() -> Result<PointRegion> {
    if (count < 3) return Error(errc::kOutOfRange, "a clip region needs at least 3 points");
    auto required = api::Require(options, "options");
    if (!required.ok()) return required.error();
    auto corners = Points(count, points);
    if (!corners.ok()) return corners.error();
    auto canonical = ParseClipOptions(options);
    if (!canonical.ok()) return canonical.error();
    PointRegion region;
    region.points = std::move(corners.value());
    region.options = std::move(canonical.value());
    return region;
  });
}

extern "C" void HC_Show_Clip_Region_Size(int* loops, int* total, char* options) {
  api::ShowLocal<ClipRegion>(__func__, [&](const PointRegion& region) {
    api::Write(loops, 1);
    api::Write(total, static_cast<int>(region.points.size()));
    api::WriteString(options, region.options);
  });
}

extern "C" void HC_Show_Clip_Region(int* loops, int* loop_sizes, void* points, char* options) {
  api::ShowLocal<ClipRegion>(__func__, [&](const PointRegion& region) {
    api::Write(loops, 1);
    api::Write(loop_sizes, static_cast<int>(region.points.size()));
    WritePoints(points, region.points);
    api::WriteString(options, region.options);
  });
}

extern "C" void HC_UnSet_Clip_Region(void) { api::UnSetLocal<ClipRegion>(__func__); }

// Set on a segment, the region is the default for the segment's texts; 0
// points removes it.
extern "C" void HC_Set_Text_Region(int count, void const* points, char const* options) {
  if (count == 0) return api::UnSetLocal<TextRegion>(__func__);
  api::SetLocal<TextRegion>(__func__, [&]() -> Result<PointRegion> {
    if (count != 2 && count != 3) return Error(errc::kOutOfRange, "a text region takes 2 or 3 points");
    auto required = api::Require(options, "options");
    if (!required.ok()) return required.error();
    auto corners = Points(count, points);
    if (!corners.ok()) return corners.error();
    auto canonical = ParseTextRegionOptions(options);
    if (!canonical.ok()) return canonical.error();
    PointRegion region;
    region.points = std::move(corners.value());
    region.options = std::move(canonical.value());
    return region;
  });
}

extern "C" void HC_Show_Text_Region(int* count, void* points, char* options) {
  api::ShowLocal<TextRegion>(__func__, [&](const PointRegion& region) {
    api::Write(count, static_cast<int>(region.points.size()));
    WritePoints(points, region.points);
    api::WriteString(options, region.options);
  });
}

extern "C" void HC_Set_Priority(long long key, int priority) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto item = session.database().FindItem(key);
    if (!item.ok()) return item.error();
    Priorities()[key] = priority;
    return Done{};
  });
}

// Not set explicitly: false and the item's rank in creation order among its
// siblings of the same kind.
extern "C" bool HC_Show_Priority(long long key, int* priority) {
  return Run(Access::kRead, __func__, false, [&](Session& session) -> Result<bool> {
    auto item = session.database().FindItem(key);
    if (!item.ok()) return item.error();
    if (const auto found = Priorities().find(key); found != Priorities().end()) {
      api::Write(priority, found->second);
      return true;
    }
    const Entity* entity = item.value();
    const Segment* owner = entity->owner();
    int rank = 0;
    if (owner != nullptr) {
      switch (entity->kind()) {
        case EntityKind::kSegment:
          rank = RankIn(owner->children(), entity);
          break;
        case EntityKind::kGeometry:
          rank = RankIn(owner->geometry(), entity);
          break;
        case EntityKind::kInclude:
          rank = RankIn(owner->includes(), entity);
          break;
        case EntityKind::kStyle:
          rank = RankIn(owner->styles(), entity);
          break;
      }
    }
    api::Write(priority, rank);
    return false;
  });
}
