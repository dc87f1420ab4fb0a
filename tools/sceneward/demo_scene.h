#pragma once
// The built-in demo scene: a frame, two parts (a circle with a cross, a cube
// moved to the right), and labels, with colours and a camera, built through
// the library's segment and entity handles on the current thread's manager.
#include "sceneward/scene/entities/zdb_en_segment.h"

namespace tool {

// Builds the scene under "/demo" and returns that segment. Building twice
// adds the geometry again.
ZDbEnSegment BuildDemoScene();

}  // namespace tool
