#pragma once
// The three scalar data values: a 64-bit integer (which also carries
// pointers), a float and a text. Their copies copy the value and the count.
#include <cstdint>

#include "sceneward/data/zdata_type.h"
#include "sceneward/foundation/zstring.h"

class ZDataInteger;
class ZDataFloat;
class ZDataString;

// Each answers a new value with a count of 1.
ZDataInteger* ZDataCreateInteger(uint64_t value);
ZDataFloat* ZDataCreateFloat(float value);
ZDataString* ZDataCreateString(const ZString& value);

class ZDataInteger : public ZDataType {
 public:
  static constexpr int ID() { return FourCharacterId("ZDIn"); }
  ZDataInteger(const ZDataInteger&) = default;
  ZDataInteger& operator=(const ZDataInteger&) = default;

  int GetTypeID() const override { return ID(); }
  uint64_t GetValue() const { return mValue; }
  void SetValue(uint64_t value) { mValue = value; }

 private:
  friend ZDataInteger* ZDataCreateInteger(uint64_t value);
  explicit ZDataInteger(uint64_t value) : mValue(value) {}
  ~ZDataInteger() override = default;

  uint64_t mValue;
};

class ZDataFloat : public ZDataType {
 public:
  static constexpr int ID() { return FourCharacterId("ZDFl"); }
  ZDataFloat(const ZDataFloat&) = default;
  ZDataFloat& operator=(const ZDataFloat&) = default;

  int GetTypeID() const override { return ID(); }
  float GetValue() const { return mValue; }
  void SetValue(float value) { mValue = value; }

 private:
  friend ZDataFloat* ZDataCreateFloat(float value);
  explicit ZDataFloat(float value) : mValue(value) {}
  ~ZDataFloat() override = default;

  float mValue;
};

class ZDataString : public ZDataType {
 public:
  static constexpr int ID() { return FourCharacterId("ZDSt"); }
  ZDataString(const ZDataString&) = default;
  ZDataString& operator=(const ZDataString&) = default;

  int GetTypeID() const override { return ID(); }
  const ZString& GetValue() const { return mValue; }
  void SetValue(const ZString& value) { mValue = value; }

 private:
  friend ZDataString* ZDataCreateString(const ZString& value);
  explicit ZDataString(const ZString& value) : mValue(value) {}
  ~ZDataString() override = default;

  ZString mValue;
};
