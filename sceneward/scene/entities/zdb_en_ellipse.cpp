#include "sceneward/scene/entities/zdb_en_ellipse.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnEllipse::ZDbEnEllipse(ZDbEnSegment const& parent, ZGeoEllipse const& ellipse)
    : ZDbEnEllipse(-1) {
  InsertIntoSegment(parent, [&] {
    const ZGeoPoint center = ellipse.GetCenter();
    const ZGeoPoint major = ellipse.GetMajor();
    const ZGeoPoint minor = ellipse.GetMinor();
    SetID(CurrentManager()->HC_Insert_Ellipse(&center, &major, &minor), "");
  });
}

ZGeoEllipse ZDbEnEllipse::GetEllipse() const {
  ZGeoEllipse ellipse;
  if (!IsValid()) return ellipse;
  ZGeoPoint center = ellipse.GetCenter();
  ZGeoPoint major = ellipse.GetMajor();
  ZGeoPoint minor = ellipse.GetMinor();
  CurrentManager()->HC_Show_Ellipse(GetID(), &center, &major, &minor);
  return ZGeoEllipse(center, major, minor, 0.0f, 1.0f);
}
