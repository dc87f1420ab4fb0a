// Feeds arbitrary bytes to the archive reader as a file on disk (archives
// open by path only): listing, whole-entry reads with and without a
// password, and a raw copy into a second archive.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "sceneward/archive/zfile_archive.h"

namespace {

std::string ScratchPath(const char* suffix) {
  return "/tmp/sw-archive-fuzz-" + std::to_string(getpid()) + suffix;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const std::string input = ScratchPath(".zip");
  static const std::string copy = ScratchPath("-copy.zip");
  std::FILE* file = std::fopen(input.c_str(), "wb");
  if (file == nullptr) return 0;
  std::fwrite(data, 1, size, file);
  std::fclose(file);

  ZFileArchive archive(ZFile(ZString(input.c_str())), nullptr, 0);
  std::vector<ZString> names;
  archive.GetListOfFiles(names);
  ZFileArchive target(ZFile(ZString(copy.c_str())), nullptr, 0);
  target.OpenArchiveForWrite();
  for (const char* password : {"", "password"}) {
    archive.SetPassword(ZString(password));
    if (!archive.OpenArchiveForRead()) break;
    for (const ZString& name : names) {
      std::vector<char> entry;
      archive.ReadOneFileToVector(name, entry);
      archive.GetCompressedSizeOfFile(name);
    }
    archive.CloseArchiveForRead();
  }
  if (!names.empty()) target.CopyOneFile(ZString("copied"), archive, names.front());
  target.CloseArchiveForWrite();
  return 0;
}
