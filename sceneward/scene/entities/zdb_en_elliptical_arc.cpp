#include "sceneward/scene/entities/zdb_en_elliptical_arc.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnEllipticalArc::ZDbEnEllipticalArc(ZDbEnSegment const& parent, ZGeoEllipse const& ellipse)
    : ZDbEnEllipticalArc(-1) {
  InsertIntoSegment(parent, [&] {
    const ZGeoPoint center = ellipse.GetCenter();
    const ZGeoPoint major = ellipse.GetMajor();
    const ZGeoPoint minor = ellipse.GetMinor();
    SetID(CurrentManager()->HC_Insert_Elliptical_Arc(&center, &major, &minor, ellipse.GetStart(),
                                                     ellipse.GetEnd()),
          "");
  });
}

ZGeoEllipse ZDbEnEllipticalArc::GetEllipticalArc() const {
  ZGeoEllipse arc;
  if (!IsValid()) return arc;
  ZGeoPoint center = arc.GetCenter();
  ZGeoPoint major = arc.GetMajor();
  ZGeoPoint minor = arc.GetMinor();
  float start = arc.GetStart();
  float end = arc.GetEnd();
  CurrentManager()->HC_Show_Elliptical_Arc(GetID(), &center, &major, &minor, &start, &end);
  return ZGeoEllipse(center, major, minor, start, end);
}
