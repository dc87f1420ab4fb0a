#include "sceneward/scene/entities/zdb_en_circular_wedge.h"

#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_circle_calls.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnCircularWedge::ZDbEnCircularWedge(ZDbEnSegment const& parent, ZGeoCircle const& circle)
    : ZDbEnCircularWedge(-1) {
  InsertIntoSegment(parent, [&] {
    SetID(InsertThroughThreePoints(&ZelmoSceneward::HC_Insert_Circular_Wedge, circle), "");
  });
}

ZGeoCircle ZDbEnCircularWedge::GetCircularWedge() const {
  return ShowThroughThreePoints(&ZelmoSceneward::HC_Show_Circular_Wedge, GetID(), false);
}
