#include "sceneward/scene/entities/zdb_insert_bracket.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_en_segment.h"

void InsertIntoSegment(ZDbEnSegment const& parent, std::function<void()> const& insert) {
  if (!parent.IsValid()) return;
  CurrentManager()->HC_Open_Segment_By_Key(parent.GetID());
  insert();
  CurrentManager()->HC_Close_Segment();
}
