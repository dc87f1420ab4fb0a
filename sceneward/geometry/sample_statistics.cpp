#include "sceneward/geometry/sample_statistics.h"

#include <algorithm>

namespace sceneward::geometry {

float SortAndTakeMedian(std::vector<float>& values) {
  std::sort(values.begin(), values.end());
  return values.empty() ? 0.0f : values[values.size() / 2];
}

float SortAndTakeModeOrMedian(std::vector<float>& values, int minCount) {
  const float median = SortAndTakeMedian(values);
  float current = 0.0f;
  int run = 0;
  float best = 0.0f;
  int bestRun = 0;
  for (float v : values) {
    if (v != current) {
      current = v;
      run = 1;
    } else {
      ++run;
    }
    if (run > bestRun) {
      bestRun = run;
      best = current;
    }
  }
  return bestRun >= minCount ? best : median;
}

}  // namespace sceneward::geometry
