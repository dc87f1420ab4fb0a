#include "sceneward/scene/entities/zdb_en_segment.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/attributes/zdb_at_transform.h"
#include "sceneward/scene/entities/zdb_en_style.h"
#include "sceneward/scene/entities/zdb_entity_factory.h"
#include "sceneward/scene/search/zdb_entity_search.h"
#include "sceneward/scene/search/zdb_entity_vec.h"
#include "sceneward/scene/search/zdb_segment_search.h"

ZDbEnSegment::ZDbEnSegment(long long id) : ZDbEntity(id, kEntitySegment, "") {}

ZDbEnSegment::ZDbEnSegment(ZString const& path) : ZDbEnSegment(-1) {
  long long key = CurrentManager()->HC_Open_Segment(path);
  CurrentManager()->HC_Close_Segment();
  SetID(key, "");
}

ZDbEnSegment::ZDbEnSegment(ZDbEnSegment const& parent, ZString const& name) : ZDbEnSegment(-1) {
  if (!parent.IsValid()) return;
  CurrentManager()->HC_Open_Segment_By_Key(parent.GetID());
  long long key = CurrentManager()->HC_Open_Segment(name);
  CurrentManager()->HC_Close_Segment();  // the child
  SetID(key, "");
  CurrentManager()->HC_Close_Segment();  // the parent
}

ZString ZDbEnSegment::GetFullPath() const {
  ZString path;
  if (IsValid()) CurrentManager()->HC_Show_Segment(GetID(), path);
  return path;
}

ZString ZDbEnSegment::GetSegmentName() const { return GetFullPath().GetFileName('/'); }

bool ZDbEnSegment::DoesSubSegmentExist(ZString const& spec) const {
  std::vector<ZDbEnSegment> unused;
  return SegmentSearch(spec, unused, false) > 0;
}

ZDbEnSegment ZDbEnSegment::GetSubSegment(ZString const& name) const {
  return ZDbEnSegment(*this, name);
}

void ZDbEnSegment::GetChildSegments(std::vector<ZDbEnSegment>& out) const {
  SegmentSearch("*", out, true);
}

int ZDbEnSegment::SegmentSearch(ZString const& spec, std::vector<ZDbEnSegment>& out,
                                bool fill) const {
  if (!IsValid()) return 0;
  ZDbSegmentSearch search(*this, spec);
  int count = search.Count();
  if (fill && count >= 1) {
    out.reserve(out.size() + count);
    for (int i = 0; i < count; ++i) out.push_back(search.FindNext());
  }
  return count;
}

// A mask search is the search for the names that the mask stands for.
int ZDbEnSegment::EntitySearch(ZDbEntityVec& out, int typeMask, ZString const& spec,
                               bool fill) const {
  if (!IsValid()) return 0;
  return EntitySearch(out, ZDbEntityFactoryMap::SearchTypesFromMask(typeMask), spec, fill);
}

int ZDbEnSegment::EntitySearch(ZDbEntityVec& out, ZString const& typeNames, ZString const& spec,
                               bool fill) const {
  if (!IsValid()) return 0;
  ZDbEntitySearch search(*this, typeNames, spec, false);
  int count = search.Count();
  if (fill) {
    out.Reserve(count);
    for (int i = 0; i < count; ++i) out.AddNewedEntityPtr(search.FindNext());
  }
  return count;
}

void ZDbEnSegment::FlushContents(ZString const& list) const {
  if (!IsValid()) return;
  CurrentManager()->HC_Open_Segment_By_Key(GetID());
  CurrentManager()->HC_Flush_Contents(".", list.GetAsMBCS());
  CurrentManager()->HC_Close_Segment();
}

void ZDbEnSegment::CopySegment(ZDbEnSegment const& source) const {
  if (!IsValid() || !source.IsValid()) return;
  CurrentManager()->HC_Open_Segment_By_Key(GetID());
  CurrentManager()->HC_Copy_Segment(source.GetFullPath().GetAsMBCS(), ".");
  CurrentManager()->HC_Close_Segment();
}

void ZDbEnSegment::MoveSegmentContents(ZDbEnSegment const& source) const {
  ZDbEntityVec geometry;
  source.EntitySearch(geometry, ZDbEntitySearch::kAllGeometry, ".", true);
  for (int i = 0; i < geometry.Count(); ++i) geometry.GetAt(i)->Move(*this);
  ZDbAtTransform(*this).Set(ZDbAtTransform(source).Get());
}

long long ZDbEnSegment::FindStyleSegment(ZDbEnSegment const& style) {
  ZDbEntityVec styles;
  EntitySearch(styles, kEntityStyle, ".", true);
  for (int i = 0; i < styles.Count(); ++i) {
    long long key = styles.GetAt(i)->GetID();
    if (ZDbEnStyle(key).GetStyleSegment().GetID() == style.GetID()) return key;
  }
  return -1;
}

bool ZDbEnSegment::IsStyledWithSegment(ZDbEnSegment const& style) {
  return FindStyleSegment(style) != -1;
}
