// Damaged archives, wrong passwords and files that aren't archives: each
// gives false, and nothing crashes (the suite runs under the sanitizers).
#include <gtest/gtest.h>

#include "archive/archive_files.h"
#include "sceneward/archive/zfile_archive.h"

namespace {

class ArchiveBadInputTest : public ArchiveFilesTest {
 protected:
  ArchiveBadInputTest() {
    std::string content;
    for (int i = 0; i < 60000; ++i) content += "word" + std::to_string(i % 97) + (i % 11 ? " " : "\n");
    content_ = content;
    for (const char* password : {"", "pw"}) {
      ZFileArchive archive(File(*password ? "locked.zip" : "good.zip"), nullptr, 0);
      archive.SetPassword(ZString(password));
      EXPECT_TRUE(archive.OpenArchiveForWrite());
      EXPECT_TRUE(archive.WriteFileFromVector(ZString("entry.txt"), Bytes(content_)));
      EXPECT_TRUE(archive.CloseArchiveForWrite());
    }
  }

  // Whether the entry reads back whole from `name`, which may be damaged.
  bool ReadsBack(const std::string& name, const char* password = "") {
    ZFileArchive archive(File(name), nullptr, 0);
    archive.SetPassword(ZString(password));
    if (!archive.OpenArchiveForRead()) return false;
    std::vector<char> data;
    const bool read = archive.ReadOneFileToVector(ZString("entry.txt"), data);
    // Reading piece by piece meets the damage too.
    if (archive.OpenFileForRead(ZString("entry.txt"))) {
      char buffer[4096];
      while (archive.ReadDataFromOpenFile(buffer, sizeof buffer) > 0) {
      }
      archive.CloseFileForRead();
    }
    archive.CloseArchiveForRead();
    return read && Text(data) == content_;
  }

  // A copy of `source` with the byte at `offset` (counted from the end when
  // negative) changed.
  void Flip(const std::string& source, const std::string& target, long offset) {
    std::string bytes = ReadBytes(source);
    const size_t at = offset < 0 ? bytes.size() - static_cast<size_t>(-offset) : static_cast<size_t>(offset);
    bytes[at] = static_cast<char>(bytes[at] ^ 0x5A);
    WriteBytes(target, bytes);
  }

  std::string content_;
};

TEST_F(ArchiveBadInputTest, IntactArchivesReadBack) {
  EXPECT_TRUE(ReadsBack("good.zip"));
  EXPECT_TRUE(ReadsBack("locked.zip", "pw"));
}

TEST_F(ArchiveBadInputTest, TruncatedArchivesFail) {
  for (const char* source : {"good.zip", "locked.zip"}) {
    const std::string bytes = ReadBytes(source);
    for (size_t keep : {size_t{0}, size_t{10}, bytes.size() / 2, bytes.size() - 30}) {
      WriteBytes("cut.zip", bytes.substr(0, keep));
      EXPECT_FALSE(ReadsBack("cut.zip", "pw")) << source << " cut to " << keep;
    }
  }
}

TEST_F(ArchiveBadInputTest, DamagedDataFailsItsChecks) {
  Flip("good.zip", "data.zip", 200);
  EXPECT_FALSE(ReadsBack("data.zip"));
  // Stored data under the cipher: only the CRC can tell.
  Flip("locked.zip", "locked-data.zip", 5000);
  EXPECT_FALSE(ReadsBack("locked-data.zip", "pw"));
}

TEST_F(ArchiveBadInputTest, DamagedDirectoriesFail) {
  for (long offset : {-60L, -50L, -35L, -22L, -16L, -12L, 0L, 8L, 20L, 28L}) {
    Flip("good.zip", "directory.zip", offset);
    EXPECT_FALSE(ReadsBack("directory.zip")) << offset;
  }
}

TEST_F(ArchiveBadInputTest, WrongOrMissingPasswordsFail) {
  EXPECT_FALSE(ReadsBack("locked.zip"));
  for (const char* wrong : {"PW", "p", "pww", "wrong password"}) EXPECT_FALSE(ReadsBack("locked.zip", wrong));
}

TEST_F(ArchiveBadInputTest, FilesThatArentArchivesAreInvalid) {
  WriteBytes("text.zip", "PK\x05\x06 but not really an archive, just text that goes on for a while");
  for (const char* name : {"text.zip", "absent.zip", ""}) {
    ZFileArchive archive(File(name), nullptr, 0);
    EXPECT_FALSE(archive.IsValid()) << name;
    std::vector<ZString> names;
    archive.GetListOfFiles(names);
    EXPECT_TRUE(names.empty());
  }
  ZFileArchive folder(ZFile(ZString(directory_.c_str())), nullptr, 0);
  EXPECT_FALSE(folder.IsValid());
  EXPECT_FALSE(folder.OpenArchiveForWrite());
}

}  // namespace
