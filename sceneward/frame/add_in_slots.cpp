#include "sceneward/frame/add_in_slots.h"

#include <cstdlib>
#include <cstring>
#include <limits>

const ZelmoSlotKey ZelmoAddInSlots::kLibraryKeys[] = {{kEndOfKeys, {0, 0}}};

ZelmoAddInSlots::ZelmoAddInSlots(const ZelmoSlotKey* keyList)
    : buffer(nullptr), used(0), capacity(0), keys(keyList), slots(nullptr), flags(0), flags2(0) {
  size_t count = 1;  // the terminator has a slot too
  for (const ZelmoSlotKey* key = keys; key->key != kEndOfKeys; ++key) ++count;
  // A size that overflows asks for the largest block, which fails: the table
  // is then simply without slots.
  const size_t bytes = count > std::numeric_limits<size_t>::max() / sizeof(ZelmoSlot)
                           ? std::numeric_limits<size_t>::max()
                           : count * sizeof(ZelmoSlot);
  slots = static_cast<ZelmoSlot*>(std::malloc(bytes));
  if (slots != nullptr) std::memset(slots, 0, bytes);
}

ZelmoAddInSlots::~ZelmoAddInSlots() {
  if (keys != nullptr && slots != nullptr) {
    ZelmoSlot* slot = slots;
    for (const ZelmoSlotKey* key = keys; key->key != kEndOfKeys; ++key, ++slot) {
      if (slot->type & kOwnedBlock) std::free(slot->value);
    }
  }
  std::free(slots);
  std::free(buffer);
  buffer = nullptr;
  used = 0;
  capacity = 0;
}
