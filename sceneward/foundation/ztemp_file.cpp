#include "sceneward/foundation/ztemp_file.h"

#include <cstdio>

#include "platform/files.h"
#include "sceneward/foundation/zguid.h"

namespace {

// The third group is in lower case, unlike the others: names made earlier
// look so, and tools that match them rely on it.
ZString FormatGuid(const _GUID& guid) {
  char text[40];
  std::snprintf(text, sizeof text, "%08lX-%04X-%04x-%02X%02X-%02X%02X%02X%02X%02X%02X",
                static_cast<unsigned long>(guid.Data1), guid.Data2, guid.Data3, guid.Data4[0], guid.Data4[1],
                guid.Data4[2], guid.Data4[3], guid.Data4[4], guid.Data4[5], guid.Data4[6], guid.Data4[7]);
  return ZString(text);
}

void DeleteIfPresent(const ZString& path) { platform::DeleteFile(path.GetAsWChar_T()); }

}  // namespace

ZTempFile::ZTempFile(const ZString& extension) : ZFile(GetTempFileNameW(extension)) {}

ZTempFile::~ZTempFile() {
  if (deleteOnDestroy) Delete();
}

ZString ZTempFile::GetTempPathW() {
  const uint32_t needed = platform::GetTempPath(0, nullptr);
  ZString result;
  WideChar* buffer = result.GetBuffer16(needed + 1);
  platform::GetTempPath(needed + 1, buffer);
  return result;
}

ZString ZTempFile::GetTempFileNameW(const ZString& extension) {
  ZString ext = extension;
  ext.TrimLeft(ZString("."));
  _GUID guid{};
  ZGUID::CreateGUID(guid);
  ZString result = GetTempPathW() + ext + FormatGuid(guid) + ZString(".tmp");
  DeleteIfPresent(result);
  if (!ext.IsEmpty()) {
    result += ZString(".") + ext;
    DeleteIfPresent(result);
  }
  return result;
}
