#include "sceneward/scene/entities/zdb_en_style.h"

#include "sceneward/scene/entities/zdb_insert_bracket.h"
#include "sceneward/scene/entities/zdb_segment_link.h"
#include "sceneward/scene/search/zdb_entity_vec.h"

namespace {

constexpr ZDbSegmentLinkCalls kStyleCalls = {
    &ZelmoSceneward::HC_Style_Segment_By_Key,
    &ZelmoSceneward::HC_Conditional_Style_By_Key,
    &ZelmoSceneward::HC_Show_Style_Segment,
    &ZelmoSceneward::HC_Show_Conditional_Style,
};

}  // namespace

ZDbEnStyle::ZDbEnStyle(ZDbEnSegment const& parent, ZDbEnSegment const& target,
                       ZString const& condition)
    : ZDbEnStyle(-1) {
  if (!target.IsValid()) return;
  InsertIntoSegment(parent, [&] { SetID(LinkOpenSegmentTo(kStyleCalls, target, condition), ""); });
}

ZDbEnSegment ZDbEnStyle::GetStyleSegment() const { return LinkedSegment(kStyleCalls, GetID()); }

ZString ZDbEnStyle::GetCondition() const { return LinkCondition(kStyleCalls, GetID()); }

void ZDbEnStyle::RemoveStylesFromSegment(ZDbEnSegment const& segment) {
  ZDbEntityVec styles;
  segment.EntitySearch(styles, kEntityStyle, ".", true);
  for (int i = 0; i < styles.Count(); ++i) styles.GetAt(i)->Delete();
}
