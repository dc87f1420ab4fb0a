// Archives exchanged with Info-ZIP's zip and unzip and with Python's
// zipfile, plain and under the traditional cipher.
#include <gtest/gtest.h>
#include <zlib.h>

#include "archive/archive_files.h"
#include "sceneward/archive/zfile_archive.h"

namespace {

class ArchiveInteropTest : public ArchiveFilesTest {
 protected:
  void WriteEntries(const std::string& archiveName, const ZString& password,
                    const std::vector<std::pair<std::string, std::string>>& entries) {
    ZFileArchive archive(File(archiveName), nullptr, 0);
    archive.SetPassword(password);
    ASSERT_TRUE(archive.OpenArchiveForWrite());
    for (const auto& [name, content] : entries) {
      ASSERT_TRUE(archive.WriteFileFromVector(ZString(name.c_str()), Bytes(content)));
    }
    ASSERT_TRUE(archive.CloseArchiveForWrite());
  }

  // The entry as this archive reads it, or "<unreadable>".
  std::string ReadEntry(const std::string& archiveName, const std::string& entry, const char* password = "") {
    ZFileArchive archive(File(archiveName), nullptr, 0);
    archive.SetPassword(ZString(password));
    if (!archive.OpenArchiveForRead()) return "<unreadable>";
    std::vector<char> data;
    const bool read = archive.ReadOneFileToVector(ZString(entry.c_str()), data);
    archive.CloseArchiveForRead();
    return read ? Text(data) : "<unreadable>";
  }

  // Python's reading of every entry, checked against their CRCs.
  int PythonReads(const std::string& archiveName, const std::string& password = "") {
    const std::string pwd = password.empty() ? "None" : "b'" + password + "'";
    return Run("python3 -c \"import zipfile,sys; z=zipfile.ZipFile('" + archiveName + "'); z.setpassword(" + pwd +
               "); [z.read(n) for n in z.namelist()]; sys.exit(z.testzip() is not None)\"");
  }
};

std::string MixedContent(int size) {
  std::string content;
  for (int i = 0; content.size() < static_cast<size_t>(size); ++i) {
    content += "line " + std::to_string(i) + " of some text\n";
    content += static_cast<char>(i * 131 % 256);
  }
  content.resize(static_cast<size_t>(size));
  return content;
}

uint32_t Crc(const std::string& data) {
  return static_cast<uint32_t>(crc32(0, reinterpret_cast<const Bytef*>(data.data()), static_cast<uInt>(data.size())));
}

// Content whose CRC-32 has a top byte of `top` (or not, with `matching`
// false): the check byte that other tools compare the header's with.
std::string ContentWithCrcTop(bool matching, uint8_t top) {
  for (int i = 0;; ++i) {
    const std::string candidate = MixedContent(5000) + std::to_string(i);
    if (((Crc(candidate) >> 24) == top) == matching) return candidate;
  }
}

TEST_F(ArchiveInteropTest, ArchivesWrittenHereAreAcceptedByUnzipAndPython) {
  SW_REQUIRE_TOOL("unzip");
  WriteEntries("ours.zip", ZString(), {{"text.txt", MixedContent(200000)}, {"name with spaces.bin", "\x01\x02\x03"}});
  EXPECT_EQ(Run("unzip -t ours.zip"), 0);
  EXPECT_EQ(PythonReads("ours.zip"), 0);
  ASSERT_EQ(Run("mkdir out && cd out && unzip ../ours.zip"), 0);
  EXPECT_EQ(ReadBytes("out/text.txt"), MixedContent(200000));
  EXPECT_EQ(ReadBytes("out/name with spaces.bin"), "\x01\x02\x03");
}

TEST_F(ArchiveInteropTest, ArchivesOfZipReadHereStoredAndDeflated) {
  SW_REQUIRE_TOOL("zip");
  WriteBytes("plain text.txt", MixedContent(100000));
  WriteBytes("small.bin", std::string("\0\1\2\3", 4));
  ASSERT_EQ(Run("zip -0 stored.zip 'plain text.txt' small.bin"), 0);
  ASSERT_EQ(Run("zip -9 deflated.zip 'plain text.txt' small.bin"), 0);
  for (const char* archive : {"stored.zip", "deflated.zip"}) {
    EXPECT_EQ(ReadEntry(archive, "plain text.txt"), MixedContent(100000)) << archive;
    EXPECT_EQ(ReadEntry(archive, "SMALL.BIN"), std::string("\0\1\2\3", 4)) << archive;
  }
  ZFileArchive archive(File("deflated.zip"), nullptr, 0);
  std::vector<ZString> names;
  archive.GetListOfFiles(names);
  ASSERT_EQ(names.size(), 2u);
  EXPECT_EQ(names[0], "plain text.txt");
}

TEST_F(ArchiveInteropTest, EncryptedArchivesOfZipReadWithTheirPasswordOnly) {
  SW_REQUIRE_TOOL("zip");
  WriteBytes("secret.txt", MixedContent(50000));
  WriteBytes("tiny.txt", "x");
  ASSERT_EQ(Run("zip -P 'open sesame' locked.zip secret.txt tiny.txt"), 0);
  EXPECT_EQ(ReadEntry("locked.zip", "secret.txt", "open sesame"), MixedContent(50000));
  EXPECT_EQ(ReadEntry("locked.zip", "tiny.txt", "open sesame"), "x");
  EXPECT_EQ(ReadEntry("locked.zip", "secret.txt", "open sesamE"), "<unreadable>");
  EXPECT_EQ(ReadEntry("locked.zip", "secret.txt"), "<unreadable>");
}

TEST_F(ArchiveInteropTest, EncryptedEntriesAreStoredAndReadBackHere) {
  const std::string content = MixedContent(300000);
  WriteEntries("mine.zip", ZString("pw"), {{"data.txt", content}});
  EXPECT_EQ(ReadEntry("mine.zip", "data.txt", "pw"), content);
  EXPECT_EQ(ReadEntry("mine.zip", "data.txt", "wrong"), "<unreadable>");
  EXPECT_EQ(ReadEntry("mine.zip", "data.txt"), "<unreadable>");
  ZFileArchive archive(File("mine.zip"), nullptr, 0);
  ASSERT_TRUE(archive.OpenArchiveForRead());
  // Deflate at level 0: the text is stored, with only the cipher's header
  // and deflate's block framing on top.
  EXPECT_GT(archive.GetCompressedSizeOfFile(ZString("data.txt")), 300000 + 12);
  EXPECT_LT(archive.GetCompressedSizeOfFile(ZString("data.txt")), 300000 + 12 + 100);
  archive.CloseArchiveForRead();
  SW_REQUIRE_TOOL("unzip");
  // unzip still sees a sound archive; whether it takes the password is
  // the next test's matter.
  EXPECT_EQ(Run("unzip -l mine.zip"), 0);
}

// The header's check byte written here is 0. Other tools compare it with
// the top byte of the entry's CRC, so they accept the password exactly
// when that byte is 0 as well.
TEST_F(ArchiveInteropTest, UnzipAndPythonTakeThePasswordWhereTheCheckByteAllows) {
  SW_REQUIRE_TOOL("unzip");
  const std::string fitting = ContentWithCrcTop(true, 0);
  const std::string other = ContentWithCrcTop(false, 0);
  WriteEntries("fits.zip", ZString("pw"), {{"fits.txt", fitting}});
  WriteEntries("other.zip", ZString("pw"), {{"other.txt", other}});
  EXPECT_EQ(Run("unzip -P pw -t fits.zip"), 0);
  EXPECT_EQ(PythonReads("fits.zip", "pw"), 0);
  ASSERT_EQ(Run("mkdir out && cd out && unzip -P pw ../fits.zip"), 0);
  EXPECT_EQ(ReadBytes("out/fits.txt"), fitting);
  EXPECT_NE(Run("unzip -P pw -t other.zip"), 0);
  EXPECT_EQ(ReadEntry("other.zip", "other.txt", "pw"), other);
}

}  // namespace
