// ZString: loading numbered string resources.
#include "platform/string_resources.h"
#include "sceneward/foundation/zstring.h"

namespace {

// The fixed buffer a resource is loaded through; longer strings are cut.
constexpr int kResourceChars = 1024;

// Resource ids are 32-bit; wider values are cut as a 32-bit id parameter
// would cut them.
unsigned ResourceId(unsigned long id) { return static_cast<unsigned>(id); }

}  // namespace

bool ZString::LoadString8(unsigned long id, void* module) {
  char buffer[kResourceChars];
  const int count = platform::LoadStringNarrow(module, ResourceId(id), buffer, kResourceChars);
  CopyFrom(buffer, count);
  return count > 0;
}

bool ZString::LoadString16(unsigned long id, void* module) {
  WideChar buffer[kResourceChars];
  const int count = platform::LoadStringWide(module, ResourceId(id), buffer, kResourceChars);
  CopyFrom(buffer, count);
  return count > 0;
}

bool ZString::LoadStringW(unsigned long id, void* module) { return LoadString16(id, module); }
