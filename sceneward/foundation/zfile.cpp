#include "sceneward/foundation/zfile.h"

#include "platform/files.h"

namespace {

uint32_t AttributesOf(const ZString& path) { return platform::GetFileAttributes(path.GetAsWChar_T()); }

}  // namespace

bool ZFile::IsFolder() const {
  const uint32_t attributes = AttributesOf(path);
  return attributes != platform::kInvalidFileAttributes && (attributes & platform::kDirectoryAttribute) != 0;
}

bool ZFile::Exists() const {
  const uint32_t attributes = AttributesOf(path);
  return attributes != platform::kInvalidFileAttributes && (attributes & platform::kDirectoryAttribute) == 0;
}

bool ZFile::CreateAsDirectory() const { return platform::CreateDirectory(path.GetAsWChar_T()); }

bool ZFile::Delete() const { return platform::DeleteFile(path.GetAsWChar_T()); }

void ZFile::SystemOpen() const {
  // The path's views rewrite the string, so a copy keeps this object const.
  const ZString copy(path);
  platform::OpenWithDesktop(copy.GetAsWChar_T());
}
