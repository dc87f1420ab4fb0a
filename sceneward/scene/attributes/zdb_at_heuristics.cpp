#include "sceneward/scene/attributes/zdb_at_heuristics.h"

ZDbAtHeuristics ZDbEnSegment::Heuristics() const { return ZDbAtHeuristics(*this); }

ZDbAtHeuristics::ZDbAtHeuristics(ZDbEnSegment const& segment)
    : ZDbAttribute(kAttributeHeuristics, segment, "heuristics") {}

void ZDbAtHeuristics::Set(ZString const& options) {
  SetNonEmpty(&ZelmoSceneward::HC_Set_Heuristics, options);
}

void ZDbAtHeuristics::UnSetOne(ZString const& name) {
  UnSetLocal(&ZelmoSceneward::HC_UnSet_One_Heuristic, name);
}

ZString ZDbAtHeuristics::Get() const { return ShowLocal(&ZelmoSceneward::HC_Show_Heuristics); }

ZString ZDbAtHeuristics::GetOne(ZString const& name) const {
  return ShowLocal(&ZelmoSceneward::HC_Show_One_Heuristic, name);
}
