#pragma once
// The built-in demo scene: a few segments with lines and texts, built
// through the current thread's manager.
#include <vector>

namespace tool {

// What was built: each segment with its depth below the scene's top and the
// keys of the geometry inserted into it, parents before children.
struct BuiltSegment {
  long long key;
  int depth;
  std::vector<long long> geometry;
};

std::vector<BuiltSegment> BuildDemoScene();

}  // namespace tool
