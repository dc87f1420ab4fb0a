#pragma once
// A file in the temporary folder that is removed when its object dies,
// unless detached.
#include "sceneward/foundation/zfile.h"

class ZTempFile : public ZFile {
 public:
  // A fresh name from GetTempFileNameW(extension); no file is made yet.
  explicit ZTempFile(const ZString& extension);
  // Copies share the name and the duty to delete: whichever dies first
  // removes the file, and the other's attempt then fails harmlessly.
  ZTempFile(const ZTempFile&) = default;
  ZTempFile& operator=(const ZTempFile&) = default;
  ~ZTempFile() override;

  // Keeps the file when this object dies.
  void Detach() { deleteOnDestroy = false; }

  // The temporary folder, ending in the separator.
  static ZString GetTempPathW();
  // "<temp folder><ext><GUID>.tmp", followed by ".<ext>" if `ext` is not
  // empty, where `ext` is `extension` without leading dots. The GUID makes
  // the name unique; any file of that name (and of the name without the
  // last extension) is removed first, and none is made.
  static ZString GetTempFileNameW(const ZString& extension);

 protected:
  bool deleteOnDestroy = true;
};
