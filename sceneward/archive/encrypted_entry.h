#pragma once
// Entries under the traditional zip cipher, written and read through the
// zip layer's raw mode: the layer moves the bytes and keeps the directory,
// while deflate, the cipher and the CRC-32 are done here.
#include <minizip/unzip.h>
#include <minizip/zip.h>
#include <zlib.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "sceneward/archive/traditional_cipher.h"

// Reads the current entry of an archive open for reading. The reader
// answers its data as the zip layer's own reading does.
class EncryptedEntryReader {
 public:
  // Opens the current entry raw and checks `password` against the entry's
  // encryption header. The check byte may be the one other tools write (the
  // top byte of the CRC, or of the time when a data descriptor follows), or
  // 0, the value written by EncryptedEntryWriter. Null, with the entry
  // closed again, for an entry that can't be opened, a method other than
  // stored or deflate, or a wrong password.
  static std::unique_ptr<EncryptedEntryReader> Open(unzFile archive, const char* password);
  ~EncryptedEntryReader();
  EncryptedEntryReader(const EncryptedEntryReader&) = delete;
  EncryptedEntryReader& operator=(const EncryptedEntryReader&) = delete;

  // Up to `size` bytes of plain data: their count, 0 at the end, or a
  // negative code for damaged data. The read that reaches the end fails
  // with UNZ_CRCERROR when the data's CRC-32 differs from the entry's; a
  // wrong password that passed the check byte (1 in 256) ends there.
  int Read(void* buffer, unsigned size);

 private:
  EncryptedEntryReader(unzFile archive, const char* password, const unz_file_info& info);
  // Reads and checks the encryption header, and readies the inflater.
  bool Begin(uint8_t foreignCheckByte);
  int ReadStored(uint8_t* out, unsigned size);
  int ReadDeflated(uint8_t* out, unsigned size);

  unzFile archive_;
  TraditionalCipher cipher_;
  bool deflated_;
  uint32_t expectedCrc_;
  uint32_t crc_ = 0;
  bool ended_ = false;
  bool inflaterReady_ = false;
  z_stream inflater_{};
  std::vector<uint8_t> input_;
};

// Writes the entry just opened raw in an archive open for writing:
// deflates at level 0 (so the data is stored in deflate's format),
// encrypts, and on Close hands the zip layer the plain size and CRC-32.
class EncryptedEntryWriter {
 public:
  // Writes the encryption header with `checkByte` as its last byte. Null if
  // that write fails.
  static std::unique_ptr<EncryptedEntryWriter> Start(zipFile archive, const char* password, uint8_t checkByte);
  ~EncryptedEntryWriter();
  EncryptedEntryWriter(const EncryptedEntryWriter&) = delete;
  EncryptedEntryWriter& operator=(const EncryptedEntryWriter&) = delete;

  // False if the zip layer refused the bytes.
  bool Write(const void* data, uint32_t size);
  // Flushes the rest and closes the entry: the zip layer's result.
  int Close();

 private:
  EncryptedEntryWriter(zipFile archive, const char* password);
  // Runs deflate with `flush` until it wants more input (or has finished)
  // and writes what it made.
  bool Drain(int flush);

  zipFile archive_;
  TraditionalCipher cipher_;
  uint32_t crc_ = 0;
  uint64_t plainSize_ = 0;
  z_stream deflater_{};
  std::vector<uint8_t> output_;
};
