#include "sceneward/scene/entities/zdb_entity_type_tables.h"

#include <cstdint>

namespace sceneward::scene {

std::size_t AddressHashedTypeTable::BucketIndex(ZString const& key, std::size_t bucketCount) {
  return reinterpret_cast<std::uintptr_t>(key.GetAsMBCS()) & (bucketCount - 1);
}

ZDbEntityType& AddressHashedTypeTable::FindOrAdd(ZString const& name) {
  Bucket* bucket = &buckets_[BucketIndex(name, buckets_.size())];
  for (Entry& entry : *bucket) {
    if (entry.name.Compare(name) == 0) return entry.type;
  }
  bucket->push_back(Entry{name, kEntityUnknown});
  Entry& added = bucket->back();
  if (++size_ > buckets_.size()) Grow();
  return added.type;
}

void AddressHashedTypeTable::Grow() {
  std::vector<Bucket> grown(buckets_.size() * 2);
  for (Bucket& old : buckets_) {
    while (!old.empty()) {
      Bucket& target = grown[BucketIndex(old.front().name, grown.size())];
      target.splice(target.end(), old, old.begin());
    }
  }
  buckets_.swap(grown);
}

AddressHashedTypeTable& TypeNameToTypeMap() {
  static AddressHashedTypeTable table;
  return table;
}

std::unordered_map<int, ZString>& TypeToTypeNameMap() {
  static std::unordered_map<int, ZString> table;
  return table;
}

}  // namespace sceneward::scene
