#include "platform/files.h"

#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <thread>

#include "platform/text_conversion.h"

extern char** environ;

namespace platform {
namespace {

std::optional<std::string> Narrow(const WideChar* path) {
  if (path == nullptr) return std::nullopt;
  const size_t length = WideToNarrow(nullptr, path, 0);
  if (length == kConversionFailed) return std::nullopt;
  std::string narrow(length, '\0');
  WideToNarrow(narrow.data(), path, length + 1);
  return narrow;
}

std::optional<WideString> Widen(const std::string& text) {
  const size_t units = NarrowToWide(nullptr, text.c_str(), 0);
  if (units == kConversionFailed) return std::nullopt;
  WideString wide(units, u'\0');
  NarrowToWide(wide.data(), text.c_str(), units + 1);
  return wide;
}

}  // namespace

uint32_t GetFileAttributes(const WideChar* path) {
  const auto narrow = Narrow(path);
  struct stat info;
  if (!narrow || stat(narrow->c_str(), &info) != 0) return kInvalidFileAttributes;
  return S_ISDIR(info.st_mode) ? kDirectoryAttribute : kNormalAttribute;
}

bool CreateDirectory(const WideChar* path) {
  const auto narrow = Narrow(path);
  return narrow && mkdir(narrow->c_str(), 0777) == 0;
}

bool DeleteFile(const WideChar* path) {
  const auto narrow = Narrow(path);
  return narrow && unlink(narrow->c_str()) == 0;
}

uint32_t GetTempPath(uint32_t bufferUnits, WideChar* buffer) {
  const char* fromEnvironment = std::getenv("TMPDIR");
  std::string directory = fromEnvironment != nullptr && *fromEnvironment != '\0' ? fromEnvironment : "/tmp";
  if (directory.back() != '/') directory += '/';
  const auto wide = Widen(directory);
  if (!wide) return 0;
  const auto needed = static_cast<uint32_t>(wide->size() + 1);
  if (buffer == nullptr || bufferUnits < needed) return needed;
  wide->copy(buffer, wide->size());
  buffer[wide->size()] = u'\0';
  return needed - 1;
}

std::FILE* OpenFile(const WideChar* path, const char* mode) {
  const auto narrow = Narrow(path);
  return narrow ? std::fopen(narrow->c_str(), mode) : nullptr;
}

void OpenWithDesktop(const WideChar* path) {
  const auto narrow = Narrow(path);
  if (!narrow) return;
  std::string program = "xdg-open";
  std::string argument = *narrow;
  char* argv[] = {program.data(), argument.data(), nullptr};
  pid_t child = 0;
  if (posix_spawnp(&child, program.c_str(), nullptr, nullptr, argv, environ) != 0) return;
  // Somebody has to collect the opener when it ends, or it stays a zombie
  // for the life of the process.
  std::thread([child] { waitpid(child, nullptr, 0); }).detach();
}

}  // namespace platform
