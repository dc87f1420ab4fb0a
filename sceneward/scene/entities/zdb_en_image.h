#pragma once
// ZDbEnImage: the handle on an image of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnImage : public ZDbEntity {
 public:
  // The handle on an existing image; the key is not checked.
  ZDbEnImage(long long id = -1) : ZDbEntity(id, kEntityImage, "") {}

  static ZString GetTypeName() { return "image"; }
};
