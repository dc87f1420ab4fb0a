#include "sceneward/scene/attributes/zdb_at_selectability.h"

ZDbAtSelectability ZDbEnSegment::Selectability() const { return ZDbAtSelectability(*this); }

ZDbAtSelectability::ZDbAtSelectability(ZDbEnSegment const& segment)
    : ZDbAttribute(kAttributeSelectability, segment, "selectability") {}

void ZDbAtSelectability::Set(ZString const& options) {
  SetNonEmpty(&ZelmoSceneward::HC_Set_Selectability, options);
}

void ZDbAtSelectability::UnSet() { UnSetLocal(&ZelmoSceneward::HC_UnSet_Selectability); }

ZString ZDbAtSelectability::Get() const {
  return ShowLocal(&ZelmoSceneward::HC_Show_Selectability);
}

ZString ZDbAtSelectability::SaveToString() const { return Get(); }

void ZDbAtSelectability::RestoreFromString(ZString const& saved) {
  UnSet();
  if (!saved.IsEmpty()) Set(saved);
}
