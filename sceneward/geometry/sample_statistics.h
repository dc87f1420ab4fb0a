#pragma once
// Robust estimates over samples of floats, for the circle recogniser.
#include <vector>

namespace sceneward::geometry {

// Sorts `values` ascending and returns its element size / 2 (the upper
// median for an even count, without averaging). 0 for an empty list.
float SortAndTakeMedian(std::vector<float>& values);

// Sorts `values` ascending. Returns the exact value that occurs most often
// if it occurs at least `minCount` times (the smaller value wins a tie),
// and otherwise the median as SortAndTakeMedian gives it.
float SortAndTakeModeOrMedian(std::vector<float>& values, int minCount);

}  // namespace sceneward::geometry
