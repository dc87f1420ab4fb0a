#pragma once
// A path to a file or folder, with the few file operations the library
// needs. The object holds only the path; every operation asks the file
// system afresh.
#include "sceneward/foundation/zstring.h"

class ZFile {
 public:
  ZFile() = default;
  explicit ZFile(const ZString& path) : path(path) {}
  ZFile(const ZFile&) = default;
  ZFile& operator=(const ZFile&) = default;
  virtual ~ZFile() = default;

  ZString GetPathAndFile() const { return path; }
  operator ZString() const { return path; }
  void SetPathAndFile(const ZString& newPath) { path = newPath; }
  // The extension of the file name, without its dot; empty if it has none.
  // Folders are separated by the system's separator, '/'.
  ZString GetExtension() const { return path.GetExtension('/'); }

  // True if the path names an existing folder.
  bool IsFolder() const;
  // True if the path names something that exists and is not a folder: a
  // folder answers false, as does a missing path.
  bool Exists() const;
  // Makes the path a folder, one level only: false if the parent is missing
  // or the path exists already.
  bool CreateAsDirectory() const;
  // Removes the file; false for a missing path or a folder.
  bool Delete() const;
  // Hands the path to the desktop to open with its usual program. Whether
  // that works is not reported.
  void SystemOpen() const;

 protected:
  ZString path;
};
