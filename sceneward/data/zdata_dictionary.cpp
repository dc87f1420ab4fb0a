#include "sceneward/data/zdata_dictionary.h"

#include "sceneward/data/zdata_values.h"

ZDataDictionary* ZDataCreateDictionary() { return new ZDataDictionary(); }

ZDataDictionary::~ZDataDictionary() { Clear(); }

ZDataType* ZDataDictionary::Get(const ZString& key) const {
  const auto found = mMap.find(key);
  return found == mMap.end() ? nullptr : found->second;
}

// The old value is released only after the new one is stored, so that
// storing a value over itself without adopting it never frees it.
void ZDataDictionary::Insert(const ZString& key, ZDataType* value, bool adopt) {
  if (value == nullptr) return;
  ZDataType* previous = Get(key);
  if (!adopt) value->Retain();
  mMap[key] = value;
  if (previous != nullptr) previous->Release();
}

void ZDataDictionary::Erase(const ZString& key) {
  const auto found = mMap.find(key);
  if (found == mMap.end()) return;
  ZDataType* value = found->second;
  mMap.erase(found);
  value->Release();
}

void ZDataDictionary::Clear() {
  for (auto& entry : mMap) entry.second->Release();
  mMap.clear();
}

template <typename T>
T* ZDataDictionary::GetTyped(const ZString& key) const {
  ZDataType* value = Get(key);
  return value != nullptr && value->GetTypeID() == T::ID() ? static_cast<T*>(value) : nullptr;
}

uint64_t ZDataDictionary::GetInt(const ZString& key) {
  const ZDataInteger* value = GetTyped<ZDataInteger>(key);
  return value != nullptr ? value->GetValue() : ~uint64_t{0};
}

void ZDataDictionary::SetInt(const ZString& key, uint64_t value) { Insert(key, ZDataCreateInteger(value), true); }

float ZDataDictionary::GetFloat(const ZString& key) {
  const ZDataFloat* value = GetTyped<ZDataFloat>(key);
  return value != nullptr ? value->GetValue() : -1.0f;
}

void ZDataDictionary::SetFloat(const ZString& key, float value) { Insert(key, ZDataCreateFloat(value), true); }

ZString ZDataDictionary::GetString(const ZString& key) {
  const ZDataString* value = GetTyped<ZDataString>(key);
  return value != nullptr ? value->GetValue() : ZString();
}

void ZDataDictionary::SetString(const ZString& key, const ZString& value) {
  Insert(key, ZDataCreateString(value), true);
}

void* ZDataDictionary::GetPtr(const ZString& key) {
  const ZDataInteger* value = GetTyped<ZDataInteger>(key);
  return value != nullptr ? reinterpret_cast<void*>(value->GetValue()) : nullptr;
}

void ZDataDictionary::SetPtr(const ZString& key, void* value) { SetInt(key, reinterpret_cast<uint64_t>(value)); }
