#include "sceneward/scene/attributes/zdb_at_visibility.h"

ZDbAtVisibility ZDbEnSegment::Visibility() const { return ZDbAtVisibility(*this); }

ZDbAtVisibility::ZDbAtVisibility(ZDbEnSegment const& segment)
    : ZDbAttribute(kAttributeVisibility, segment, "visibility") {}

void ZDbAtVisibility::Set(ZString const& options) {
  SetNonEmpty(&ZelmoSceneward::HC_Set_Visibility, options);
}

void ZDbAtVisibility::UnSet() { UnSetLocal(&ZelmoSceneward::HC_UnSet_Visibility); }

void ZDbAtVisibility::UnSetOne(ZString const& name) const {
  UnSetLocal(&ZelmoSceneward::HC_UnSet_One_Visibility, name);
}

ZString ZDbAtVisibility::Get() const { return ShowLocal(&ZelmoSceneward::HC_Show_Visibility); }

ZString ZDbAtVisibility::GetOne(ZString const& name) const {
  return ShowLocal(&ZelmoSceneward::HC_Show_One_Visibility, name);
}

ZString ZDbAtVisibility::GetOneNet(ZString const& name) const {
  return ShowNet(&ZelmoSceneward::HC_PShow_One_Net_Visibility, name);
}
