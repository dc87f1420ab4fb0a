#pragma once
// Argument handling shared by the computation functions, which take no
// engine lock: required inputs are checked and reported here, and point
// triples are read and written through untyped pointers.
#include <cstring>
#include <initializer_list>
#include <utility>

#include "api/arguments.h"
#include "api/call.h"
#include "math/point.h"

namespace graphics::api {

// Whether every input is there; the first missing one is reported under
// `routine` and the call does nothing more.
inline bool InputsPresent(const char* routine, std::initializer_list<std::pair<const void*, const char*>> inputs) {
  for (const auto& [pointer, what] : inputs) {
    const Status required = Require(pointer, what);
    if (!required.ok()) {
      ReportIfFailed(required, routine);
      return false;
    }
  }
  return true;
}

// Point arrays cross the interface as packed float triples.
static_assert(sizeof(Point) == 3 * sizeof(float));

inline Point ReadPoint(const void* points, int index = 0) {
  Point p;
  std::memcpy(&p, static_cast<const unsigned char*>(points) + index * sizeof(Point), sizeof(Point));
  return p;
}

inline void WritePointAt(void* points, const Point& p, int index = 0) {
  std::memcpy(static_cast<unsigned char*>(points) + index * sizeof(Point), &p, sizeof(Point));
}

}  // namespace graphics::api
