#pragma once
// A zip archive of named files on disk, read and written whole or entry by
// entry. Opening is counted, so that nested users of one archive share a
// handle; the read side and the write side are independent. An object
// belongs to one thread at a time.
//
// Entry names and the password go to the zip layer in their multibyte form.
// With a password, new entries are encrypted with the traditional zip
// cipher and stored (deflate at level 0); entries of other tools encrypted
// that way read back with the same password.
//
// Every operation reports by bool or by a size of 0; none says why.
#include <cstdint>
#include <cstdio>
#include <memory>
#include <vector>

#include "platform/stream.h"
#include "sceneward/foundation/zfile.h"
#include "sceneward/foundation/zstring.h"

struct zlib_filefunc_def_s;
class EncryptedEntryReader;
class EncryptedEntryWriter;

class ZFileArchive {
 public:
  // An archive at the path of `file`. The header block is borrowed and is
  // kept in the file functions that hide it in front of the zip stream;
  // the open operations don't use those functions yet, so archives are
  // read and written as plain zip files.
  ZFileArchive(const ZFile& file, unsigned char* headerBytes, int headerSize);
  // An archive in `stream` (borrowed, not owned). Its name is empty, and
  // since the open operations work on paths alone, it can't be opened.
  ZFileArchive(platform::Stream* stream, unsigned char* headerBytes, int headerSize);
  // Copies name, stream and header, but neither the open handles nor the
  // password: a copy starts closed and without a password.
  ZFileArchive(const ZFileArchive& other);
  // As the copy constructor. Whatever this object had open is abandoned,
  // not closed. Self-assignment does nothing.
  ZFileArchive& operator=(const ZFileArchive& other);
  // Closes both sides, whatever their counts.
  virtual ~ZFileArchive();

  ZString GetFileName() const { return file.GetPathAndFile(); }
  // True if the archive is open for reading, or can be opened (and is
  // then closed again). Entries are not examined.
  bool IsValid();
  // The password for entries opened or made from now on; empty for none.
  void SetPassword(const ZString& newPassword) { password = newPassword; }
  // Does nothing: the archive's file stays on disk.
  void Delete() {}

  // Opens the read side, or counts one more user of it. False, with the
  // count unchanged, if the file can't be opened as a zip archive.
  bool OpenArchiveForRead();
  // Counts one user less and closes the read side (and any entry open in
  // it) when none is left. True also when nothing was open.
  bool CloseArchiveForRead();
  // Creates the archive anew, replacing any file of that name, or counts one
  // more user of the write side.
  bool OpenArchiveForWrite();
  // As CloseArchiveForRead; the last close writes the directory and answers
  // whether that worked.
  bool CloseArchiveForWrite();
  // Appends the names of the entries to `names` (without clearing it),
  // opening and closing the read side around it; names are cut at 511
  // bytes. Nothing is appended if the archive can't be opened.
  void GetListOfFiles(std::vector<ZString>& names);

  // Makes the entry `name` current and opens it, in an archive open for
  // reading. Names are compared without regard to the case of ASCII
  // letters; a name of 256 bytes or more is never found. An encrypted
  // entry opens only with the right password.
  bool OpenFileForRead(const ZString& name);
  void CloseFileForRead();
  // Up to `size` bytes of the open entry: their count, 0 at the end, or a
  // negative code on damaged data or a failed CRC check.
  int ReadDataFromOpenFile(void* buffer, unsigned int size);
  // Sizes of the current entry; 0 if there is none.
  int GetCompressedSizeOfOpenFile() const;
  int GetUnCompressedSizeOfOpenFile() const;
  // Sizes of the entry `name`, found as OpenFileForRead finds it; the
  // current entry stays current. 0 if the archive isn't open for reading,
  // has no current entry, or has no such entry.
  int GetCompressedSizeOfFile(const ZString& name) const;
  int GetUnCompressedSizeOfFile(const ZString& name) const;
  // Replaces `data` with the whole entry. False, with `data` unchanged,
  // for a missing or empty entry; false, with `data` resized, when the
  // entry is shorter than its directory says or fails its CRC check.
  bool ReadOneFileToVector(const ZString& name, std::vector<char>& data);
  // Writes the whole entry to the file `target`, replacing it. False for a
  // missing or empty entry or a target that can't be made; the entry then
  // stays open until the next close.
  bool ReadOneFileToDiskFile(const ZString& name, const ZFile& target);

  // Starts the entry `name` in an archive open for writing, closing any
  // entry still open. Without a password it is deflated at level 9.
  bool OpenFileForWrite(const ZString& name);
  void CloseFileForWrite();
  // Appends to the open entry; `size` is cut to 32 bits. False if no entry
  // is open.
  bool WriteDataToOpenFile(const void* data, uint64_t size);
  // An entry holding `data`. False, and no entry, for empty data.
  bool WriteFileFromVector(const ZString& name, const std::vector<char>& data);
  // An entry holding the file `source`. If the source can't be opened, the
  // archive keeps an empty entry and the result is false.
  bool WriteFileFromDiskFile(const ZString& name, const ZFile& source);
  // Copies the entry `sourceName` of `source` to this archive (open for
  // writing) as `targetName`, without decompressing it: an encrypted entry
  // stays encrypted, and the password plays no part. False, and nothing
  // written, if the source can't be opened or has no such entry.
  bool CopyOneFile(const ZString& targetName, ZFileArchive& source, const ZString& sourceName);

 protected:
  ZFile file;
  platform::Stream* stream = nullptr;

 private:
  void CreateCustomHeaderFuncDef();
  void DestroyCustomHeaderFuncDef();
  // Closes the entry being written, encrypted or not.
  int CloseEntryForWrite();

  void* writeHandle = nullptr;
  // The file under the write handle, for the bytes the zip layer can't write.
  std::FILE* writeStream = nullptr;
  int32_t writeOpenCount = 0;
  void* readHandle = nullptr;
  int32_t readOpenCount = 0;
  zlib_filefunc_def_s* customHeaderTable = nullptr;
  unsigned char* headerBytes = nullptr;
  int32_t headerSize = 0;
  ZString password;
  // The entries open through the cipher, if any.
  std::unique_ptr<EncryptedEntryReader> encryptedReader;
  std::unique_ptr<EncryptedEntryWriter> encryptedWriter;
};
