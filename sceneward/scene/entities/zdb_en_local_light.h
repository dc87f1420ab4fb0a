#pragma once
// ZDbEnLocalLight: the handle on a local light of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnLocalLight : public ZDbEntity {
 public:
  // The handle on an existing local light; the key is not checked.
  ZDbEnLocalLight(long long id = -1) : ZDbEntity(id, kEntityLocalLight, "") {}

  static ZString GetTypeName() { return "local light"; }
};
