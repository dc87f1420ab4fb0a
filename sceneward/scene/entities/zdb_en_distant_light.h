#pragma once
// ZDbEnDistantLight: the handle on a distant light of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnDistantLight : public ZDbEntity {
 public:
  // The handle on an existing distant light; the key is not checked.
  ZDbEnDistantLight(long long id = -1) : ZDbEntity(id, kEntityDistantLight, "") {}

  static ZString GetTypeName() { return "distant light"; }
};
