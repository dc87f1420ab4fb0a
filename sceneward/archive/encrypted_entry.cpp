#include "sceneward/archive/encrypted_entry.h"

namespace {

constexpr unsigned kBlockSize = 32768;
constexpr int kRawDeflateWindowBits = -15;
constexpr uLong kDataDescriptorFlag = 8;
constexpr int kMethodStored = 0;

// What a header made by other tools ends in: the top byte of the CRC, or of
// the DOS time when the sizes and CRC follow the data.
uint8_t ForeignCheckByte(const unz_file_info& info) {
  return static_cast<uint8_t>((info.flag & kDataDescriptorFlag) != 0 ? (info.dosDate >> 8) & 0xFF
                                                                      : (info.crc >> 24) & 0xFF);
}

}  // namespace

std::unique_ptr<EncryptedEntryReader> EncryptedEntryReader::Open(unzFile archive, const char* password) {
  unz_file_info info;
  if (unzGetCurrentFileInfo(archive, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK) return nullptr;
  const bool known = info.compression_method == kMethodStored || info.compression_method == Z_DEFLATED;
  int method = 0;
  int level = 0;
  if (!known || unzOpenCurrentFile3(archive, &method, &level, 1, nullptr) != UNZ_OK) return nullptr;

  std::unique_ptr<EncryptedEntryReader> reader(new EncryptedEntryReader(archive, password, info));
  if (!reader->Begin(ForeignCheckByte(info))) {
    unzCloseCurrentFile(archive);
    return nullptr;
  }
  return reader;
}

bool EncryptedEntryReader::Begin(uint8_t foreignCheckByte) {
  TraditionalCipher::Header header;
  if (unzReadCurrentFile(archive_, header.data(), header.size()) != static_cast<int>(header.size())) return false;
  cipher_.Decrypt(header.data(), header.size());
  if (header.back() != 0 && header.back() != foreignCheckByte) return false;
  inflaterReady_ = deflated_ && inflateInit2(&inflater_, kRawDeflateWindowBits) == Z_OK;
  return inflaterReady_ || !deflated_;
}

EncryptedEntryReader::EncryptedEntryReader(unzFile archive, const char* password, const unz_file_info& info)
    : archive_(archive),
      cipher_(password),
      deflated_(info.compression_method == Z_DEFLATED),
      expectedCrc_(static_cast<uint32_t>(info.crc)) {}

EncryptedEntryReader::~EncryptedEntryReader() {
  if (inflaterReady_) inflateEnd(&inflater_);
}

int EncryptedEntryReader::Read(void* buffer, unsigned size) {
  auto* out = static_cast<uint8_t*>(buffer);
  unsigned produced = 0;
  while (produced < size && !ended_) {
    const int got = deflated_ ? ReadDeflated(out + produced, size - produced) : ReadStored(out + produced, size - produced);
    if (got < 0) return got;
    crc_ = static_cast<uint32_t>(crc32(crc_, out + produced, static_cast<uInt>(got)));
    produced += static_cast<unsigned>(got);
    if (ended_ && crc_ != expectedCrc_) return UNZ_CRCERROR;
  }
  return static_cast<int>(produced);
}

int EncryptedEntryReader::ReadStored(uint8_t* out, unsigned size) {
  const int got = unzReadCurrentFile(archive_, out, size);
  if (got == 0) ended_ = true;
  if (got > 0) cipher_.Decrypt(out, static_cast<size_t>(got));
  return got;
}

int EncryptedEntryReader::ReadDeflated(uint8_t* out, unsigned size) {
  if (inflater_.avail_in == 0) {
    input_.resize(kBlockSize);
    const int got = unzReadCurrentFile(archive_, input_.data(), kBlockSize);
    if (got < 0) return got;
    if (got == 0) return UNZ_BADZIPFILE;  // the data ended inside the deflate stream
    cipher_.Decrypt(input_.data(), static_cast<size_t>(got));
    inflater_.next_in = input_.data();
    inflater_.avail_in = static_cast<uInt>(got);
  }
  inflater_.next_out = out;
  inflater_.avail_out = size;
  const int result = inflate(&inflater_, Z_NO_FLUSH);
  if (result == Z_STREAM_END) {
    ended_ = true;
  } else if (result != Z_OK) {
    return UNZ_BADZIPFILE;
  }
  return static_cast<int>(size - inflater_.avail_out);
}

std::unique_ptr<EncryptedEntryWriter> EncryptedEntryWriter::Start(zipFile archive, const char* password,
                                                                  uint8_t checkByte) {
  std::unique_ptr<EncryptedEntryWriter> writer(new EncryptedEntryWriter(archive, password));
  if (deflateInit2(&writer->deflater_, 0, Z_DEFLATED, kRawDeflateWindowBits, 8, Z_DEFAULT_STRATEGY) != Z_OK) {
    return nullptr;
  }
  writer->output_.resize(kBlockSize);
  const TraditionalCipher::Header header = writer->cipher_.EncryptedHeader(checkByte);
  if (zipWriteInFileInZip(archive, header.data(), header.size()) != ZIP_OK) return nullptr;
  return writer;
}

EncryptedEntryWriter::EncryptedEntryWriter(zipFile archive, const char* password)
    : archive_(archive), cipher_(password) {}

EncryptedEntryWriter::~EncryptedEntryWriter() {
  if (!output_.empty()) deflateEnd(&deflater_);
}

bool EncryptedEntryWriter::Write(const void* data, uint32_t size) {
  crc_ = static_cast<uint32_t>(crc32(crc_, static_cast<const Bytef*>(data), size));
  plainSize_ += size;
  deflater_.next_in = static_cast<Bytef*>(const_cast<void*>(data));
  deflater_.avail_in = size;
  return Drain(Z_NO_FLUSH);
}

bool EncryptedEntryWriter::Drain(int flush) {
  for (;;) {
    deflater_.next_out = output_.data();
    deflater_.avail_out = kBlockSize;
    const int result = deflate(&deflater_, flush);
    if (result == Z_STREAM_ERROR) return false;
    const unsigned made = kBlockSize - deflater_.avail_out;
    cipher_.Encrypt(output_.data(), made);
    if (made > 0 && zipWriteInFileInZip(archive_, output_.data(), made) != ZIP_OK) return false;
    if (flush == Z_FINISH ? result == Z_STREAM_END : deflater_.avail_out != 0) return true;
  }
}

int EncryptedEntryWriter::Close() {
  const bool flushed = Drain(Z_FINISH);
  const int closed = zipCloseFileInZipRaw(archive_, static_cast<uLong>(plainSize_), crc_);
  return flushed ? closed : ZIP_ERRNO;
}
