#pragma once
// An archive that may carry a fixed 92-byte header in front of its zip
// stream, with a fallback to a plain zip archive. While the open operations
// of ZFileArchive ignore the header, files written through this class are
// plain zip archives.
#include "sceneward/archive/zfile_archive.h"

class ZFileArchive_KVF : public ZFileArchive {
 public:
  static constexpr int kHeaderSize = 92;

  // With `withHeader`, the archive uses the shared header block. With
  // `checkValid`, an archive that IsValid rejects is rebuilt without the
  // header, once, with no second test: it may stay invalid. Without
  // `checkValid`, construction touches no file.
  ZFileArchive_KVF(const ZFile& file, bool checkValid, bool withHeader);
  ZFileArchive_KVF(platform::Stream* stream, bool checkValid, bool withHeader);
  // Copies and moves are the base's copies: a move copies.
  ZFileArchive_KVF(const ZFileArchive_KVF& other) : ZFileArchive(other) {}
  ZFileArchive_KVF(ZFileArchive_KVF&& other) : ZFileArchive(other) {}
  ZFileArchive_KVF& operator=(const ZFileArchive_KVF& other) {
    ZFileArchive::operator=(other);
    return *this;
  }
  ZFileArchive_KVF& operator=(ZFileArchive_KVF&& other) {
    ZFileArchive::operator=(other);
    return *this;
  }
  ~ZFileArchive_KVF() override = default;

  // The one header block, shared by every object and freed by none.
  static unsigned char* HeaderBlock();

 private:
  void FallBackUnlessValid(bool checkValid);
};
