#include "sceneward/scene/entities/zdb_en_text.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

ZDbEnText::ZDbEnText(ZDbEnSegment const& parent, ZString const& text, ZGeoPoint const& position)
    : ZDbEnText(-1) {
  InsertIntoSegment(parent, [&] {
    SetID(CurrentManager()->HC_Insert_Text(position.x, position.y, position.z, text), "");
  });
}

ZString ZDbEnText::GetText() const {
  ZString text;
  ZGeoPoint position;  // only the text is wanted
  if (IsValid())
    CurrentManager()->HC_Show_Text(GetID(), &position.x, &position.y, &position.z, text);
  return text;
}

ZGeoPoint ZDbEnText::GetPosition() const {
  ZGeoPoint position;
  ZString text;  // only the position is wanted
  if (IsValid())
    CurrentManager()->HC_Show_Text(GetID(), &position.x, &position.y, &position.z, text);
  return position;
}
