#include "sceneward/scene/attributes/zdb_at_transform.h"

#include "sceneward/frame/thread_registry.h"

ZDbAtTransform ZDbEnSegment::Transform() const { return ZDbAtTransform(*this); }

ZDbAtTransform::ZDbAtTransform(ZDbEnSegment const& segment)
    : ZDbAttribute(kAttributeTransform, segment, "modelling matrix") {}

void ZDbAtTransform::Set(ZGeoMatrix const& matrix) { SetMatrix(&ZelmoSceneward::HC_Set_Modelling_Matrix, matrix); }

void ZDbAtTransform::UnSet() { UnSetLocal(&ZelmoSceneward::HC_UnSet_Modelling_Matrix); }

ZGeoMatrix ZDbAtTransform::Get() { return ShowMatrix(&ZelmoSceneward::HC_Show_Modelling_Matrix); }

void ZDbAtTransform::Rotate(float x, float y, float z) { SetTriple(&ZelmoSceneward::HC_Rotate_Object, x, y, z); }

void ZDbAtTransform::Scale(float x, float y, float z) { SetTriple(&ZelmoSceneward::HC_Scale_Object, x, y, z); }

void ZDbAtTransform::Translate(ZGeoPoint const& offset) {
  SetTriple(&ZelmoSceneward::HC_Translate_Object, offset.x, offset.y, offset.z);
}

ZGeoMatrix ZDbAtTransform::GetNet(std::vector<ZDbEnSegment> const& path) {
  if (!GetEntity().IsValid()) return ZGeoMatrix();
  std::vector<long long> ids;
  GetSegmentIDs(ids, path);
  return GetAlongPath(static_cast<int>(ids.size()), ids.data());
}

ZGeoMatrix ZDbAtTransform::GetAlongPath(int count, long long const* keys) {
  ZGeoMatrix result;
  CurrentManager()->HC_PShow_Net_Modelling_Matrix(count, keys, result);
  return result;
}

ZGeoMatrix ZDbAtTransform::ComputeOffaxisRotation(ZGeoPoint const& axis, float angle) {
  ZGeoMatrix result;
  CurrentManager()->HC_Compute_Offaxis_Rotation(axis.x, axis.y, axis.z, angle, result);
  return result;
}
