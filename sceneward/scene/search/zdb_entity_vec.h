#pragma once
// ZDbEntityVec: a list of heap entities that owns what it holds, filled by
// entity searches. Entities are destroyed through their virtual destructor
// by Clear and by the destructor.
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEntitySearch;
class ZDbEnSegment;

class ZDbEntityVec {
 public:
  ZDbEntityVec() = default;
  // Clear(), then frees the storage.
  ~ZDbEntityVec();
  // Owning raw pointers: copying would free them twice.
  ZDbEntityVec(ZDbEntityVec const&) = delete;
  ZDbEntityVec& operator=(ZDbEntityVec const&) = delete;

  int Count() const { return count_; }
  // How many entities fit before the storage grows.
  int Capacity() const { return capacity_; }
  // The entity at `index`, still owned by the list; null if `index` is
  // negative or not below Count().
  ZDbEntity* GetAt(int index) const;
  // Destroys every non-null entity in index order; the count goes to 0 and
  // the storage stays for reuse.
  void Clear();

 private:
  friend class ZDbEntitySearch;
  friend class ZDbEnSegment;

  // Raises the capacity to exactly `count` if it is less.
  void Reserve(int count);
  // Appends `entity` and takes ownership. A full list grows to 1.5 times
  // its capacity, or to the needed size if that is more.
  void AddNewedEntityPtr(ZDbEntity* entity);
  // Moves the entities into fresh storage of exactly `capacity` slots.
  void Reallocate(int capacity);

  ZDbEntity** items_ = nullptr;
  int count_ = 0;
  int capacity_ = 0;
};
