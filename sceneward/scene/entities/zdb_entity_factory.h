#pragma once
// The factory registry: one factory per entity class that has a handle of
// its own, stored under the class's type name. It builds the most derived
// handle for a bare key and turns type masks into search type lists. The
// registry is complete when the library is loaded.
#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEntityFactory {
 public:
  virtual ~ZDbEntityFactory() = default;
  // The Type of a handle of the class.
  virtual ZDbEntityType GetTypeID() = 0;
  // The class's type name, the word the library uses for its objects.
  virtual ZString GetTypeName() = 0;
  // A new handle of the class on `id`; the caller owns it.
  virtual ZDbEntity* CreateEntity(long long id) = 0;
};

class ZDbEntityFactoryMap {
 public:
  // The factory registered under `typeName`, or null.
  static ZDbEntityFactory* Find(ZString const& typeName);
  // A new handle on `id` of the class that the library's word for it names;
  // a plain ZDbEntity (Type 0, no names) for words without a factory. The
  // caller owns it. The key is not checked: -1 asks the library too.
  static ZDbEntity* CreateEntityFromID(long long id);
  // The type list that a contents search takes for `mask`: "geometry,segment"
  // for -1, "geometry" for -2, else the registered names whose bit is in
  // `mask`, in alphabetical order (so 0x30 gives "circle,marker"). Bits
  // without a factory count for nothing; "" if no registered bit is set.
  static ZString SearchTypesFromMask(int mask);
};
