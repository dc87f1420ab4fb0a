#include "sceneward/scene/entities/zdb_en_circular_chord.h"

#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_circle_calls.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnCircularChord::ZDbEnCircularChord(ZDbEnSegment const& parent, ZGeoCircle const& circle)
    : ZDbEnCircularChord(-1) {
  InsertIntoSegment(parent, [&] {
    SetID(InsertThroughThreePoints(&ZelmoSceneward::HC_Insert_Circular_Chord, circle), "");
  });
}
