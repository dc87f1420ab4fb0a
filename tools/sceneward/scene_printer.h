#pragma once
#include <cstdio>
#include <vector>

#include "tools/sceneward/demo_scene.h"

namespace tool {

// Prints each segment's full path, indented by depth, followed by its
// geometry as the graphics database shows it back.
void PrintSegmentTree(const std::vector<BuiltSegment>& segments, std::FILE* out);

}  // namespace tool
