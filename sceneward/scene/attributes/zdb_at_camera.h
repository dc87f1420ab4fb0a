#pragma once
// ZDbAtCamera, the handle of a segment's camera ("camera"): whole cameras
// in and out as ZDbCamera values, single parts of them, and the camera's
// incremental motions, which the graphics library applies to the camera it
// holds.
//
// Setters and motions are guarded by the key alone: with key -1 they make
// no graphics call, and any other value, an empty projection text too, is
// passed on as it stands. Local reads also need a camera set on this very
// segment, except GetNearLimit. Net reads give the camera in force here,
// inherited or not. Numbers go to the graphics library as doubles.
#include <vector>

#include "sceneward/scene/attributes/zdb_camera.h"
#include "sceneward/scene/attributes/zdb_attribute.h"

class ZDbAtCamera : public ZDbAttribute {
 public:
  explicit ZDbAtCamera(ZDbEnSegment const& segment);

  void Set(ZDbCamera const& camera);
  // A camera that shows the box from (xMin, yMin) to (xMax, yMax).
  void SetByVolume(ZString const& projection, float xMin, float xMax, float yMin, float yMax);
  void SetPosition(ZGeoPoint const& point);
  void SetTarget(ZGeoPoint const& point);
  void SetUpVector(ZGeoPoint const& vector);
  void SetField(float width, float height);
  void SetProjection(ZString const& projection);
  void SetNearLimit(float limit);

  // The motions act on the camera that the graphics library holds for the
  // segment and take its angles, in degrees, unconverted.
  // Moves position and target together by `delta` in the camera's own
  // frame: x to its right, y along its up vector, z towards the target.
  void Dolly(ZGeoPoint const& delta);
  // Swings the position round the target at the same distance: first
  // `horizontal` degrees towards the camera's right, then `vertical`
  // degrees towards its up vector, which turns along.
  void Orbit(float horizontal, float vertical);
  // Turns the up vector about the line of sight by `angle` degrees.
  void Roll(float angle);

  // The local camera. Without one the default ZDbCamera comes back, which
  // is valid: ask IsAttributeSet to tell the two apart.
  ZDbCamera Get();
  // Parts of the local camera; (0, 0, 0) without one.
  ZGeoPoint GetPosition();
  ZGeoPoint GetTarget();
  ZGeoPoint GetUpVector();
  // The local near limit, asked of the graphics library whether or not a
  // camera is set here (it then answers 0); 0 for key -1.
  float GetNearLimit() const;

  // The camera in force when the scene is reached through `path`: this
  // segment first, then the segments of `path` in order, with no segment
  // opened. An empty path asks about this segment alone. The default
  // ZDbCamera for key -1.
  ZDbCamera GetNet(std::vector<ZDbEnSegment> const& path);
  // Parts of the camera in force on this segment: (0, 0, 0), an empty text
  // and 0 for key -1; GetNetField then leaves its outputs as they were.
  ZGeoPoint GetNetPosition();
  ZGeoPoint GetNetTarget();
  void GetNetField(float& width, float& height) const;
  ZString GetNetProjection();
  float GetNetNearLimit() const;
};
