#pragma once
// The graphics library's point record as its callers hold it: three floats,
// x, y, z, packed like the engine's point triples.
struct HPoint {
  float x = 0;
  float y = 0;
  float z = 0;
};
