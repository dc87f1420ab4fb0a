#pragma once
// Keeping one axis of an extent ordered (low <= high) while either side is
// set: a side set beyond the other one swaps them.
#include <algorithm>

namespace sceneward::geometry {

// low = v, or, when v is above high, low = old high and high = v.
inline void SetLowSide(float& low, float& high, float v) {
  if (v > high) {
    low = high;
    high = v;
  } else {
    low = v;
  }
}

// high = v, or, when v isn't at least low, high = old low and low = v.
inline void SetHighSide(float& low, float& high, float v) {
  if (!(v >= low)) {
    high = low;
    low = v;
  } else {
    high = v;
  }
}

// The two ends of an axis from two coordinates in any order.
inline void SetSorted(float& low, float& high, float a, float b) {
  low = std::min(a, b);
  high = std::max(a, b);
}

// An axis of `size` (taken as its magnitude) centred on `center`.
inline void SetCentered(float& low, float& high, float center, float size) {
  const float extent = size < 0 ? -size : size;
  low = center - extent * 0.5f;
  high = low + extent;
}

// Widens an axis to take in `v`.
inline void Include(float& low, float& high, float v) {
  low = std::min(low, v);
  high = std::max(high, v);
}

}  // namespace sceneward::geometry
