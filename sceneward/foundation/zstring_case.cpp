// ZString: case mapping.
#include <cctype>
#include <climits>

#include "sceneward/foundation/zstring.h"

void ZString::MapCase(int (*map)(int)) {
  ForceReferenceIntoCopy();
  // The C library's case functions are defined on unsigned byte values only;
  // every other unit is one they would hand back unchanged.
  if (narrowIsCurrent) {
    for (char& byte : narrowText) byte = static_cast<char>(map(static_cast<unsigned char>(byte)));
  } else {
    for (WideChar& unit : wideText) {
      if (unit <= UCHAR_MAX) unit = static_cast<WideChar>(map(unit));
    }
  }
}

void ZString::MakeUpper() {
  MapCase([](int c) { return std::toupper(c); });
}

void ZString::MakeLower() {
  MapCase([](int c) { return std::tolower(c); });
}
