#pragma once
// ZDbCamera: a camera as a plain value (where the eye is, what it looks at,
// which way is up, the visible field and the kind of projection) together
// with the view and projection matrices that follow from it. It lives in no
// database; ZDbAtCamera moves it into and out of a segment.
//
// Both matrix operations normalise the camera's own up vector in place, so
// they are not const and a caller sees the up vector at unit length after
// either of them.
#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_matrix.h"
#include "sceneward/geometry/zgeo_point.h"

class ZDbCamera {
 public:
  // Position (0, 0, -1) looking at the origin, up +Y, a field of 1 by 1,
  // "orthographic".
  ZDbCamera();
  ZDbCamera(ZGeoPoint const& position, ZGeoPoint const& target, ZGeoPoint const& upVector, float fieldWidth,
            float fieldHeight, ZString const& projection);

  // True if the field is at least 1e-6 in both directions (height tested
  // first; 1e-6 itself passes), the position differs from the target by
  // ZGeoPoint::Equals, the up vector is not zero within 0.0001, and the
  // projection is "orthographic" or "perspective" in any case. A default
  // camera is valid.
  bool IsValid() const;

  // The view matrix in the row-vector convention: rows 0 to 2 hold, as
  // columns, the camera's right (up x line of sight), its up vector and its
  // line of sight (from target towards position), and row 3 moves the
  // target, not the position, to the origin. The up vector is normalised
  // in place but not made perpendicular to the line of sight: a tilted up
  // vector goes into the matrix as it stands. A camera whose position equals
  // its target, or whose up vector is parallel to the line of sight, gives
  // zero rows in the matrix.
  ZGeoMatrix GetPositioningMatrix();
  // GetPositioningMatrix() followed by the field width and height on the
  // diagonal, the distance from position to target at (2, 2) and, for a
  // "perspective" projection in any case, at (2, 3) too; any other
  // projection text is treated as orthographic. The product is the graphics
  // library's, so the calling thread needs a registered manager.
  ZGeoMatrix GetProjectionMatrix();

  ZGeoPoint position;
  ZGeoPoint target;
  ZGeoPoint upVector;
  float fieldWidth;
  float fieldHeight;
  // "orthographic" or "perspective"; anything else makes the camera invalid.
  ZString projection;
};
