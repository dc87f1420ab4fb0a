#pragma once
// Positions as the engine stores them: single precision, like the float
// triples of the C interface.
#include <cmath>

namespace graphics {

struct Point {
  float x = 0;
  float y = 0;
  float z = 0;

  bool operator==(const Point&) const = default;
};

inline bool IsFinite(const Point& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

}  // namespace graphics
