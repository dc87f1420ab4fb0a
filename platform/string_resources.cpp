#include "platform/string_resources.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <mutex>
#include <utility>

#include "platform/text_conversion.h"

namespace platform {

namespace {

struct Registry {
  std::mutex lock;
  std::map<void*, StringTable> tables;
};

// Built on first use, so modules may register from their own static
// initialisers whatever the order of initialisation.
Registry& TheRegistry() {
  static Registry registry;
  return registry;
}

// A copy of the string, taken under the lock so that a concurrent
// re-registration cannot pull it away while it is converted.
WideString FindString(void* module, unsigned id) {
  Registry& registry = TheRegistry();
  std::lock_guard<std::mutex> guard(registry.lock);
  const auto table = registry.tables.find(module);
  if (table == registry.tables.end()) return WideString();
  const auto text = table->second.find(id);
  if (text == table->second.end()) return WideString();
  return text->second;
}

// The multibyte form of one unit, converted on its own so that a unit the
// locale cannot represent costs only itself. Returns the byte count.
size_t NarrowUnit(WideChar unit, char* bytes) {
  if (unit == 0) {
    bytes[0] = '\0';
    return 1;
  }
  const WideChar text[] = {unit, 0};
  const size_t count = WideToNarrow(bytes, text, MB_LEN_MAX);
  if (count != kConversionFailed) return count;
  bytes[0] = '?';
  return 1;
}

}  // namespace

void RegisterStringTable(void* module, StringTable table) {
  Registry& registry = TheRegistry();
  std::lock_guard<std::mutex> guard(registry.lock);
  registry.tables[module] = std::move(table);
}

void UnregisterStringTable(void* module) {
  Registry& registry = TheRegistry();
  std::lock_guard<std::mutex> guard(registry.lock);
  registry.tables.erase(module);
}

int LoadStringNarrow(void* module, unsigned id, char* buffer, int bufferChars) {
  if (buffer == nullptr || bufferChars < 1) return 0;
  const size_t room = static_cast<size_t>(bufferChars) - 1;
  size_t written = 0;
  for (const WideChar unit : FindString(module, id)) {
    char bytes[MB_LEN_MAX];
    const size_t count = NarrowUnit(unit, bytes);
    if (count > room - written) break;
    std::memcpy(buffer + written, bytes, count);
    written += count;
  }
  buffer[written] = '\0';
  return static_cast<int>(written);
}

int LoadStringWide(void* module, unsigned id, WideChar* buffer, int bufferChars) {
  if (buffer == nullptr || bufferChars < 1) return 0;
  const WideString text = FindString(module, id);
  const size_t count = std::min(text.size(), static_cast<size_t>(bufferChars) - 1);
  std::copy_n(text.begin(), count, buffer);
  buffer[count] = 0;
  return static_cast<int>(count);
}

}  // namespace platform
