#pragma once
// ZDbAtTransform, the handle of a segment's modelling matrix ("modelling
// matrix"): the matrix in and out as a ZGeoMatrix, the graphics library's
// incremental moves, and the matrix in force along an include path.
//
// Setters and moves are guarded by the key alone and make no graphics call
// for key -1. Get and UnSet also need a matrix set on this very segment.
// Every matrix that comes back starts as the identity, so a failed guard
// gives the identity. The moves accumulate in the graphics library, each
// after what is there already; the handle keeps nothing.
#include <vector>

#include "sceneward/scene/attributes/zdb_attribute.h"

class ZDbAtTransform : public ZDbAttribute {
 public:
  explicit ZDbAtTransform(ZDbEnSegment const& segment);

  void Set(ZGeoMatrix const& matrix);
  void UnSet();
  ZGeoMatrix Get();
  // Rotations in degrees about X, then Y, then Z.
  void Rotate(float x, float y, float z);
  void Scale(float x, float y, float z);
  void Translate(ZGeoPoint const& offset);

  // The product of the modelling matrices from this segment up to the root
  // when the scene is reached through `path`: this segment first, then the
  // segments of `path` in order, with no segment opened. An empty path asks
  // about this segment alone.
  ZGeoMatrix GetNet(std::vector<ZDbEnSegment> const& path);

  // The same for a key path the caller has built, the segment of interest
  // first; no guard.
  static ZGeoMatrix GetAlongPath(int count, long long const* keys);
  // The rotation by `angle` degrees about `axis` through the origin, as the
  // graphics library computes it; no segment is involved, but the calling
  // thread needs a registered manager.
  static ZGeoMatrix ComputeOffaxisRotation(ZGeoPoint const& axis, float angle);
};
