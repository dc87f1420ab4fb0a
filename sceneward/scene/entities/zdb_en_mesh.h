#pragma once
// ZDbEnMesh: the handle on a mesh of the graphics database.
#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnMesh : public ZDbEntity {
 public:
  // The handle on an existing mesh; the key is not checked.
  ZDbEnMesh(long long id = -1) : ZDbEntity(id, kEntityMesh, "") {}

  static ZString GetTypeName() { return "mesh"; }
};
