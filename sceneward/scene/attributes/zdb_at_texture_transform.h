#pragma once
// ZDbAtTextureTransform, the handle of a segment's texture matrix ("texture
// matrix"): the same calls as ZDbAtTransform makes on the modelling matrix,
// applied to texture coordinates, plus Append. Its net read has no path
// form: it gives the matrix in force on this segment through its owners.
//
// Setters and moves are guarded by the key alone and make no graphics call
// for key -1. Get and UnSet also need a matrix set on this very segment.
// A failed guard gives the identity.
#include "sceneward/scene/attributes/zdb_attribute.h"

class ZDbAtTextureTransform : public ZDbAttribute {
 public:
  explicit ZDbAtTextureTransform(ZDbEnSegment const& segment);

  void Set(ZGeoMatrix const& matrix);
  // The segment's texture matrix followed by `matrix`.
  void Append(ZGeoMatrix const& matrix);
  void UnSet();
  ZGeoMatrix Get();
  // Rotations in degrees about U, then V, then W.
  void Rotate(float x, float y, float z);
  void Scale(float x, float y, float z);
  void Translate(ZGeoPoint const& offset);

  ZGeoMatrix GetNet();
};
