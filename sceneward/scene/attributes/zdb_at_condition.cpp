#include "sceneward/scene/attributes/zdb_at_condition.h"

ZDbAtCondition ZDbEnSegment::Condition() const { return ZDbAtCondition(*this); }

ZDbAtCondition::ZDbAtCondition(ZDbEnSegment const& segment)
    : ZDbAttribute(kAttributeCondition, segment, "condition") {}

void ZDbAtCondition::SetOne(ZString const& conditions) {
  SetNonEmpty(&ZelmoSceneward::HC_Set_Conditions, conditions);
}

void ZDbAtCondition::UnSet() { UnSetLocal(&ZelmoSceneward::HC_UnSet_Conditions); }

void ZDbAtCondition::UnSetOne(ZString const& name) {
  // The empty name is refused only after the existence test has been made.
  if (!IsSetLocally() || name.IsEmpty()) return;
  CallInSegment(&ZelmoSceneward::HC_UnSet_One_Condition, name);
}
