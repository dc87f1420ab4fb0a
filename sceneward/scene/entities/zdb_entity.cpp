#include "sceneward/scene/entities/zdb_entity.h"

#include <vector>

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/geometry/zgeo_point.h"
#include "sceneward/scene/entities/zdb_en_segment.h"
#include "sceneward/scene/entities/zdb_entity_factory.h"
#include "sceneward/scene/entities/zdb_entity_type_tables.h"

using sceneward::scene::AddressHashedTypeTable;
using sceneward::scene::kEntityTypeNames;
using sceneward::scene::TypeNameToTypeMap;
using sceneward::scene::TypeToTypeNameMap;

// Both constructors translate first and fill the tables last, so the very
// first entity of a process translates against empty tables.
ZDbEntity::ZDbEntity(long long id, char const* typeNames) : ID(id), TypeNames(typeNames) {
  Type = GenerateTypesFromTypeNames(TypeNames);
  InitMaps();
}

ZDbEntity::ZDbEntity(long long id, ZDbEntityType type, char const* typeNames)
    : ID(id), Type(type), TypeNames(typeNames) {
  if (TypeNames.IsEmpty()) TypeNames = GenerateTypeNamesFromTypes(type);
  InitMaps();
}

ZDbEntity::~ZDbEntity() = default;

void ZDbEntity::SetID(long long id, char const* typeNames) {
  ID = id;
  if (*typeNames != '\0') SetTypeNames(typeNames);
}

ZString ZDbEntity::GetTypeName() const {
  ZString word;
  CurrentManager()->HC_Show_Key_Type(ID, word);
  return word;
}

ZString ZDbEntity::GetTypeNames() const {
  return TypeNames.IsEmpty() ? GenerateTypeNamesFromTypes(Type) : TypeNames;
}

void ZDbEntity::SetTypeNames(ZString names) {
  TypeNames = names;
  Type = GenerateTypesFromTypeNames(TypeNames);
}

ZDbEntityType ZDbEntity::GetTypeFromID(long long id) {
  ZString word;
  CurrentManager()->HC_Show_Key_Type(id, word);
  ZDbEntityFactory* factory = ZDbEntityFactoryMap::Find(word);
  return factory ? factory->GetTypeID() : kEntityUnknown;
}

void ZDbEntity::InitMaps() {
  AddressHashedTypeTable& nameToType = TypeNameToTypeMap();
  if (nameToType.IsEmpty()) {
    for (auto const& [type, name] : kEntityTypeNames) nameToType.FindOrAdd(ZString(name)) = type;
  }
  std::unordered_map<int, ZString>& typeToName = TypeToTypeNameMap();
  if (typeToName.empty()) {
    for (auto const& [type, name] : kEntityTypeNames) typeToName.emplace(type, ZString(name));
  }
}

// Every token is looked up in a fresh copy of the table, so that adding the
// token when it is not found never alters the shared table.
ZDbEntityType ZDbEntity::GenerateTypesFromTypeNames(ZString const& names) const {
  std::vector<ZString> tokens;
  names.SplitByChars(",", tokens, true, 0);
  int types = kEntityUnknown;
  for (ZString const& token : tokens) {
    AddressHashedTypeTable copy = TypeNameToTypeMap();
    types |= copy.FindOrAdd(token);
  }
  return static_cast<ZDbEntityType>(types);
}

ZString ZDbEntity::GenerateTypeNamesFromTypes(ZDbEntityType type) const {
  std::unordered_map<int, ZString> const& typeToName = TypeToTypeNameMap();
  auto single = typeToName.find(type);
  if (single != typeToName.end()) return single->second;
  ZString names;
  int bit = 1;
  for (std::size_t i = 0; i < typeToName.size(); ++i, bit <<= 1) {
    if ((type & bit) == 0) continue;
    names += typeToName.at(bit);
    names += ",";
  }
  if (!names.IsEmpty()) names = names.Left(names.GetLength() - 1);
  return names;
}

ZDbEnSegment ZDbEntity::GetParent() const {
  if (!IsValid()) return ZDbEnSegment(-1);
  ZString ownerPath;
  return ZDbEnSegment(CurrentManager()->HC_Show_Owner_By_Key(ID, ownerPath));
}

void ZDbEntity::Move(ZDbEnSegment const& to) const {
  if (!IsValid() || !to.IsValid()) return;
  CurrentManager()->HC_Open_Segment_By_Key(to.GetID());
  CurrentManager()->HC_Move_By_Key(ID, ".");
  CurrentManager()->HC_Close_Segment();
}

long long ZDbEntity::Copy(ZDbEnSegment const& to) const {
  if (!IsValid() || !to.IsValid()) return -1;
  CurrentManager()->HC_Open_Segment_By_Key(to.GetID());
  long long key = CurrentManager()->HC_Copy_Geometry(ID, ".");
  CurrentManager()->HC_Close_Segment();
  return key;
}

void ZDbEntity::BringToFront() const {
  if (IsValid()) CurrentManager()->HC_Bring_To_Front_By_Key(ID);
}

void ZDbEntity::Delete() {
  if (!IsValid()) return;
  CurrentManager()->HC_Delete_By_Key(ID);
  ID = -1;
  Type = kEntityUnknown;
}

void ZDbEntity::ControlUpdate(ZString const& list) const {
  if (IsValid()) CurrentManager()->HC_Control_Update_By_Key(ID, list.GetAsMBCS());
}

// The library writes two corners; ZGeoBox::Set sorts each pair of
// coordinates into the box's sides.
bool ZDbEntity::ComputeBoundingCuboid(ZGeoBox& box) const {
  if (!IsValid()) return false;
  ZGeoPoint min, max;
  bool found = CurrentManager()->HC_Compute_Circumcuboid_By_Key(ID, &min, &max);
  box.Set(min, max);
  return found;
}

bool ZDbEntity::GetBoundingCuboid(ZGeoBox& box) const {
  box = ZGeoBox();
  if (!IsValid()) return false;
  ZGeoPoint min, max;
  bool found = CurrentManager()->HC_Show_Bounding_Cuboid_By_Key(ID, &min, &max);
  box.Set(min, max);
  return found;
}

bool ZDbEntity::GetBoundingCuboid_HIC(void const* ric, ZGeoBox& box) const {
  box = ZGeoBox();
  if (!IsValid()) return false;
  ZGeoPoint min, max;
  bool found = CurrentManager()->HIC_Show_Bounding_Cuboid_By_Key(
      static_cast<HIC_Rendition const*>(ric), ID, &min, &max);
  box.Set(min, max);
  return found;
}

bool ZDbEntity::ComputeBoundingSphere(ZGeoSphere& sphere) const {
  if (!IsValid()) return false;
  ZString path;
  CurrentManager()->HC_Show_Segment(ID, path);
  ZGeoPoint center;
  float radius = 0;
  bool found = CurrentManager()->HC_Compute_Circumsphere(path.GetAsMBCS(), &center, &radius);
  sphere = ZGeoSphere(center, radius);
  return found;
}

bool ZDbEntity::GetBoundingSphere(ZGeoSphere& sphere) const {
  sphere = ZGeoSphere();
  if (!IsValid()) return false;
  ZGeoPoint center;
  float radius = 0;
  bool found = CurrentManager()->HC_Show_Bounding_Sphere_By_Key(ID, &center, &radius);
  sphere = ZGeoSphere(center, radius);
  return found;
}

bool ZDbEntity::GetBoundingSphere_HIC(void const* ric, ZGeoSphere& sphere) const {
  sphere = ZGeoSphere();
  if (!IsValid()) return false;
  ZGeoPoint center;
  float radius = 0;
  bool found = CurrentManager()->HIC_Show_Bounding_Sphere_By_Key(
      static_cast<HIC_Rendition const*>(ric), ID, &center, &radius);
  sphere = ZGeoSphere(center, radius);
  return found;
}
