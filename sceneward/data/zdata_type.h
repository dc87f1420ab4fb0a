#pragma once
// The base of the reference-counted data values. Values are made only by
// the ZDataCreate... functions, with a count of 1, and end only through
// Release, so one allocator serves both sides of the library's boundary.
//
// Copies copy the count as well as the value: a copy starts with its
// source's count, not with 1. Counts are neither atomic nor locked; a value
// shared between threads needs an outside lock, Retain and Release
// included.
#include <cstdint>

class ZDataType {
 public:
  ZDataType(const ZDataType&) = default;
  ZDataType& operator=(const ZDataType&) = default;

  void Retain() { ++mRefCount; }
  // Takes 1 from the count and deletes the value once the count is below 1.
  void Release();

  virtual int GetTypeID() const = 0;

 protected:
  ZDataType() = default;
  virtual ~ZDataType() = default;

  // Type identifiers are four ASCII characters read as a big-endian value.
  static constexpr int FourCharacterId(const char (&name)[5]) {
    return static_cast<int>(static_cast<uint32_t>(name[0]) << 24 | static_cast<uint32_t>(name[1]) << 16 |
                            static_cast<uint32_t>(name[2]) << 8 | static_cast<uint32_t>(name[3]));
  }

 private:
  int32_t mRefCount = 1;
};
