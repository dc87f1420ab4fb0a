#include "sceneward/archive/headered_file_functions.h"

#include <cstdio>

namespace {

// The real medium: the zip layer's slots, a reserved pointer, and the header.
struct InnerTable {
  open_file_func open;
  read_file_func read;
  write_file_func write;
  tell_file_func tell;
  seek_file_func seek;
  close_file_func close;
  testerror_file_func testError;
  voidpf opaque;
  void* reserved;
  const unsigned char* headerBytes;
  int headerSize;
};

// Mode bits of the zip layer's open.
constexpr int kModeReadWriteFilter = 3;
constexpr int kModeRead = 1;
constexpr int kModeExisting = 4;
constexpr int kModeCreate = 8;

platform::Stream* AsStream(voidpf opaque) { return static_cast<platform::Stream*>(opaque); }
std::FILE* AsFile(voidpf stream) { return static_cast<std::FILE*>(stream); }

// The caller's stream stays open after the zip layer is done with it, so
// "open" and "close" have nothing to do; the stream itself is the opaque.
voidpf ZCALLBACK StreamOpen(voidpf, const char*, int) { return reinterpret_cast<voidpf>(1); }

uLong ZCALLBACK StreamRead(voidpf opaque, voidpf, void* buffer, uLong size) {
  uint32_t count = 0;
  AsStream(opaque)->Read(buffer, static_cast<uint32_t>(size), &count);
  return count;
}

uLong ZCALLBACK StreamWrite(voidpf opaque, voidpf, const void* buffer, uLong size) {
  uint32_t count = 0;
  AsStream(opaque)->Write(buffer, static_cast<uint32_t>(size), &count);
  return count;
}

long ZCALLBACK StreamTell(voidpf opaque, voidpf) {
  uint64_t position = 0;
  AsStream(opaque)->Seek(0, platform::Stream::kFromCurrent, &position);
  return static_cast<long>(static_cast<uint32_t>(position));
}

long ZCALLBACK StreamSeek(voidpf opaque, voidpf, uLong offset, int origin) {
  uint64_t position = 0;
  return AsStream(opaque)->Seek(static_cast<int64_t>(offset), static_cast<uint32_t>(origin), &position);
}

int ZCALLBACK StreamClose(voidpf, voidpf) { return 0; }
int ZCALLBACK StreamTestError(voidpf, voidpf) { return 0; }

voidpf ZCALLBACK FileOpen(voidpf, const char* name, int mode) {
  const char* fopenMode = nullptr;
  if ((mode & kModeReadWriteFilter) == kModeRead) {
    fopenMode = "rb";
  } else if ((mode & kModeExisting) != 0) {
    fopenMode = "r+b";
  } else if ((mode & kModeCreate) != 0) {
    fopenMode = "wb";
  }
  if (name == nullptr || fopenMode == nullptr) return nullptr;
  return std::fopen(name, fopenMode);
}

// minizip asks for empty transfers with a null buffer, which the C library
// must not be given.
uLong ZCALLBACK FileRead(voidpf, voidpf stream, void* buffer, uLong size) {
  return size == 0 ? 0 : std::fread(buffer, 1, size, AsFile(stream));
}

uLong ZCALLBACK FileWrite(voidpf, voidpf stream, const void* buffer, uLong size) {
  return size == 0 ? 0 : std::fwrite(buffer, 1, size, AsFile(stream));
}

long ZCALLBACK FileTell(voidpf, voidpf stream) { return std::ftell(AsFile(stream)); }

long ZCALLBACK FileSeek(voidpf, voidpf stream, uLong offset, int origin) {
  if (origin < SEEK_SET || origin > SEEK_END) return -1;
  return std::fseek(AsFile(stream), static_cast<long>(offset), origin) == 0 ? 0 : -1;
}

int ZCALLBACK FileClose(voidpf, voidpf stream) { return std::fclose(AsFile(stream)); }
int ZCALLBACK FileTestError(voidpf, voidpf stream) { return std::ferror(AsFile(stream)); }

InnerTable* Inner(voidpf opaque) { return static_cast<InnerTable*>(opaque); }

// Only a file made anew gets the header; one opened for reading or opened
// as it exists already is taken to have it. A short write goes unnoticed,
// and shows later as offsets that don't fit.
voidpf ZCALLBACK OuterOpen(voidpf opaque, const char* name, int mode) {
  InnerTable* inner = Inner(opaque);
  voidpf stream = inner->open(inner->opaque, name, mode);
  if (stream == nullptr || (mode & kModeReadWriteFilter) == kModeRead || (mode & kModeExisting) != 0) {
    return stream;
  }
  inner->write(inner->opaque, stream, inner->headerBytes, static_cast<uLong>(inner->headerSize));
  return stream;
}

uLong ZCALLBACK OuterRead(voidpf opaque, voidpf stream, void* buffer, uLong size) {
  return Inner(opaque)->read(Inner(opaque)->opaque, stream, buffer, size);
}

uLong ZCALLBACK OuterWrite(voidpf opaque, voidpf stream, const void* buffer, uLong size) {
  return Inner(opaque)->write(Inner(opaque)->opaque, stream, buffer, size);
}

long ZCALLBACK OuterTell(voidpf opaque, voidpf stream) {
  InnerTable* inner = Inner(opaque);
  return static_cast<int32_t>(inner->tell(inner->opaque, stream) - inner->headerSize);
}

long ZCALLBACK OuterSeek(voidpf opaque, voidpf stream, uLong offset, int origin) {
  InnerTable* inner = Inner(opaque);
  if (origin == ZLIB_FILEFUNC_SEEK_SET) offset += static_cast<uLong>(inner->headerSize);
  return inner->seek(inner->opaque, stream, offset, origin);
}

int ZCALLBACK OuterClose(voidpf opaque, voidpf stream) {
  return Inner(opaque)->close(Inner(opaque)->opaque, stream);
}

int ZCALLBACK OuterTestError(voidpf opaque, voidpf stream) {
  return Inner(opaque)->testError(Inner(opaque)->opaque, stream);
}

}  // namespace

zlib_filefunc_def* CreateHeaderedFileFunctions(platform::Stream* stream, const unsigned char* headerBytes,
                                               int headerSize) {
  auto* inner = stream != nullptr
                    ? new InnerTable{StreamOpen, StreamRead, StreamWrite, StreamTell, StreamSeek, StreamClose,
                                     StreamTestError, stream, nullptr, headerBytes, headerSize}
                    : new InnerTable{FileOpen, FileRead, FileWrite, FileTell, FileSeek, FileClose, FileTestError,
                                     nullptr, nullptr, headerBytes, headerSize};
  return new zlib_filefunc_def{OuterOpen, OuterRead, OuterWrite, OuterTell, OuterSeek, OuterClose, OuterTestError,
                               inner};
}

void DestroyHeaderedFileFunctions(zlib_filefunc_def* outer) {
  if (outer == nullptr) return;
  delete Inner(outer->opaque);
  delete outer;
}
