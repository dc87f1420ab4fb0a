#pragma once
// A dictionary of data values under text keys, in ZString order. It holds
// one reference per entry and gives it up on Erase, Clear, overwrite and
// destruction.
//
// Copies are shallow and don't count: a copy (or an assignment) shares the
// source's values without retaining them, and an assignment drops the
// target's entries without releasing them. Both containers then release
// the shared values once each; a caller that wants a second owner retains
// the values itself.
#include <cstdint>
#include <functional>
#include <map>

#include "sceneward/data/zdata_type.h"
#include "sceneward/foundation/zstring.h"

class ZDataDictionary;

// A new, empty dictionary with a count of 1.
ZDataDictionary* ZDataCreateDictionary();

class ZDataDictionary : public ZDataType {
 public:
  static constexpr int ID() { return FourCharacterId("ZDDi"); }
  ZDataDictionary(const ZDataDictionary&) = default;
  ZDataDictionary& operator=(const ZDataDictionary&) = default;

  int GetTypeID() const override { return ID(); }

  // The value under `key`, borrowed (no Retain); null if the key is missing.
  ZDataType* Get(const ZString& key) const;
  // Stores `value` under `key`, replacing (and then releasing) what was
  // there. With `adopt` the caller's reference passes to the dictionary;
  // without, the dictionary retains the value. A null value does nothing.
  void Insert(const ZString& key, ZDataType* value, bool adopt);
  // Releases and removes the entry; a missing key does nothing.
  void Erase(const ZString& key);
  // Releases every value, in key order, and empties the dictionary.
  void Clear();

  // Typed access. The getters answer the stored value if it has the right
  // type, and otherwise (also for a missing key) all bits set, null, -1.0
  // and the empty text. Pointers are stored as integers, so GetInt and
  // GetPtr read each other's values. The setters always store a new value,
  // of whatever type was there before.
  uint64_t GetInt(const ZString& key);
  void SetInt(const ZString& key, uint64_t value);
  float GetFloat(const ZString& key);
  void SetFloat(const ZString& key, float value);
  ZString GetString(const ZString& key);
  void SetString(const ZString& key, const ZString& value);
  void* GetPtr(const ZString& key);
  void SetPtr(const ZString& key, void* value);

 private:
  friend ZDataDictionary* ZDataCreateDictionary();
  ZDataDictionary() = default;
  ~ZDataDictionary() override;

  // The value under `key` if it is a T, else null.
  template <typename T>
  T* GetTyped(const ZString& key) const;

  std::map<ZString, ZDataType*, std::less<ZString>> mMap;
};
