#pragma once
// A byte stream that an application hands the library, with the three
// operations of a COM stream and its results: 0 for success, a negative
// code for failure.
#include <cstdint>

namespace platform {

class Stream {
 public:
  static constexpr int32_t kOk = 0;
  static constexpr int32_t kFailed = static_cast<int32_t>(0x80004005);

  // Origins of Seek.
  static constexpr uint32_t kFromStart = 0;
  static constexpr uint32_t kFromCurrent = 1;
  static constexpr uint32_t kFromEnd = 2;

  // Reads up to `size` bytes; `*read` (if not null) gets the count, which is
  // below `size` only at the end of the stream.
  virtual int32_t Read(void* buffer, uint32_t size, uint32_t* read) = 0;
  // Writes `size` bytes; `*written` (if not null) gets the count.
  virtual int32_t Write(const void* data, uint32_t size, uint32_t* written) = 0;
  // Moves the position by `move` from `origin`; `*position` (if not null)
  // gets the new position. A position before the start fails and moves
  // nothing.
  virtual int32_t Seek(int64_t move, uint32_t origin, uint64_t* position) = 0;

 protected:
  ~Stream() = default;
};

}  // namespace platform
