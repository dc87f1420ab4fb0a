#include "sceneward/scene/entities/zdb_en_include.h"

#include "sceneward/scene/entities/zdb_insert_bracket.h"
#include "sceneward/scene/entities/zdb_segment_link.h"

namespace {

constexpr ZDbSegmentLinkCalls kIncludeCalls = {
    &ZelmoSceneward::HC_Include_Segment_By_Key,
    &ZelmoSceneward::HC_Conditional_Include_By_Key,
    &ZelmoSceneward::HC_Show_Include_Segment,
    &ZelmoSceneward::HC_Show_Conditional_Include,
};

}  // namespace

ZDbEnInclude::ZDbEnInclude(ZDbEnSegment const& parent, ZDbEnSegment const& target,
                           ZString const& condition)
    : ZDbEnInclude(-1) {
  if (!target.IsValid()) return;
  InsertIntoSegment(parent,
                    [&] { SetID(LinkOpenSegmentTo(kIncludeCalls, target, condition), ""); });
}

ZDbEnSegment ZDbEnInclude::GetIncludedSegment() const {
  return LinkedSegment(kIncludeCalls, GetID());
}

ZString ZDbEnInclude::GetCondition() const { return LinkCondition(kIncludeCalls, GetID()); }
