#include "sceneward/scene/entities/zdb_segment_link.h"

#include "sceneward/frame/thread_registry.h"

long long LinkOpenSegmentTo(ZDbSegmentLinkCalls const& calls, ZDbEnSegment const& target,
                            ZString const& condition) {
  if (condition.IsEmpty()) return (CurrentManager()->*calls.link)(target.GetID());
  return (CurrentManager()->*calls.conditionalLink)(target.GetID(), condition.GetAsMBCS());
}

ZDbEnSegment LinkedSegment(ZDbSegmentLinkCalls const& calls, long long key) {
  if (key == -1) return ZDbEnSegment(-1);
  ZString path;  // only the key is wanted
  return ZDbEnSegment((CurrentManager()->*calls.showTarget)(key, path));
}

ZString LinkCondition(ZDbSegmentLinkCalls const& calls, long long key) {
  ZString condition;
  if (key == -1) return condition;
  ZString path;  // only the condition is wanted
  (CurrentManager()->*calls.showCondition)(key, path, condition);
  return condition;
}
