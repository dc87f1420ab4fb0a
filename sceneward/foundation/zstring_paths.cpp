// ZString: the parts of a file path.
#include "sceneward/foundation/zstring.h"

namespace {

// Where the name begins and its extension's dot lies in a path.
struct PathParts {
  int separator;  // the last separator, or -1
  int dot;        // the last dot anywhere, or -1

  PathParts(const ZString& path, char sep)
      : separator(path.ReverseFind(ZString(sep), -1)), dot(path.ReverseFind(ZString("."), -1)) {}

  // A dot before the last separator belongs to a directory, and a dot that
  // starts the name makes a hidden name, not an extension.
  bool HasExtension() const { return dot >= 0 && dot > separator + 1; }
};

}  // namespace

ZString ZString::GetFilePath(char sep) const {
  const PathParts parts(*this, sep);
  if (parts.separator < 0) return ZString();
  return Mid(0, static_cast<unsigned>(parts.separator) + 1);
}

ZString ZString::GetFileName(char sep) const {
  const PathParts parts(*this, sep);
  if (parts.separator < 0) return *this;
  return Mid(static_cast<unsigned>(parts.separator) + 1);
}

ZString ZString::GetFileNameNoExtension(char sep) const {
  const PathParts parts(*this, sep);
  const unsigned nameStart = static_cast<unsigned>(parts.separator + 1);
  if (!parts.HasExtension()) return parts.separator < 0 ? *this : Mid(nameStart);
  return Mid(nameStart, static_cast<unsigned>(parts.dot) - nameStart);
}

ZString ZString::GetExtension(char sep) const {
  const PathParts parts(*this, sep);
  if (!parts.HasExtension()) return ZString();
  return Mid(static_cast<unsigned>(parts.dot) + 1);
}

void ZString::RemoveExtension(char sep) {
  const PathParts parts(*this, sep);
  if (parts.HasExtension()) *this = Mid(0, static_cast<unsigned>(parts.dot));
}
