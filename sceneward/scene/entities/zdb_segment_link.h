#pragma once
// What includes and styles have in common. Both link the open segment to
// another segment, with or without a condition, and show the linked segment
// and the condition in the same way; only the library calls differ, so each
// class names its four calls in a table and the work is done once here.
#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_en_segment.h"

struct ZDbSegmentLinkCalls {
  long long (ZelmoSceneward::*link)(long long target);
  long long (ZelmoSceneward::*conditionalLink)(long long target, char const* condition);
  long long (ZelmoSceneward::*showTarget)(long long key, ZString& path);
  void (ZelmoSceneward::*showCondition)(long long key, ZString& path, ZString& condition);
};

// Links the open segment to `target`, through the conditional call when
// `condition` isn't empty, and returns the new link's key.
long long LinkOpenSegmentTo(ZDbSegmentLinkCalls const& calls, ZDbEnSegment const& target,
                            ZString const& condition);
// The segment that the link `key` names; an invalid segment for key -1.
ZDbEnSegment LinkedSegment(ZDbSegmentLinkCalls const& calls, long long key);
// The condition of the link `key` as the library writes it; "" for key -1.
ZString LinkCondition(ZDbSegmentLinkCalls const& calls, long long key);
