#pragma once
// ZDbEntitySearch: a contents search of the graphics library, as a scope.
// The constructor begins the search from a start entity (opening and
// closing it around the begin), the destructor ends it. Searches nest as
// the library's brackets do; each destructor ends one bracket, whichever is
// innermost. Calls on one search must come from one thread.
#include <memory>

#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_entity.h"
#include "sceneward/scene/search/zdb_entity_vec.h"

class ZDbEntitySearch {
 public:
  // Type masks with a meaning of their own: every kind of geometry and
  // segments, and every kind of geometry.
  static constexpr int kAllGeometryAndSegments = -1;
  static constexpr int kAllGeometry = -2;

  // Searches `spec` from `start` for the types of `typeMask` (see
  // ZDbEntityFactoryMap::SearchTypesFromMask; a mask of no registered bit
  // gives an empty type list, which the library then reads as it does) or
  // of the comma-separated `typeNames`. An invalid `start` searches from
  // whatever segment is open. With `retain`, the search keeps and owns
  // every entity that FindNext makes.
  ZDbEntitySearch(ZDbEntity const& start, int typeMask, ZString const& spec, bool retain);
  ZDbEntitySearch(ZDbEntity const& start, ZString const& typeNames, ZString const& spec,
                  bool retain);
  // Ends the search, then destroys the retained entities: pointers that
  // FindNext gave out in a retaining search die here.
  ~ZDbEntitySearch();
  // Each search ends exactly one bracket.
  ZDbEntitySearch(ZDbEntitySearch const&) = delete;
  ZDbEntitySearch& operator=(ZDbEntitySearch const&) = delete;

  // The size of the whole result, however much has been fetched.
  int Count() const;
  // A new entity of the most derived class for the next key. Past the end
  // it is a plain entity with key -1, never null, so loop on Count() or
  // IsValid(). Without `retain` the caller owns it; with `retain` the
  // search does, and its type is retranslated from the library's word.
  ZDbEntity* FindNext() const;
  // The next key, or -1 past the end.
  long long FindNextID() const;
  // The next key and the library's word for its type, or -1 and "" past the
  // end.
  void RetrieveNext(long long& id, ZString& typeName) const;

 private:
  void Create(ZDbEntity const& start, int typeMask, ZString const& spec, bool retain);
  void Create(ZDbEntity const& start, ZString const& typeNames, ZString const& spec, bool retain);

  std::unique_ptr<ZDbEntityVec> RetainedEntities;
};
