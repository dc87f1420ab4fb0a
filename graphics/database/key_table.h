#pragma once
// Library keys: negative, issued downwards from -2 (-1 is the interface's
// "no key"), looked up in O(1) by indexing a table. A retired key stays
// invalid for good: numbers are never issued twice, not even after a reset,
// so a stale key held by a program can never reach a newer item.
#include <vector>

namespace graphics {

class Entity;

class KeyTable {
 public:
  long long Issue(Entity& item);
  // The live item of `key`, or null (-1, non-negative, never issued, retired).
  Entity* Find(long long key) const;
  void Retire(long long key);
  // Retires every key at once; later keys continue the sequence.
  void RetireAll();

 private:
  // Key of slots_[0]; slots_[i] belongs to key first_key_ - i.
  long long first_key_ = -2;
  std::vector<Entity*> slots_;
};

}  // namespace graphics
