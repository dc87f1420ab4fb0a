#include "sceneward/scene/attributes/zdb_ent_attribute.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/scene/attributes/zdb_at_color.h"
#include "sceneward/scene/entities/zdb_en_segment.h"

ZDbEntAttribute::ZDbEntAttribute(ZDbEntAttributeType type, ZDbEntity const& entity,
                                 ZString const& name)
    : attributeType_(type), entity_(&entity), attributeName_(name) {}

ZDbEntAttribute::~ZDbEntAttribute() = default;

ZDbEntAttributeType ZDbEntAttribute::GetAttributeType() const { return attributeType_; }

ZDbEntity const& ZDbEntAttribute::GetEntity() const { return *entity_; }

ZString ZDbEntAttribute::GetAttributeName() const { return attributeName_; }

bool ZDbEntAttribute::IsAttributeSet(ZString spec) const {
  if (!HasKey()) return false;
  ZString const& tested = spec.IsEmpty() ? attributeName_ : spec;
  OpenSegment();
  const int count = CurrentManager()->HC_Show_Existence(tested.GetAsMBCS());
  CloseSegment();
  return count > 0;
}

bool ZDbEntAttribute::IsAttributeSet(bool walkUp, ZString spec) const {
  if (!HasKey()) return false;
  // What lies below the include library is drawn only where it is included,
  // so the library's own colour is no owner's colour to inherit. Made once,
  // by the first thread that walks, and kept for the life of the process.
  static const ZDbEnSegment includeLibrary(ZString("/include library"));
  ZDbEntity current = *entity_;
  bool found = false;
  do {
    found = ZDbAtColor(current).IsAttributeSet(spec);
    current = current.GetParent();
  } while (current.IsValid() && current.GetID() != includeLibrary.GetID() && walkUp && !found);
  return found;
}

long long ZDbEntAttribute::GetKey() const { return entity_->GetID(); }

bool ZDbEntAttribute::HasKey() const { return GetKey() != -1; }

bool ZDbEntAttribute::IsSetLocally() const { return HasKey() && IsAttributeSet(ZString()); }

void ZDbEntAttribute::OpenSegment() const { CurrentManager()->HC_Open_Segment_By_Key(GetKey()); }

void ZDbEntAttribute::CloseSegment() const { CurrentManager()->HC_Close_Segment(); }

void ZDbEntAttribute::CallInSegment(TextCall call, ZString const& text) const {
  OpenSegment();
  (CurrentManager()->*call)(text.GetAsMBCS());
  CloseSegment();
}

void ZDbEntAttribute::SetNonEmpty(TextCall set, ZString const& text) const {
  if (!HasKey() || text.IsEmpty()) return;
  CallInSegment(set, text);
}

void ZDbEntAttribute::SetAnyText(TextCall set, ZString const& text) const {
  if (!HasKey()) return;
  CallInSegment(set, text);
}

void ZDbEntAttribute::UnSetLocal(PlainCall unset) const {
  if (!IsSetLocally()) return;
  OpenSegment();
  (CurrentManager()->*unset)();
  CloseSegment();
}

void ZDbEntAttribute::UnSetLocal(TextCall unset, ZString const& name) const {
  if (!IsSetLocally()) return;
  CallInSegment(unset, name);
}

ZString ZDbEntAttribute::ShowLocal(ShowCall show) const {
  ZString value;
  if (!IsSetLocally()) return value;
  OpenSegment();
  (CurrentManager()->*show)(value);
  CloseSegment();
  return value;
}

ZString ZDbEntAttribute::ShowLocal(ShowOneCall show, ZString const& name) const {
  ZString value;
  if (!IsSetLocally()) return value;
  OpenSegment();
  (CurrentManager()->*show)(name.GetAsMBCS(), value);
  CloseSegment();
  return value;
}

ZString ZDbEntAttribute::ShowNet(ShowOneNetCall show, ZString const& name) const {
  ZString value;
  if (!HasKey()) return value;
  OpenSegment();
  (CurrentManager()->*show)(0, nullptr, name.GetAsMBCS(), value);
  CloseSegment();
  return value;
}
