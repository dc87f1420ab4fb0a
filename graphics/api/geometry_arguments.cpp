#include "api/geometry_arguments.h"

#include <cmath>
#include <cstring>
#include <string>

namespace graphics::api {

namespace {

// Point arrays are read and written as the interface's float triples.
static_assert(sizeof(Point) == 3 * sizeof(float));

Error NotFinite(std::string_view what) {
  return Error(errc::kOutOfRange, std::string(what) + " holds a value that is not finite in single precision");
}

}  // namespace

Result<std::vector<Point>> ReadPoints(const void* points, int count, std::string_view what) {
  if (count < 0) return Error(errc::kOutOfRange, "negative count of " + std::string(what));
  if (count > 0 && points == nullptr) return Error(errc::kNullArgument, "null " + std::string(what));
  std::vector<Point> read(static_cast<size_t>(count));
  if (count > 0) std::memcpy(read.data(), points, read.size() * sizeof(Point));
  for (const Point& p : read) {
    if (!IsFinite(p)) return NotFinite(what);
  }
  return read;
}

Result<Point> ReadPoint(const void* point, std::string_view what) {
  auto read = ReadPoints(point, 1, what);
  if (!read.ok()) return read.error();
  return read.value()[0];
}

Result<std::vector<float>> ReadFloats(const float* values, int count, std::string_view what) {
  if (count < 0) return Error(errc::kOutOfRange, "negative count of " + std::string(what));
  if (count > 0 && values == nullptr) return Error(errc::kNullArgument, "null " + std::string(what));
  std::vector<float> read(values, values + count);
  for (float v : read) {
    if (!std::isfinite(v)) return NotFinite(what);
  }
  return read;
}

void WritePoints(void* out, std::span<const Point> points) {
  if (out != nullptr && !points.empty()) std::memcpy(out, points.data(), points.size_bytes());
}

Result<Geometry*> FindGeometryOf(Session& session, long long key, std::initializer_list<GeometryType> types,
                                 std::string_view expected) {
  auto item = session.database().FindItem(key);
  if (!item.ok()) return item.error();
  Entity* entity = item.value();
  if (entity->kind() == EntityKind::kGeometry) {
    auto* geometry = static_cast<Geometry*>(entity);
    for (GeometryType type : types) {
      if (geometry->type() == type) return geometry;
    }
  }
  return Error(errc::kWrongKeyKind, "key " + std::to_string(key) + " does not refer to a " + std::string(expected) +
                                        " but to a " + std::string(entity->TypeWord()));
}

long long InsertIntoCurrent(Session& session, std::unique_ptr<Geometry> item) {
  Segment* segment = session.SegmentToChange();
  if (segment == nullptr) return -1;
  return session.database().Insert(*segment, std::move(item)).key();
}

Status CheckRange(long long offset, long long count, size_t size, std::string_view what) {
  if (offset < 0 || count < 0 || offset + count > static_cast<long long>(size)) {
    return Error(errc::kOutOfRange, std::string(what) + " " + std::to_string(offset) + " + " + std::to_string(count) +
                                        " lies outside the " + std::to_string(size) + " there are");
  }
  return Done{};
}

}  // namespace graphics::api
