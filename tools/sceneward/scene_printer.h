#pragma once
#include <cstdio>

#include "sceneward/scene/entities/zdb_en_segment.h"

namespace tool {

// Prints the tree below and including `root`, read back through the
// library's handles: each segment's path indented by depth, the attributes
// set on it locally (colour, camera, modelling matrix, user options), then
// its geometry as the database holds it, and last the extent of the whole
// tree.
void PrintSegmentTree(ZDbEnSegment const& root, std::FILE* out);

}  // namespace tool
