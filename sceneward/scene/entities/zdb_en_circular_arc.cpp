#include "sceneward/scene/entities/zdb_en_circular_arc.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_circle_calls.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnCircularArc::ZDbEnCircularArc(ZDbEnSegment const& parent, ZGeoCircle const& circle)
    : ZDbEnCircularArc(-1) {
  InsertIntoSegment(parent, [&] {
    SetID(InsertThroughThreePoints(&ZelmoSceneward::HC_Insert_Circular_Arc, circle), "");
  });
}

// An arc stored in double precision is read so and narrowed point by point.
ZGeoCircle ZDbEnCircularArc::GetCircularArc() const {
  if (!IsValid() || !CurrentManager()->HC_Check_Double_Precision(GetID(), "circular arc")) {
    return ShowThroughThreePoints(&ZelmoSceneward::HC_Show_Circular_Arc, GetID(), false);
  }
  double d[3][3] = {};
  CurrentManager()->HC_DShow_Circular_Arc(GetID(), d[0], d[1], d[2]);
  ZGeoPoint p[3];
  for (int i = 0; i < 3; ++i) {
    p[i] = ZGeoPoint(static_cast<float>(d[i][0]), static_cast<float>(d[i][1]),
                     static_cast<float>(d[i][2]));
  }
  return ZGeoCircle(p[0], p[1], p[2], false);
}
