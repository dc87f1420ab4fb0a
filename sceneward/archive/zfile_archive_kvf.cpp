#include "sceneward/archive/zfile_archive_kvf.h"

namespace {

// Its bytes are kept as archives of this kind have always carried them;
// nothing reads them, and only the text at offset 7, with its length in
// front, says what they are.
unsigned char gHeader[ZFileArchive_KVF::kHeaderSize] = {
    0x5B, 0x01, 0x00, 0x00, 0x00, 0xBE, 0x0D, '2', '0', '0', '8', '+', ' ', 'a', 'r', 'c', 'h', 'i', 'v', 'e',
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0xFF, 0xFF, 0xFF, 0x7F};

unsigned char* HeaderFor(bool withHeader) { return withHeader ? gHeader : nullptr; }
int HeaderSizeFor(bool withHeader) { return withHeader ? ZFileArchive_KVF::kHeaderSize : 0; }

}  // namespace

unsigned char* ZFileArchive_KVF::HeaderBlock() { return gHeader; }

ZFileArchive_KVF::ZFileArchive_KVF(const ZFile& file, bool checkValid, bool withHeader)
    : ZFileArchive(file, HeaderFor(withHeader), HeaderSizeFor(withHeader)) {
  FallBackUnlessValid(checkValid);
}

ZFileArchive_KVF::ZFileArchive_KVF(platform::Stream* stream, bool checkValid, bool withHeader)
    : ZFileArchive(stream, HeaderFor(withHeader), HeaderSizeFor(withHeader)) {
  FallBackUnlessValid(checkValid);
}

// A file that can't be opened with the header is taken as a plain zip
// archive; whether it opens then is the caller's to ask.
void ZFileArchive_KVF::FallBackUnlessValid(bool checkValid) {
  if (!checkValid || IsValid()) return;
  if (stream != nullptr) {
    ZFileArchive::operator=(ZFileArchive_KVF(stream, false, false));
  } else {
    ZFileArchive::operator=(ZFileArchive_KVF(file, false, false));
  }
}
