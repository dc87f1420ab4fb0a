// Copies of entries between archives, without decompressing them.
#include <gtest/gtest.h>

#include "archive/archive_files.h"
#include "sceneward/archive/zfile_archive.h"

namespace {

class ArchiveCopyTest : public ArchiveFilesTest {};

TEST_F(ArchiveCopyTest, CopiedEntriesKeepTheirBytesAndRead) {
  std::string content;
  for (int i = 0; i < 100000; ++i) content += static_cast<char>('a' + i % 7 * (i % 13));
  ZFileArchive source(File("source.zip"), nullptr, 0);
  ASSERT_TRUE(source.OpenArchiveForWrite());
  ASSERT_TRUE(source.WriteFileFromVector(ZString("entry.txt"), Bytes(content)));
  ASSERT_TRUE(source.CloseArchiveForWrite());

  ZFileArchive target(File("target.zip"), nullptr, 0);
  ASSERT_TRUE(target.OpenArchiveForWrite());
  EXPECT_TRUE(target.CopyOneFile(ZString("renamed.txt"), source, ZString("ENTRY.TXT")));
  EXPECT_FALSE(target.CopyOneFile(ZString("ghost.txt"), source, ZString("missing.txt")));
  ASSERT_TRUE(target.CloseArchiveForWrite());
  EXPECT_FALSE(source.OpenFileForRead(ZString("entry.txt")));  // the source was closed again

  std::vector<ZString> names;
  target.GetListOfFiles(names);
  ASSERT_EQ(names.size(), 1u);
  EXPECT_EQ(names[0], "renamed.txt");
  ASSERT_TRUE(target.OpenArchiveForRead());
  ASSERT_TRUE(source.OpenArchiveForRead());
  EXPECT_EQ(target.GetCompressedSizeOfFile(ZString("renamed.txt")), source.GetCompressedSizeOfFile(ZString("entry.txt")));
  std::vector<char> data;
  EXPECT_TRUE(target.ReadOneFileToVector(ZString("renamed.txt"), data));
  EXPECT_EQ(Text(data), content);
  target.CloseArchiveForRead();
  source.CloseArchiveForRead();
  SW_REQUIRE_TOOL("unzip");
  EXPECT_EQ(Run("unzip -t target.zip"), 0);
}

TEST_F(ArchiveCopyTest, EncryptedEntriesOfZipStayEncryptedWithoutAPassword) {
  SW_REQUIRE_TOOL("zip");
  SW_REQUIRE_TOOL("unzip");
  WriteBytes("a file.txt", std::string(40000, 'q') + "end");
  ASSERT_EQ(Run("zip -P word locked.zip 'a file.txt'"), 0);
  ZFileArchive source(File("locked.zip"), nullptr, 0);
  ZFileArchive target(File("copy.zip"), nullptr, 0);
  ASSERT_TRUE(target.OpenArchiveForWrite());
  ASSERT_TRUE(target.CopyOneFile(ZString("a file.txt"), source, ZString("a file.txt")));
  ASSERT_TRUE(target.CloseArchiveForWrite());
  EXPECT_EQ(Run("unzip -P word -t copy.zip"), 0);
  EXPECT_NE(Run("unzip -P other -t copy.zip"), 0);
  target.SetPassword(ZString("word"));
  ASSERT_TRUE(target.OpenArchiveForRead());
  std::vector<char> data;
  EXPECT_TRUE(target.ReadOneFileToVector(ZString("a file.txt"), data));
  EXPECT_EQ(Text(data), std::string(40000, 'q') + "end");
  target.CloseArchiveForRead();
}

TEST_F(ArchiveCopyTest, CopyNeedsBothArchivesOpen) {
  ZFileArchive missing(File("missing.zip"), nullptr, 0);
  ZFileArchive target(File("target.zip"), nullptr, 0);
  EXPECT_FALSE(target.CopyOneFile(ZString("a"), missing, ZString("a")));
  ASSERT_TRUE(target.OpenArchiveForWrite());
  EXPECT_FALSE(target.CopyOneFile(ZString("a"), missing, ZString("a")));
  EXPECT_TRUE(target.CloseArchiveForWrite());
}

}  // namespace
