// The archive against Info-ZIP on the same 64 MB of mixed data (text files
// and files of random bytes): writing and reading back, and the sizes. Then
// a raw copy of one 64 MB entry between archives against decompressing and
// recompressing it. Each case runs once per repetition; the sizes are
// reported as counters, the ratios follow from the times and sizes.
#include <benchmark/benchmark.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "sceneward/archive/zfile_archive.h"

namespace {

constexpr int kFiles = 16;
constexpr size_t kFileSize = 4 << 20;  // 16 files of 4 MB: 64 MB

std::string Text(size_t size, unsigned seed) {
  static const char* words[] = {"segment", "shell", "camera", "include", "style", "polyline", "matrix", "colour",
                                "visibility", "marker", "the", "of", "and", "with", "at", "for"};
  std::mt19937 random(seed);
  std::string text;
  text.reserve(size);
  while (text.size() < size) {
    text += words[random() % 16];
    text += random() % 9 == 0 ? "\n" : " ";
  }
  text.resize(size);
  return text;
}

std::string RandomBytes(size_t size, unsigned seed) {
  std::mt19937 random(seed);
  std::string bytes(size, '\0');
  for (char& c : bytes) c = static_cast<char>(random());
  return bytes;
}

// The scratch folder with the input files, made once.
struct Inputs {
  Inputs() {
    char pattern[] = "/tmp/sw-archive-bench-XXXXXX";
    directory = mkdtemp(pattern);
    for (int i = 0; i < kFiles; ++i) {
      names.push_back("file" + std::to_string(i) + (i % 2 ? ".bin" : ".txt"));
      std::ofstream(Path(names.back()), std::ios::binary)
          << (i % 2 ? RandomBytes(kFileSize, i) : Text(kFileSize, i));
    }
  }
  ~Inputs() { std::system(("rm -rf '" + directory + "'").c_str()); }
  std::string Path(const std::string& name) const { return directory + "/" + name; }
  ZFile File(const std::string& name) const { return ZFile(ZString(Path(name).c_str())); }
  double SizeMB(const std::string& name) const {
    struct stat info;
    return stat(Path(name).c_str(), &info) == 0 ? static_cast<double>(info.st_size) / (1 << 20) : 0;
  }

  std::string directory;
  std::vector<std::string> names;
};

const Inputs& Files() {
  static const Inputs inputs;
  return inputs;
}

void Shell(const std::string& command) {
  if (std::system(("cd '" + Files().directory + "' && " + command + " >/dev/null 2>&1").c_str()) != 0) {
    std::abort();
  }
}

void ArchiveWrite(benchmark::State& state) {
  const Inputs& in = Files();
  for (auto _ : state) {
    ZFileArchive archive(in.File("ours.zip"), nullptr, 0);
    archive.OpenArchiveForWrite();
    for (const auto& name : in.names) archive.WriteFileFromDiskFile(ZString(name.c_str()), in.File(name));
    archive.CloseArchiveForWrite();
  }
  state.counters["archive_MB"] = in.SizeMB("ours.zip");
}

void ArchiveRead(benchmark::State& state) {
  const Inputs& in = Files();
  mkdir(in.Path("ours-out").c_str(), 0755);
  for (auto _ : state) {
    ZFileArchive archive(in.File("ours.zip"), nullptr, 0);
    archive.OpenArchiveForRead();
    for (const auto& name : in.names) archive.ReadOneFileToDiskFile(ZString(name.c_str()), in.File("ours-out/" + name));
    archive.CloseArchiveForRead();
  }
}

void InfoZipWrite(benchmark::State& state) {
  const Inputs& in = Files();
  std::string list;
  for (const auto& name : in.names) list += " " + name;
  for (auto _ : state) Shell("rm -f infozip.zip && zip -q -9 infozip.zip" + list);
  state.counters["archive_MB"] = in.SizeMB("infozip.zip");
}

void InfoZipRead(benchmark::State& state) {
  for (auto _ : state) Shell("unzip -q -o infozip.zip -d infozip-out");
}

// One archive with one 64 MB entry of the mixed data, made once.
const ZFile& LargeEntryArchive() {
  static const ZFile archiveFile = [] {
    const Inputs& in = Files();
    ZFileArchive archive(in.File("large.zip"), nullptr, 0);
    archive.OpenArchiveForWrite();
    archive.OpenFileForWrite(ZString("large"));
    for (int i = 0; i < kFiles; ++i) {
      const std::string part = i % 2 ? RandomBytes(kFileSize, 100 + i) : Text(kFileSize, 100 + i);
      archive.WriteDataToOpenFile(part.data(), part.size());
    }
    archive.CloseFileForWrite();
    archive.CloseArchiveForWrite();
    return in.File("large.zip");
  }();
  return archiveFile;
}

void RawCopy(benchmark::State& state) {
  ZFileArchive source(LargeEntryArchive(), nullptr, 0);
  for (auto _ : state) {
    ZFileArchive target(Files().File("copy.zip"), nullptr, 0);
    target.OpenArchiveForWrite();
    if (!target.CopyOneFile(ZString("large"), source, ZString("large"))) state.SkipWithError("copy failed");
    target.CloseArchiveForWrite();
  }
}

void DecompressAndRecompress(benchmark::State& state) {
  ZFileArchive source(LargeEntryArchive(), nullptr, 0);
  for (auto _ : state) {
    source.OpenArchiveForRead();
    std::vector<char> data;
    source.ReadOneFileToVector(ZString("large"), data);
    source.CloseArchiveForRead();
    ZFileArchive target(Files().File("recompressed.zip"), nullptr, 0);
    target.OpenArchiveForWrite();
    target.WriteFileFromVector(ZString("large"), data);
    target.CloseArchiveForWrite();
  }
}

// Writes go first: the reads need their archives.
BENCHMARK(ArchiveWrite)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();
BENCHMARK(InfoZipWrite)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();
BENCHMARK(ArchiveRead)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();
BENCHMARK(InfoZipRead)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();
BENCHMARK(RawCopy)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();
BENCHMARK(DecompressAndRecompress)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();

}  // namespace
