#include "sceneward/scene/attributes/zdb_camera.h"

namespace {

// The smallest field side accepted. Compared in double precision, but
// against the float nearest to 1e-6, so that a field set to 1e-6 passes.
constexpr double kMinimumFieldSide = 1e-6f;

bool IsProjection(ZString const& text, char const* name) { return text.CompareNoCase(ZString(name)) == 0; }

}  // namespace

ZDbCamera::ZDbCamera()
    : ZDbCamera(ZGeoPoint(0, 0, -1), ZGeoPoint(0, 0, 0), ZGeoPoint(0, 1, 0), 1, 1, ZString("orthographic")) {}

ZDbCamera::ZDbCamera(ZGeoPoint const& position, ZGeoPoint const& target, ZGeoPoint const& upVector,
                     float fieldWidth, float fieldHeight, ZString const& projection)
    : position(position),
      target(target),
      upVector(upVector),
      fieldWidth(fieldWidth),
      fieldHeight(fieldHeight),
      projection(projection) {}

bool ZDbCamera::IsValid() const {
  if (!(static_cast<double>(fieldHeight) >= kMinimumFieldSide)) return false;
  if (!(static_cast<double>(fieldWidth) >= kMinimumFieldSide)) return false;
  if (position.Equals(target, ZGeoPoint::kDefaultUlps)) return false;
  if (upVector.IsZero(ZGeoPoint::kDefaultDirectionTolerance)) return false;
  return IsProjection(projection, "orthographic") || IsProjection(projection, "perspective");
}

ZGeoMatrix ZDbCamera::GetPositioningMatrix() {
  const ZGeoPoint sight = position.Subtract(target).Direction();
  upVector.Normalize();
  const ZGeoPoint up = upVector;
  const ZGeoPoint right = up.Cross(sight).Direction();

  ZGeoMatrix view;
  const ZGeoPoint axes[3] = {right, up, sight};
  for (int column = 0; column < 3; ++column) {
    view.SetAt(0, column, axes[column].x);
    view.SetAt(1, column, axes[column].y);
    view.SetAt(2, column, axes[column].z);
    view.SetAt(3, column, -target.Dot(axes[column]));
  }
  return view;
}

ZGeoMatrix ZDbCamera::GetProjectionMatrix() {
  const float zeros[16] = {};
  ZGeoMatrix projectionMatrix(zeros);
  projectionMatrix.SetAt(3, 3, 1.0f);
  projectionMatrix.SetAt(0, 0, fieldWidth);
  projectionMatrix.SetAt(1, 1, fieldHeight);
  const float distance = target.Subtract(position).Length();
  projectionMatrix.SetAt(2, 2, distance);
  if (IsProjection(projection, "perspective")) projectionMatrix.SetAt(2, 3, distance);
  return GetPositioningMatrix().Product(projectionMatrix);
}
