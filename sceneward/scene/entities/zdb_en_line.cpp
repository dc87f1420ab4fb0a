#include "sceneward/scene/entities/zdb_en_line.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnLine::ZDbEnLine(ZDbEnSegment const& parent, ZGeoLine const& line) : ZDbEnLine(-1) {
  InsertIntoSegment(parent, [&] {
    const ZGeoPoint a = line.GetStart();
    const ZGeoPoint b = line.GetEnd();
    SetID(CurrentManager()->HC_Insert_Line(a.x, a.y, a.z, b.x, b.y, b.z), "");
  });
}

ZGeoLine ZDbEnLine::GetLine() const {
  ZGeoPoint a;
  ZGeoPoint b;
  if (IsValid()) CurrentManager()->HC_Show_Line(GetID(), &a.x, &a.y, &a.z, &b.x, &b.y, &b.z);
  return ZGeoLine(a, b);
}
