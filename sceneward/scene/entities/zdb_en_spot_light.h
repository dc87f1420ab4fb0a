#pragma once
// ZDbEnSpotLight: the handle on a spot light of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnSpotLight : public ZDbEntity {
 public:
  // The handle on an existing spot light; the key is not checked.
  ZDbEnSpotLight(long long id = -1) : ZDbEntity(id, kEntitySpotLight, "") {}

  static ZString GetTypeName() { return "spot light"; }
};
