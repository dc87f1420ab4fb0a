#include "sceneward/scene/entities/zdb_en_circle.h"

#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_circle_calls.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnCircle::ZDbEnCircle(ZDbEnSegment const& parent, ZGeoCircle const& circle) : ZDbEnCircle(-1) {
  InsertIntoSegment(parent, [&] {
    SetID(InsertThroughThreePoints(&ZelmoSceneward::HC_Insert_Circle, circle), "");
  });
}

ZGeoCircle ZDbEnCircle::GetCircle() const {
  return ShowThroughThreePoints(&ZelmoSceneward::HC_Show_Circle, GetID(), true);
}
