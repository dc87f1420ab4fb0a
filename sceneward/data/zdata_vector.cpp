#include "sceneward/data/zdata_vector.h"

ZDataVector* ZDataCreateVector() { return new ZDataVector(); }

ZDataVector::~ZDataVector() { Clear(); }

ZDataType* ZDataVector::Get(int index) const { return HoldsIndex(index) ? mVector[index] : nullptr; }

void ZDataVector::PushBack(ZDataType* value, bool adopt) {
  if (value == nullptr) return;
  if (!adopt) value->Retain();
  mVector.push_back(value);
}

void ZDataVector::PopBack() {
  if (mVector.empty()) return;
  ZDataType* last = mVector.back();
  mVector.pop_back();
  last->Release();
}

void ZDataVector::Insert(int index, ZDataType* value, bool adopt) {
  if (value == nullptr || !HoldsIndex(index)) return;
  if (!adopt) value->Retain();
  mVector.insert(mVector.begin() + index, value);
}

void ZDataVector::Erase(int index) {
  if (!HoldsIndex(index)) return;
  ZDataType* value = mVector[index];
  mVector.erase(mVector.begin() + index);
  value->Release();
}

void ZDataVector::Clear() {
  for (ZDataType* value : mVector) value->Release();
  mVector.clear();
}
