#include "sceneward/scene/search/zdb_entity_search.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_entity_factory.h"

ZDbEntitySearch::ZDbEntitySearch(ZDbEntity const& start, int typeMask, ZString const& spec,
                                 bool retain) {
  Create(start, typeMask, spec, retain);
}

ZDbEntitySearch::ZDbEntitySearch(ZDbEntity const& start, ZString const& typeNames,
                                 ZString const& spec, bool retain) {
  Create(start, typeNames, spec, retain);
}

ZDbEntitySearch::~ZDbEntitySearch() { CurrentManager()->HC_End_Contents_Search(); }

void ZDbEntitySearch::Create(ZDbEntity const& start, int typeMask, ZString const& spec,
                             bool retain) {
  Create(start, ZDbEntityFactoryMap::SearchTypesFromMask(typeMask), spec, retain);
}

// The search outlives the segment's bracket: the library keeps it running
// until HC_End_Contents_Search.
void ZDbEntitySearch::Create(ZDbEntity const& start, ZString const& typeNames,
                             ZString const& spec, bool retain) {
  if (retain) RetainedEntities = std::make_unique<ZDbEntityVec>();
  if (start.IsValid()) CurrentManager()->HC_Open_Segment_By_Key(start.GetID());
  CurrentManager()->HC_Begin_Contents_Search(spec.GetAsMBCS(), typeNames.GetAsMBCS());
  if (start.IsValid()) CurrentManager()->HC_Close_Segment();
}

int ZDbEntitySearch::Count() const {
  int count = 0;
  CurrentManager()->HC_Show_Contents_Count(&count);
  return count;
}

void ZDbEntitySearch::RetrieveNext(long long& id, ZString& typeName) const {
  if (!CurrentManager()->HC_Find_Contents(typeName, &id)) {
    id = -1;
    typeName = "";
  }
}

long long ZDbEntitySearch::FindNextID() const {
  long long id = -1;
  ZString typeName;
  RetrieveNext(id, typeName);
  return id;
}

// The end of the search is not tested: key -1 goes to the factory too, which
// answers with a plain invalid entity.
ZDbEntity* ZDbEntitySearch::FindNext() const {
  long long id = -1;
  ZString word;
  RetrieveNext(id, word);
  ZDbEntity* entity = ZDbEntityFactoryMap::CreateEntityFromID(id);
  if (RetainedEntities && entity) {
    entity->SetTypeNames(word);
    RetainedEntities->AddNewedEntityPtr(entity);
  }
  return entity;
}
