// The file functions that keep a header in front of the zip stream, and the
// archive flavour that carries a fixed header.
#include <gtest/gtest.h>
#include <minizip/unzip.h>
#include <minizip/zip.h>

#include <cstring>

#include "archive/archive_files.h"
#include "platform/stream.h"
#include "sceneward/archive/headered_file_functions.h"
#include "sceneward/archive/zfile_archive_kvf.h"

namespace {

// A stream over memory, as an application might hand one over.
class MemoryStream final : public platform::Stream {
 public:
  int32_t Read(void* buffer, uint32_t size, uint32_t* read) override {
    const size_t count = std::min<size_t>(size, bytes.size() - std::min(position_, bytes.size()));
    if (count > 0) std::memcpy(buffer, bytes.data() + position_, count);
    position_ += count;
    if (read != nullptr) *read = static_cast<uint32_t>(count);
    return kOk;
  }
  int32_t Write(const void* data, uint32_t size, uint32_t* written) override {
    if (bytes.size() < position_ + size) bytes.resize(position_ + size);
    std::memcpy(bytes.data() + position_, data, size);
    position_ += size;
    if (written != nullptr) *written = size;
    return kOk;
  }
  int32_t Seek(int64_t move, uint32_t origin, uint64_t* position) override {
    const int64_t base = origin == kFromStart ? 0 : origin == kFromCurrent ? static_cast<int64_t>(position_)
                                                                           : static_cast<int64_t>(bytes.size());
    if (base + move < 0 || origin > kFromEnd) return kFailed;
    position_ = static_cast<size_t>(base + move);
    if (position != nullptr) *position = position_;
    return kOk;
  }

  std::string bytes;

 private:
  size_t position_ = 0;
};

class HeaderedArchiveTest : public ArchiveFilesTest {
 protected:
  // Writes one entry through `functions` to `path` and reads it back.
  static std::string RoundTrip(zlib_filefunc_def* functions, const char* path) {
    zipFile zip = zipOpen2(path, APPEND_STATUS_CREATE, nullptr, functions);
    if (zip == nullptr) return "<no archive>";
    zip_fileinfo info{};
    zipOpenNewFileInZip(zip, "inside.txt", &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 9);
    zipWriteInFileInZip(zip, "behind the header", 17);
    zipCloseFileInZip(zip);
    zipClose(zip, nullptr);

    unzFile unz = unzOpen2(path, functions);
    if (unz == nullptr) return "<unreadable>";
    char buffer[64] = {};
    int got = -1;
    if (unzLocateFile(unz, "inside.txt", 0) == UNZ_OK && unzOpenCurrentFile(unz) == UNZ_OK) {
      got = unzReadCurrentFile(unz, buffer, sizeof buffer);
      unzCloseCurrentFile(unz);
    }
    unzClose(unz);
    return got < 0 ? "<unreadable>" : std::string(buffer, static_cast<size_t>(got));
  }

  unsigned char header_[5] = {'H', 'E', 'A', 'D', 0};
};

TEST_F(HeaderedArchiveTest, FilesGetTheHeaderAndTheZipStreamBehindIt) {
  zlib_filefunc_def* functions = CreateHeaderedFileFunctions(nullptr, header_, sizeof header_);
  EXPECT_EQ(RoundTrip(functions, Path("headed.zip").c_str()), "behind the header");
  DestroyHeaderedFileFunctions(functions);
  const std::string bytes = ReadBytes("headed.zip");
  EXPECT_EQ(bytes.substr(0, 9), std::string("HEAD\0PK\x03\x04", 9));
  // Offsets count from the header's end; the zip layer allows for bytes in
  // front of an archive (as in self-extracting ones), so plain reading
  // still finds the entries.
  ZFileArchive plain(File("headed.zip"), nullptr, 0);
  ASSERT_TRUE(plain.OpenArchiveForRead());
  std::vector<char> data;
  EXPECT_TRUE(plain.ReadOneFileToVector(ZString("inside.txt"), data));
  EXPECT_EQ(Text(data), "behind the header");
  plain.CloseArchiveForRead();
}

TEST_F(HeaderedArchiveTest, StreamsGetTheHeaderToo) {
  MemoryStream stream;
  zlib_filefunc_def* functions = CreateHeaderedFileFunctions(&stream, header_, sizeof header_);
  EXPECT_EQ(RoundTrip(functions, "ignored"), "behind the header");
  DestroyHeaderedFileFunctions(functions);
  EXPECT_EQ(stream.bytes.substr(0, 9), std::string("HEAD\0PK\x03\x04", 9));
}

TEST_F(HeaderedArchiveTest, WithoutAHeaderTheFileIsAPlainArchive) {
  zlib_filefunc_def* functions = CreateHeaderedFileFunctions(nullptr, nullptr, 0);
  EXPECT_EQ(RoundTrip(functions, Path("plain.zip").c_str()), "behind the header");
  DestroyHeaderedFileFunctions(functions);
  DestroyHeaderedFileFunctions(nullptr);
  EXPECT_EQ(ReadBytes("plain.zip").substr(0, 4), "PK\x03\x04");
}

TEST_F(HeaderedArchiveTest, HeaderBlockHoldsItsFixedBytes) {
  const unsigned char* block = ZFileArchive_KVF::HeaderBlock();
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(block), 7), std::string("\x5B\x01\0\0\0\xBE\x0D", 7));
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(block) + 7, 13), "2008+ archive");
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(block) + 20, 68), std::string(68, '\0'));
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(block) + 88, 4), "\xFF\xFF\xFF\x7F");
}

TEST_F(HeaderedArchiveTest, HeadedFlavourWritesPlainZipFiles) {
  {
    ZFileArchive_KVF archive(File("model.kvf"), false, true);
    ASSERT_TRUE(archive.OpenArchiveForWrite());
    ASSERT_TRUE(archive.WriteFileFromVector(ZString("part"), Bytes("content")));
    ASSERT_TRUE(archive.CloseArchiveForWrite());
  }
  EXPECT_EQ(ReadBytes("model.kvf").substr(0, 4), "PK\x03\x04");
  ZFileArchive_KVF checked(File("model.kvf"), true, true);
  EXPECT_TRUE(checked.IsValid());
  ASSERT_TRUE(checked.OpenArchiveForRead());
  std::vector<char> data;
  EXPECT_TRUE(checked.ReadOneFileToVector(ZString("part"), data));
  EXPECT_EQ(Text(data), "content");
  checked.CloseArchiveForRead();
  SW_REQUIRE_TOOL("unzip");
  EXPECT_EQ(Run("unzip -t model.kvf"), 0);
}

TEST_F(HeaderedArchiveTest, ConstructionWithoutTheCheckTouchesNoFile) {
  ZFileArchive_KVF unchecked(File("never.kvf"), false, true);
  ZFileArchive_KVF moved(std::move(unchecked));
  EXPECT_FALSE(File("never.kvf").Exists());
  EXPECT_EQ(moved.GetFileName(), unchecked.GetFileName());  // a move copies
}

TEST_F(HeaderedArchiveTest, FallbackOnABadFileStaysInvalid) {
  WriteBytes("bad.kvf", "no archive here");
  ZFileArchive_KVF plainChecked(File("bad.kvf"), true, false);
  EXPECT_FALSE(plainChecked.IsValid());
  ZFileArchive_KVF headedChecked(File("bad.kvf"), true, true);
  EXPECT_FALSE(headedChecked.IsValid());
  MemoryStream stream;
  ZFileArchive_KVF onStream(&stream, true, true);
  EXPECT_FALSE(onStream.IsValid());
  EXPECT_EQ(onStream.GetFileName(), "");
}

}  // namespace
