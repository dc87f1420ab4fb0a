#include "sceneward/scene/attributes/zdb_at_texture_transform.h"

#include "sceneward/frame/thread_registry.h"

ZDbAtTextureTransform ZDbEnSegment::TextureTransform() const { return ZDbAtTextureTransform(*this); }

ZDbAtTextureTransform::ZDbAtTextureTransform(ZDbEnSegment const& segment)
    : ZDbAttribute(kAttributeTextureTransform, segment, "texture matrix") {}

void ZDbAtTextureTransform::Set(ZGeoMatrix const& matrix) {
  SetMatrix(&ZelmoSceneward::HC_Set_Texture_Matrix, matrix);
}

void ZDbAtTextureTransform::Append(ZGeoMatrix const& matrix) {
  SetMatrix(&ZelmoSceneward::HC_Append_Texture_Matrix, matrix);
}

void ZDbAtTextureTransform::UnSet() { UnSetLocal(&ZelmoSceneward::HC_UnSet_Texture_Matrix); }

ZGeoMatrix ZDbAtTextureTransform::Get() { return ShowMatrix(&ZelmoSceneward::HC_Show_Texture_Matrix); }

void ZDbAtTextureTransform::Rotate(float x, float y, float z) {
  SetTriple(&ZelmoSceneward::HC_Rotate_Texture, x, y, z);
}

void ZDbAtTextureTransform::Scale(float x, float y, float z) {
  SetTriple(&ZelmoSceneward::HC_Scale_Texture, x, y, z);
}

void ZDbAtTextureTransform::Translate(ZGeoPoint const& offset) {
  SetTriple(&ZelmoSceneward::HC_Translate_Texture, offset.x, offset.y, offset.z);
}

ZGeoMatrix ZDbAtTextureTransform::GetNet() {
  ZGeoMatrix result;
  if (!GetEntity().IsValid()) return result;
  OpenSegment();
  CurrentManager()->HC_PShow_Net_Texture_Matrix(0, nullptr, result);
  CloseSegment();
  return result;
}
