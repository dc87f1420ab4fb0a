#include "database/key_table.h"

namespace graphics {

long long KeyTable::Issue(Entity& item) {
  slots_.push_back(&item);
  return first_key_ - static_cast<long long>(slots_.size() - 1);
}

Entity* KeyTable::Find(long long key) const {
  if (key > first_key_) return nullptr;
  const unsigned long long index = static_cast<unsigned long long>(first_key_ - key);
  return index < slots_.size() ? slots_[index] : nullptr;
}

void KeyTable::Retire(long long key) {
  if (key > first_key_) return;
  const unsigned long long index = static_cast<unsigned long long>(first_key_ - key);
  if (index < slots_.size()) slots_[index] = nullptr;
}

void KeyTable::RetireAll() {
  first_key_ -= static_cast<long long>(slots_.size());
  slots_.clear();
}

}  // namespace graphics
