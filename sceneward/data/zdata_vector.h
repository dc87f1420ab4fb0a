#pragma once
// A vector of data values. It holds one reference per element and gives it
// up on Erase, PopBack, Clear and destruction. Copies are shallow and don't
// count, as those of ZDataDictionary.
#include <cstddef>
#include <vector>

#include "sceneward/data/zdata_type.h"

class ZDataVector;

// A new, empty vector with a count of 1.
ZDataVector* ZDataCreateVector();

class ZDataVector : public ZDataType {
 public:
  static constexpr int ID() { return FourCharacterId("ZDVc"); }
  ZDataVector(const ZDataVector&) = default;
  ZDataVector& operator=(const ZDataVector&) = default;

  int GetTypeID() const override { return ID(); }

  // The element at `index`, borrowed; null outside 0 to size - 1.
  ZDataType* Get(int index) const;
  // Appends `value`. With `adopt` the caller's reference passes to the
  // vector; without, the vector retains the value. Null does nothing.
  void PushBack(ZDataType* value, bool adopt);
  // Releases and removes the last element; nothing on an empty vector.
  void PopBack();
  // Inserts `value` before the element at `index`. Only positions of
  // existing elements take a value: an index at or past the end (so any
  // index on an empty vector) or below 0 does nothing, retains nothing,
  // and leaves an adopted value the caller's. Appending is PushBack's job.
  void Insert(int index, ZDataType* value, bool adopt);
  // Releases and removes the element at `index`; nothing outside 0 to
  // size - 1.
  void Erase(int index);
  // Releases every element, from the first on, and empties the vector.
  void Clear();

 private:
  friend ZDataVector* ZDataCreateVector();
  ZDataVector() = default;
  ~ZDataVector() override;

  bool HoldsIndex(int index) const { return index >= 0 && static_cast<std::size_t>(index) < mVector.size(); }

  std::vector<ZDataType*> mVector;
};
