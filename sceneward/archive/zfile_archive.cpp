#include "sceneward/archive/zfile_archive.h"

#include <minizip/ioapi.h>
#include <minizip/unzip.h>
#include <minizip/zip.h>
#include <zlib.h>

#include <cstdio>
#include <cstring>

#include "platform/files.h"
#include "sceneward/archive/encrypted_entry.h"
#include "sceneward/archive/headered_file_functions.h"

namespace {

constexpr unsigned kCopyBlockSize = 32768;
constexpr unsigned kListedNameBytes = 512;
constexpr int kCaseInsensitive = 2;
constexpr uLong kEncryptedFlag = 1;
constexpr uLong kDataDescriptorFlag = 8;
constexpr int kPlainLevel = 9;
constexpr int kEncryptedLevel = 0;
// The check byte of the headers this archive writes: the top byte of a CRC
// of 0. Tools that compare it with the top byte of the entry's real CRC
// accept such an entry only when that byte happens to be 0 too.
constexpr uint8_t kOwnCheckByte = 0;

unzFile Reader(void* handle) { return static_cast<unzFile>(handle); }
zipFile Writer(void* handle) { return static_cast<zipFile>(handle); }

zlib_filefunc64_def PathFileFunctions() {
  zlib_filefunc64_def functions;
  fill_fopen64_filefunc(&functions);
  return functions;
}

// The standard functions, but the stream they open is also noted in
// `*openedStream`, so that bytes the zip layer has no call for can be
// written in between its entries.
voidpf ZCALLBACK OpenNotingStream(voidpf openedStream, const void* name, int mode) {
  zlib_filefunc64_def standard = PathFileFunctions();
  voidpf stream = standard.zopen64_file(standard.opaque, name, mode);
  *static_cast<std::FILE**>(openedStream) = static_cast<std::FILE*>(stream);
  return stream;
}

zlib_filefunc64_def NotingFileFunctions(std::FILE** openedStream) {
  zlib_filefunc64_def functions = PathFileFunctions();
  functions.zopen64_file = OpenNotingStream;
  functions.opaque = openedStream;
  return functions;
}

void PutLittleEndian32(unsigned char* out, uLong value) {
  for (int i = 0; i < 4; ++i) out[i] = static_cast<unsigned char>(value >> (8 * i));
}

// The record that follows an entry's data when its flags say so. The zip
// layer never writes one; it goes straight to the file, behind the data
// and before the next entry, where the zip layer's offsets (taken from the
// file position) account for it.
bool WriteDataDescriptor(std::FILE* stream, const unz_file_info& info) {
  unsigned char record[16];
  PutLittleEndian32(record, 0x08074B50);
  PutLittleEndian32(record + 4, info.crc);
  PutLittleEndian32(record + 8, info.compressed_size);
  PutLittleEndian32(record + 12, info.uncompressed_size);
  return stream != nullptr && std::fwrite(record, 1, sizeof record, stream) == sizeof record;
}

// A size as the archive's interface answers it; the entry's sizes from the
// directory, 0 when there is no current entry.
int SizeOfCurrentEntry(unzFile handle, bool compressed) {
  unz_file_info info;
  if (unzGetCurrentFileInfo(handle, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK) return 0;
  return static_cast<int>(compressed ? info.compressed_size : info.uncompressed_size);
}

int SizeOfNamedEntry(void* handle, const ZString& name, bool compressed) {
  if (handle == nullptr) return 0;
  unz_file_pos saved;
  if (unzGetFilePos(Reader(handle), &saved) != UNZ_OK) return 0;
  if (unzLocateFile(Reader(handle), name.GetAsMBCS(), kCaseInsensitive) != UNZ_OK) return 0;
  const int size = SizeOfCurrentEntry(Reader(handle), compressed);
  unzGoToFilePos(Reader(handle), &saved);
  return size;
}

// The new entry's record: no time is given, so the date reaches the
// archive as the zip layer makes it from zeroed fields.
zip_fileinfo UndatedFileInfo() {
  zip_fileinfo info;
  std::memset(&info, 0, sizeof info);
  return info;
}

struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};
using FilePointer = std::unique_ptr<std::FILE, FileCloser>;

}  // namespace

ZFileArchive::ZFileArchive(const ZFile& file, unsigned char* headerBytes, int headerSize)
    : file(file), headerBytes(headerBytes), headerSize(headerSize) {
  CreateCustomHeaderFuncDef();
}

ZFileArchive::ZFileArchive(platform::Stream* stream, unsigned char* headerBytes, int headerSize)
    : stream(stream), headerBytes(headerBytes), headerSize(headerSize) {
  CreateCustomHeaderFuncDef();
}

ZFileArchive::ZFileArchive(const ZFileArchive& other) { *this = other; }

ZFileArchive& ZFileArchive::operator=(const ZFileArchive& other) {
  if (this == &other) return *this;
  file = other.file;
  stream = other.stream;
  headerBytes = other.headerBytes;
  headerSize = other.headerSize;
  // Whatever was open here belongs to somebody else's count now; it is
  // abandoned, not closed. The cipher states point into those handles and
  // are simply dropped.
  writeHandle = nullptr;
  writeStream = nullptr;
  writeOpenCount = 0;
  readHandle = nullptr;
  readOpenCount = 0;
  encryptedReader.reset();
  encryptedWriter.reset();
  DestroyCustomHeaderFuncDef();
  CreateCustomHeaderFuncDef();
  return *this;
}

ZFileArchive::~ZFileArchive() {
  writeOpenCount = 0;
  CloseArchiveForWrite();
  readOpenCount = 0;
  CloseArchiveForRead();
  DestroyCustomHeaderFuncDef();
}

void ZFileArchive::CreateCustomHeaderFuncDef() {
  customHeaderTable = CreateHeaderedFileFunctions(stream, headerBytes, headerSize);
}

void ZFileArchive::DestroyCustomHeaderFuncDef() {
  DestroyHeaderedFileFunctions(customHeaderTable);
  customHeaderTable = nullptr;
}

bool ZFileArchive::IsValid() {
  if (readHandle != nullptr) return true;
  if (!OpenArchiveForRead()) return false;
  CloseArchiveForRead();
  return true;
}

bool ZFileArchive::OpenArchiveForRead() {
  if (readHandle == nullptr) {
    zlib_filefunc64_def functions = PathFileFunctions();
    readHandle = unzOpen2_64(file.GetPathAndFile().GetAsMBCS(), &functions);
    if (readHandle == nullptr) return false;
  }
  ++readOpenCount;
  return true;
}

bool ZFileArchive::CloseArchiveForRead() {
  if (readHandle == nullptr) return true;
  if (--readOpenCount > 0) return true;
  readOpenCount = 0;
  CloseFileForRead();
  unzClose(Reader(readHandle));
  readHandle = nullptr;
  return true;
}

bool ZFileArchive::OpenArchiveForWrite() {
  if (writeHandle == nullptr) {
    zlib_filefunc64_def functions = NotingFileFunctions(&writeStream);
    writeHandle = zipOpen2_64(file.GetPathAndFile().GetAsMBCS(), APPEND_STATUS_CREATE, nullptr, &functions);
    if (writeHandle == nullptr) return false;
  }
  ++writeOpenCount;
  return true;
}

bool ZFileArchive::CloseArchiveForWrite() {
  if (writeHandle == nullptr) return true;
  if (--writeOpenCount > 0) return true;
  writeOpenCount = 0;
  // The zip layer would close an open entry itself, but an encrypted one
  // needs its cipher's last bytes first.
  if (encryptedWriter) CloseEntryForWrite();
  const int result = zipClose(Writer(writeHandle), nullptr);
  writeHandle = nullptr;
  writeStream = nullptr;
  return result == ZIP_OK;
}

void ZFileArchive::GetListOfFiles(std::vector<ZString>& names) {
  if (!OpenArchiveForRead()) return;
  for (int status = unzGoToFirstFile(Reader(readHandle)); status == UNZ_OK;
       status = unzGoToNextFile(Reader(readHandle))) {
    ZString name;
    char* buffer = name.GetBuffer8(kListedNameBytes);
    unz_file_info info;  // the zip layer writes it, wanted or not
    unzGetCurrentFileInfo(Reader(readHandle), &info, buffer, kListedNameBytes, nullptr, 0, nullptr, 0);
    names.push_back(name);
  }
  CloseArchiveForRead();
}

bool ZFileArchive::OpenFileForRead(const ZString& name) {
  if (readHandle == nullptr) return false;
  CloseFileForRead();
  if (unzLocateFile(Reader(readHandle), name.GetAsMBCS(), kCaseInsensitive) != UNZ_OK) return false;
  unz_file_info info;
  if (unzGetCurrentFileInfo(Reader(readHandle), &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK) return false;
  if ((info.flag & kEncryptedFlag) == 0) {
    return unzOpenCurrentFile3(Reader(readHandle), nullptr, nullptr, 0, nullptr) == UNZ_OK;
  }
  // Without a password the entry's bytes could only be read as noise.
  if (password.IsEmpty()) return false;
  encryptedReader = EncryptedEntryReader::Open(Reader(readHandle), password.GetAsMBCS());
  return encryptedReader != nullptr;
}

void ZFileArchive::CloseFileForRead() {
  if (readHandle == nullptr) return;
  encryptedReader.reset();
  unzCloseCurrentFile(Reader(readHandle));
}

int ZFileArchive::ReadDataFromOpenFile(void* buffer, unsigned int size) {
  if (readHandle == nullptr) return UNZ_PARAMERROR;
  if (encryptedReader) return encryptedReader->Read(buffer, size);
  return unzReadCurrentFile(Reader(readHandle), buffer, size);
}

int ZFileArchive::GetCompressedSizeOfOpenFile() const {
  return readHandle == nullptr ? 0 : SizeOfCurrentEntry(Reader(readHandle), true);
}

int ZFileArchive::GetUnCompressedSizeOfOpenFile() const {
  return readHandle == nullptr ? 0 : SizeOfCurrentEntry(Reader(readHandle), false);
}

int ZFileArchive::GetCompressedSizeOfFile(const ZString& name) const {
  return SizeOfNamedEntry(readHandle, name, true);
}

int ZFileArchive::GetUnCompressedSizeOfFile(const ZString& name) const {
  return SizeOfNamedEntry(readHandle, name, false);
}

bool ZFileArchive::ReadOneFileToVector(const ZString& name, std::vector<char>& data) {
  if (!OpenFileForRead(name)) return false;
  const int size = GetUnCompressedSizeOfOpenFile();
  bool complete = false;
  if (size > 0) {
    data.resize(static_cast<size_t>(size));
    complete = ReadDataFromOpenFile(data.data(), static_cast<unsigned>(size)) == size;
  }
  // Closing checks the CRC of what was read, for entries the zip layer
  // decrypted itself; the cipher's reader checked it already.
  const bool intact = unzCloseCurrentFile(Reader(readHandle)) == UNZ_OK;
  encryptedReader.reset();
  return complete && intact;
}

bool ZFileArchive::ReadOneFileToDiskFile(const ZString& name, const ZFile& target) {
  if (!OpenFileForRead(name)) return false;
  const int size = GetUnCompressedSizeOfOpenFile();
  if (size <= 0) return false;
  FilePointer out(platform::OpenFile(target.GetPathAndFile().GetAsWChar_T(), "wb"));
  if (!out) return false;
  std::vector<char> buffer(static_cast<size_t>(size));
  ReadDataFromOpenFile(buffer.data(), static_cast<unsigned>(size));
  std::fwrite(buffer.data(), 1, buffer.size(), out.get());
  out.reset();
  CloseFileForRead();
  return true;
}

bool ZFileArchive::OpenFileForWrite(const ZString& name) {
  if (writeHandle == nullptr) return false;
  if (encryptedWriter) CloseEntryForWrite();
  const zip_fileinfo info = UndatedFileInfo();
  if (password.IsEmpty()) {
    return zipOpenNewFileInZip3(Writer(writeHandle), name.GetAsMBCS(), &info, nullptr, 0, nullptr, 0, nullptr,
                                Z_DEFLATED, kPlainLevel, 0, -MAX_WBITS, DEF_MEM_LEVEL, Z_DEFAULT_STRATEGY,
                                nullptr, 0) == ZIP_OK;
  }
  // The zip layer writes the encrypted bytes raw; the encryption flag is
  // set here, since the layer sets it only when it encrypts itself.
  if (zipOpenNewFileInZip4(Writer(writeHandle), name.GetAsMBCS(), &info, nullptr, 0, nullptr, 0, nullptr,
                           Z_DEFLATED, kEncryptedLevel, 1, -MAX_WBITS, DEF_MEM_LEVEL, Z_DEFAULT_STRATEGY, nullptr, 0,
                           0, kEncryptedFlag) != ZIP_OK) {
    return false;
  }
  encryptedWriter = EncryptedEntryWriter::Start(Writer(writeHandle), password.GetAsMBCS(), kOwnCheckByte);
  if (!encryptedWriter) {
    zipCloseFileInZipRaw(Writer(writeHandle), 0, 0);
    return false;
  }
  return true;
}

int ZFileArchive::CloseEntryForWrite() {
  if (!encryptedWriter) return zipCloseFileInZipRaw(Writer(writeHandle), 0, 0);
  const int result = encryptedWriter->Close();
  encryptedWriter.reset();
  return result;
}

void ZFileArchive::CloseFileForWrite() {
  if (writeHandle != nullptr) CloseEntryForWrite();
}

bool ZFileArchive::WriteDataToOpenFile(const void* data, uint64_t size) {
  if (writeHandle == nullptr) return false;
  const auto cut = static_cast<uint32_t>(size);
  if (encryptedWriter) return encryptedWriter->Write(data, cut);
  return zipWriteInFileInZip(Writer(writeHandle), data, cut) == ZIP_OK;
}

bool ZFileArchive::WriteFileFromVector(const ZString& name, const std::vector<char>& data) {
  if (data.empty() || !OpenFileForWrite(name)) return false;
  const bool written = WriteDataToOpenFile(data.data(), data.size());
  CloseFileForWrite();
  return written;
}

bool ZFileArchive::WriteFileFromDiskFile(const ZString& name, const ZFile& source) {
  if (!OpenFileForWrite(name)) return false;
  FilePointer in(platform::OpenFile(source.GetPathAndFile().GetAsWChar_T(), "rb"));
  if (!in) {
    CloseFileForWrite();
    return false;
  }
  std::vector<char> buffer(kCopyBlockSize);
  bool result = false;
  for (;;) {
    const size_t got = std::fread(buffer.data(), 1, buffer.size(), in.get());
    if (!WriteDataToOpenFile(buffer.data(), got)) break;
    if (got < buffer.size() && std::feof(in.get())) {
      result = true;
      break;
    }
    if (got < buffer.size() && std::ferror(in.get())) break;  // a read error would repeat for ever
  }
  in.reset();
  CloseFileForWrite();
  return result;
}

bool ZFileArchive::CopyOneFile(const ZString& targetName, ZFileArchive& source, const ZString& sourceName) {
  if (writeHandle == nullptr || !source.OpenArchiveForRead()) return false;
  unzFile from = Reader(source.readHandle);
  source.CloseFileForRead();
  unz_file_info info;
  if (unzLocateFile(from, sourceName.GetAsMBCS(), kCaseInsensitive) != UNZ_OK ||
      unzGetCurrentFileInfo(from, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK) {
    source.CloseArchiveForRead();
    return false;
  }
  std::vector<char> globalExtra(info.size_file_extra);
  std::vector<char> comment(info.size_file_comment + 1);
  int method = 0;
  int level = 0;
  bool result = false;
  const bool opened =
      unzGetCurrentFileInfo(from, &info, nullptr, 0, globalExtra.data(), info.size_file_extra, comment.data(),
                            info.size_file_comment) == UNZ_OK &&
      unzOpenCurrentFile3(from, &method, &level, 1, nullptr) == UNZ_OK;
  if (opened) {
    const int localExtraSize = unzGetLocalExtrafield(from, nullptr, 0);
    std::vector<char> localExtra(localExtraSize > 0 ? static_cast<size_t>(localExtraSize) : 0);
    if (!localExtra.empty()) unzGetLocalExtrafield(from, localExtra.data(), static_cast<unsigned>(localExtra.size()));

    zip_fileinfo target;
    std::memset(&target, 0, sizeof target);
    target.tmz_date.tm_sec = info.tmu_date.tm_sec;
    target.tmz_date.tm_min = info.tmu_date.tm_min;
    target.tmz_date.tm_hour = info.tmu_date.tm_hour;
    target.tmz_date.tm_mday = info.tmu_date.tm_mday;
    target.tmz_date.tm_mon = info.tmu_date.tm_mon;
    target.tmz_date.tm_year = info.tmu_date.tm_year;
    target.dosDate = info.dosDate;
    target.internal_fa = info.internal_fa;
    target.external_fa = info.external_fa;

    if (encryptedWriter) CloseEntryForWrite();
    // The raw copy keeps the encryption flag and, with it, the data
    // descriptor flag that tells readers which check byte the encryption
    // header has; the descriptor itself is then written here.
    const uLong keptFlags = info.flag & (kEncryptedFlag | kDataDescriptorFlag);
    comment.back() = '\0';
    if (zipOpenNewFileInZip4(Writer(writeHandle), targetName.GetAsMBCS(), &target,
                             localExtra.empty() ? nullptr : localExtra.data(),
                             static_cast<uInt>(localExtra.size()), globalExtra.empty() ? nullptr : globalExtra.data(),
                             static_cast<uInt>(globalExtra.size()), info.size_file_comment > 0 ? comment.data() : nullptr,
                             method, level, 1, -MAX_WBITS, DEF_MEM_LEVEL, Z_DEFAULT_STRATEGY, nullptr, 0, 0,
                             keptFlags) == ZIP_OK) {
      std::vector<char> buffer(kCopyBlockSize);
      int got = 0;
      for (;;) {
        got = unzReadCurrentFile(from, buffer.data(), kCopyBlockSize);
        if (got < 1 || !WriteDataToOpenFile(buffer.data(), static_cast<uint64_t>(got))) break;
      }
      result = got == 0;
      result = zipCloseFileInZipRaw(Writer(writeHandle), info.uncompressed_size, info.crc) == ZIP_OK && result;
      if ((keptFlags & kDataDescriptorFlag) != 0) result = WriteDataDescriptor(writeStream, info) && result;
    }
    unzCloseCurrentFile(from);
  }
  source.CloseArchiveForRead();
  return result;
}
