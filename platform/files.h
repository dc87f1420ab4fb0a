#pragma once
// The file system under 16-bit path names. Paths reach the system in their
// multibyte form under the process's locale; a path that the locale cannot
// represent is treated as a path that does not exist.
#include <cstdint>
#include <cstdio>

#include "platform/wide_char.h"

namespace platform {

// Attribute bits as the library reads them.
inline constexpr uint32_t kInvalidFileAttributes = 0xFFFFFFFF;
inline constexpr uint32_t kDirectoryAttribute = 0x10;
inline constexpr uint32_t kNormalAttribute = 0x80;

// kDirectoryAttribute for a directory, kNormalAttribute for anything else
// that exists, kInvalidFileAttributes for a missing or unreadable path.
uint32_t GetFileAttributes(const WideChar* path);

// Makes one directory; its parent must exist. False if it already exists.
bool CreateDirectory(const WideChar* path);

// Removes a file. False for a missing path or a directory.
bool DeleteFile(const WideChar* path);

// The temporary directory ($TMPDIR if set and not empty, else /tmp), always
// ending in '/'. With `bufferUnits` large enough for the path and its
// terminator, copies it to `buffer` and answers its length; otherwise writes
// nothing and answers the units needed, terminator included. 0 if the path
// cannot be represented in 16-bit units.
uint32_t GetTempPath(uint32_t bufferUnits, WideChar* buffer);

// Opens a C stream on `path` with fopen's `mode`; null on failure.
std::FILE* OpenFile(const WideChar* path, const char* mode);

// Hands `path` to the desktop's opener (xdg-open, found through PATH) and
// does not wait for it. Whether anything opened is not reported: the
// opener runs on its own.
void OpenWithDesktop(const WideChar* path);

}  // namespace platform
