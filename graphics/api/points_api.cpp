// Markers, polylines, polygons and ink: geometry that is a run of points.
#include <memory>
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "api/geometry_arguments.h"
#include "geometry/point_list.h"
#include "hc/hc.h"

using graphics::Done;
using graphics::Error;
using graphics::GeometryType;
using graphics::Point;
using graphics::PointList;
using graphics::Result;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::CheckRange;
using graphics::api::FindGeometryAs;
using graphics::api::InsertIntoCurrent;
using graphics::api::ReadPoints;
using graphics::api::Run;
using graphics::api::ToPoint;
using graphics::api::Write;
using graphics::api::WritePoint;
using graphics::api::WritePoints;

namespace {

Result<PointList*> FindList(Session& session, long long key, GeometryType type) {
  return FindGeometryAs<PointList>(session, key, {type}, graphics::GeometryTypeWord(type));
}

// The count, then the points, of a polyline or polygon.
void ShowPoints(const char* routine, GeometryType type, long long key, int* count, void* points) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    auto found = FindList(session, key, type);
    if (!found.ok()) return found.error();
    Write(count, found.value()->signed_count());
    WritePoints(points, found.value()->points());
    return Done{};
  });
}

void ShowPartial(const char* routine, GeometryType type, long long key, int offset, int count, void* points) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    auto found = FindList(session, key, type);
    if (!found.ok()) return found.error();
    const auto& all = found.value()->points();
    auto inside = CheckRange(offset, count, all.size(), "points");
    if (!inside.ok()) return inside;
    WritePoints(points, std::span<const Point>(all).subspan(static_cast<size_t>(offset), static_cast<size_t>(count)));
    return Done{};
  });
}

}  // namespace

extern "C" long long HC_Insert_Marker(double x, double y, double z) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto at = ToPoint(x, y, z, "marker position");
    if (!at.ok()) return at.error();
    return InsertIntoCurrent(session, std::make_unique<PointList>(GeometryType::kMarker, std::vector{at.value()}));
  });
}

extern "C" void HC_Show_Marker(long long key, float* x, float* y, float* z) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindList(session, key, GeometryType::kMarker);
    if (!found.ok()) return found.error();
    WritePoint(x, y, z, found.value()->points().front());
    return Done{};
  });
}

// A negative even count draws separate two-point pieces.
extern "C" long long HC_Insert_Polyline(int count, void const* points) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    const bool disjoint = count < 0;
    if (disjoint && count % 2 != 0) return Error(graphics::errc::kOutOfRange, "a negative polyline count must be even");
    auto read = ReadPoints(points, disjoint ? -count : count, "polyline points");
    if (!read.ok()) return read.error();
    if (read.value().size() < 2) return Error(graphics::errc::kOutOfRange, "a polyline needs two points");
    auto item = std::make_unique<PointList>(GeometryType::kPolyline, std::move(read.value()), disjoint);
    return InsertIntoCurrent(session, std::move(item));
  });
}

// A last point equal to the first is dropped: polygons close themselves.
extern "C" long long HC_Insert_Polygon(int count, void const* points) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto read = ReadPoints(points, count, "polygon points");
    if (!read.ok()) return read.error();
    std::vector<Point>& corners = read.value();
    if (corners.size() > 1 && corners.back() == corners.front()) corners.pop_back();
    if (corners.empty()) return Error(graphics::errc::kOutOfRange, "a polygon needs a point");
    return InsertIntoCurrent(session, std::make_unique<PointList>(GeometryType::kPolygon, std::move(corners)));
  });
}

extern "C" void HC_Show_Polyline_Count(long long key, int* count) {
  ShowPoints(__func__, GeometryType::kPolyline, key, count, nullptr);
}
extern "C" void HC_Show_Polyline(long long key, int* count, void* points) {
  ShowPoints(__func__, GeometryType::kPolyline, key, count, points);
}
extern "C" void HC_Show_Polygon_Count(long long key, int* count) {
  ShowPoints(__func__, GeometryType::kPolygon, key, count, nullptr);
}
extern "C" void HC_Show_Polygon(long long key, int* count, void* points) {
  ShowPoints(__func__, GeometryType::kPolygon, key, count, points);
}
extern "C" void HC_Show_Partial_Polyline(long long key, int offset, int count, void* points) {
  ShowPartial(__func__, GeometryType::kPolyline, key, offset, count, points);
}
extern "C" void HC_Show_Partial_Polygon(long long key, int offset, int count, void* points) {
  ShowPartial(__func__, GeometryType::kPolygon, key, offset, count, points);
}

// Offset -1 means the end; at least two points must remain.
extern "C" void HC_Edit_Polyline(long long key, int offset, int ndelete, int insert, void const* points) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto found = FindList(session, key, GeometryType::kPolyline);
    if (!found.ok()) return found.error();
    PointList& list = *found.value();
    const long long at = offset == -1 ? static_cast<long long>(list.points().size()) : offset;
    auto inside = CheckRange(at, ndelete, list.points().size(), "deleted points");
    if (!inside.ok()) return inside;
    auto read = ReadPoints(points, insert, "inserted points");
    if (!read.ok()) return read.error();
    if (list.points().size() - static_cast<size_t>(ndelete) + read.value().size() < 2) {
      return Error(graphics::errc::kOutOfRange, "a polyline needs two points");
    }
    list.Edit(static_cast<size_t>(at), static_cast<size_t>(ndelete), read.value());
    return Done{};
  });
}

// The segment's ink polyline grows by one point; the first call, and the
// first after a restart, starts a new one.
extern "C" long long HC_Insert_Ink(double x, double y, double z) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto at = ToPoint(x, y, z, "ink position");
    if (!at.ok()) return at.error();
    graphics::Segment* segment = session.SegmentToChange();
    if (segment == nullptr) return -1LL;
    graphics::Entity* current = session.database().Find(segment->ink_key());
    if (current != nullptr && current->owner() == segment) {
      static_cast<PointList*>(current)->Append(at.value());
      return current->key();
    }
    const long long key = InsertIntoCurrent(session, std::make_unique<PointList>(GeometryType::kPolyline,
                                                                                std::vector{at.value()}));
    segment->set_ink_key(key);
    return key;
  });
}

extern "C" void HC_Restart_Ink(void) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    if (graphics::Segment* segment = session.SegmentToChange()) segment->set_ink_key(0);
    return Done{};
  });
}
