#include "sceneward/scene/search/zdb_entity_vec.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

ZDbEntityVec::~ZDbEntityVec() {
  Clear();
  delete[] items_;
}

ZDbEntity* ZDbEntityVec::GetAt(int index) const {
  if (index < 0 || index >= count_) return nullptr;
  return items_[index];
}

void ZDbEntityVec::Clear() {
  for (int i = 0; i < count_; ++i) delete items_[i];
  count_ = 0;
}

void ZDbEntityVec::Reserve(int count) {
  if (count > capacity_) Reallocate(count);
}

void ZDbEntityVec::AddNewedEntityPtr(ZDbEntity* entity) {
  if (count_ == capacity_) {
    if (capacity_ == std::numeric_limits<int>::max()) throw std::length_error("ZDbEntityVec");
    long long grown = capacity_ + capacity_ / 2LL;
    Reallocate(static_cast<int>(std::clamp<long long>(grown, count_ + 1LL,
                                                      std::numeric_limits<int>::max())));
  }
  items_[count_++] = entity;
}

void ZDbEntityVec::Reallocate(int capacity) {
  auto* items = new ZDbEntity*[capacity];
  std::copy(items_, items_ + count_, items);
  delete[] items_;
  items_ = items;
  capacity_ = capacity;
}
