#pragma once
// Reading and writing the point arrays of the geometry calls, finding a
// geometry item of the kinds a call accepts, and placing a new item.
#include <initializer_list>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "errors/error.h"
#include "geometry/geometry.h"
#include "math/point.h"
#include "session/session.h"

namespace graphics::api {

// `count` float triples from `points`, each finite. A negative count, or a
// null pointer with a positive count, is an error naming `what`.
Result<std::vector<Point>> ReadPoints(const void* points, int count, std::string_view what);
// One float triple; null is an error.
Result<Point> ReadPoint(const void* point, std::string_view what);
// `count` floats, each finite; null with a positive count is an error.
Result<std::vector<float>> ReadFloats(const float* values, int count, std::string_view what);

// Writes the points as float triples; a null `out` is skipped.
void WritePoints(void* out, std::span<const Point> points);

// The geometry item of `key`, which must be of one of `types`; `expected`
// names them in the error.
Result<Geometry*> FindGeometryOf(Session& session, long long key, std::initializer_list<GeometryType> types,
                                 std::string_view expected);

template <typename T>
Result<T*> FindGeometryAs(Session& session, long long key, std::initializer_list<GeometryType> types,
                          std::string_view expected) {
  auto found = FindGeometryOf(session, key, types, expected);
  if (!found.ok()) return found.error();
  return static_cast<T*>(found.value());
}

// Inserts `item` into the current segment and gives its key; -1, silently,
// under a dead frame.
long long InsertIntoCurrent(Session& session, std::unique_ptr<Geometry> item);

// Checks that [offset, offset + count) lies inside [0, size).
Status CheckRange(long long offset, long long count, size_t size, std::string_view what);

}  // namespace graphics::api
