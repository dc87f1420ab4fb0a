#include "sceneward/scene/attributes/zdb_at_camera.h"

#include "sceneward/frame/thread_registry.h"

ZDbAtCamera ZDbEnSegment::Camera() const { return ZDbAtCamera(*this); }

ZDbAtCamera::ZDbAtCamera(ZDbEnSegment const& segment)
    : ZDbAttribute(kAttributeCamera, segment, "camera") {}

void ZDbAtCamera::Set(ZDbCamera const& camera) {
  if (!GetEntity().IsValid()) return;
  OpenSegment();
  CurrentManager()->HC_Set_Camera(&camera.position, &camera.target, &camera.upVector, camera.fieldWidth,
                                  camera.fieldHeight, camera.projection.GetAsMBCS());
  CloseSegment();
}

void ZDbAtCamera::SetByVolume(ZString const& projection, float xMin, float xMax, float yMin, float yMax) {
  if (!GetEntity().IsValid()) return;
  OpenSegment();
  CurrentManager()->HC_Set_Camera_By_Volume(projection.GetAsMBCS(), xMin, xMax, yMin, yMax);
  CloseSegment();
}

void ZDbAtCamera::SetPosition(ZGeoPoint const& point) {
  SetTriple(&ZelmoSceneward::HC_Set_Camera_Position, point.x, point.y, point.z);
}

void ZDbAtCamera::SetTarget(ZGeoPoint const& point) {
  SetTriple(&ZelmoSceneward::HC_Set_Camera_Target, point.x, point.y, point.z);
}

void ZDbAtCamera::SetUpVector(ZGeoPoint const& vector) {
  SetTriple(&ZelmoSceneward::HC_Set_Camera_Up_Vector, vector.x, vector.y, vector.z);
}

void ZDbAtCamera::SetField(float width, float height) {
  if (!GetEntity().IsValid()) return;
  OpenSegment();
  CurrentManager()->HC_Set_Camera_Field(width, height);
  CloseSegment();
}

void ZDbAtCamera::SetProjection(ZString const& projection) {
  SetAnyText(&ZelmoSceneward::HC_Set_Camera_Projection, projection);
}

void ZDbAtCamera::SetNearLimit(float limit) {
  if (!GetEntity().IsValid()) return;
  OpenSegment();
  CurrentManager()->HC_Set_Camera_Near_Limit(limit);
  CloseSegment();
}

void ZDbAtCamera::Dolly(ZGeoPoint const& delta) {
  SetTriple(&ZelmoSceneward::HC_Dolly_Camera, delta.x, delta.y, delta.z);
}

void ZDbAtCamera::Orbit(float horizontal, float vertical) {
  if (!GetEntity().IsValid()) return;
  OpenSegment();
  CurrentManager()->HC_Orbit_Camera(horizontal, vertical);
  CloseSegment();
}

void ZDbAtCamera::Roll(float angle) {
  if (!GetEntity().IsValid()) return;
  OpenSegment();
  CurrentManager()->HC_Roll_Camera(angle);
  CloseSegment();
}

ZDbCamera ZDbAtCamera::Get() {
  ZDbCamera camera;
  if (!IsSetLocally()) return camera;
  OpenSegment();
  CurrentManager()->HC_Show_Camera(&camera.position, &camera.target, &camera.upVector, &camera.fieldWidth,
                                   &camera.fieldHeight, camera.projection);
  CloseSegment();
  return camera;
}

ZGeoPoint ZDbAtCamera::GetPosition() { return ShowPoint(&ZelmoSceneward::HC_Show_Camera_Position); }

ZGeoPoint ZDbAtCamera::GetTarget() { return ShowPoint(&ZelmoSceneward::HC_Show_Camera_Target); }

ZGeoPoint ZDbAtCamera::GetUpVector() { return ShowPoint(&ZelmoSceneward::HC_Show_Camera_Up_Vector); }

float ZDbAtCamera::GetNearLimit() const {
  float limit = 0.0f;
  if (!GetEntity().IsValid()) return limit;
  OpenSegment();
  CurrentManager()->HC_Show_Camera_Near_Limit(&limit);
  CloseSegment();
  return limit;
}

ZDbCamera ZDbAtCamera::GetNet(std::vector<ZDbEnSegment> const& path) {
  ZDbCamera camera;
  if (!GetEntity().IsValid()) return camera;
  std::vector<long long> ids;
  GetSegmentIDs(ids, path);
  CurrentManager()->HC_PShow_Net_Camera(static_cast<int>(ids.size()), ids.data(), &camera.position,
                                        &camera.target, &camera.upVector, &camera.fieldWidth,
                                        &camera.fieldHeight, camera.projection);
  return camera;
}

ZGeoPoint ZDbAtCamera::GetNetPosition() { return ShowNetPoint(&ZelmoSceneward::HC_PShow_Net_Camera_Position); }

ZGeoPoint ZDbAtCamera::GetNetTarget() { return ShowNetPoint(&ZelmoSceneward::HC_PShow_Net_Camera_Target); }

void ZDbAtCamera::GetNetField(float& width, float& height) const {
  if (!GetEntity().IsValid()) return;
  OpenSegment();
  CurrentManager()->HC_PShow_Net_Camera_Field(0, nullptr, &width, &height);
  CloseSegment();
}

ZString ZDbAtCamera::GetNetProjection() {
  ZString projection;
  if (!GetEntity().IsValid()) return projection;
  OpenSegment();
  CurrentManager()->HC_PShow_Net_Camera_Projection(0, nullptr, projection);
  CloseSegment();
  return projection;
}

float ZDbAtCamera::GetNetNearLimit() const {
  float limit = 0.0f;
  if (!GetEntity().IsValid()) return limit;
  OpenSegment();
  CurrentManager()->HC_PShow_Net_Camera_Near_Limit(0, nullptr, &limit);
  CloseSegment();
  return limit;
}
