#include "sceneward/scene/search/zdb_segment_search.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"

ZDbSegmentSearch::ZDbSegmentSearch(ZString const& spec) {
  CurrentManager()->HC_Begin_Segment_Search(spec.GetAsMBCS());
}

// The search outlives the segment's bracket: the library keeps it running
// until HC_End_Segment_Search.
ZDbSegmentSearch::ZDbSegmentSearch(ZDbEnSegment const& start, ZString const& spec) {
  if (!start.IsValid()) {
    CurrentManager()->HC_Begin_Segment_Search(spec.GetAsMBCS());
    return;
  }
  CurrentManager()->HC_Open_Segment_By_Key(start.GetID());
  CurrentManager()->HC_Begin_Segment_Search(spec.GetAsMBCS());
  CurrentManager()->HC_Close_Segment();
}

ZDbSegmentSearch::~ZDbSegmentSearch() { CurrentManager()->HC_End_Segment_Search(); }

int ZDbSegmentSearch::Count() const {
  int count = 0;
  CurrentManager()->HC_Show_Segment_Count(&count);
  return count;
}

ZDbEnSegment ZDbSegmentSearch::FindNext() {
  ZString path;
  if (!CurrentManager()->HC_Find_Segment(path)) return ZDbEnSegment(-1);
  return ZDbEnSegment(path);
}
