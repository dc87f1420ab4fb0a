#pragma once
// A small keyed table of variable slots, driven by a static key list. The
// add-in object carries one; in this library the key list holds only its
// terminator, so the table owns a single empty slot.
#include <cstdint>

// One record of a static key list; a key of kEndOfKeys ends the list.
struct ZelmoSlotKey {
  uint16_t key;
  uint16_t reserved[2];
};
static_assert(sizeof(ZelmoSlotKey) == 6);

// One slot: a type word, and a pointer that is an owned block when the type
// word has kOwnedBlock set.
struct ZelmoSlot {
  uint32_t type;
  uint32_t reserved;
  void* value;
};
static_assert(sizeof(ZelmoSlot) == 16);

class ZelmoAddInSlots {
 public:
  static constexpr uint16_t kEndOfKeys = 0xFFFF;
  static constexpr uint32_t kOwnedBlock = 0x2000;

  // Allocates one slot per key plus one for the terminator. An allocation
  // failure is swallowed: the table then has no slots (Slots() is null).
  explicit ZelmoAddInSlots(const ZelmoSlotKey* keys);
  // Frees the owned block of every slot that has one, the slots and the buffer.
  ~ZelmoAddInSlots();
  ZelmoAddInSlots(const ZelmoAddInSlots&) = delete;
  ZelmoAddInSlots& operator=(const ZelmoAddInSlots&) = delete;

  const ZelmoSlotKey* Keys() const { return keys; }
  ZelmoSlot* Slots() const { return slots; }

  // The key list of this library: the terminator alone.
  static const ZelmoSlotKey kLibraryKeys[];

 private:
  void* buffer;
  uint32_t used;
  uint32_t capacity;
  const ZelmoSlotKey* keys;
  ZelmoSlot* slots;
  uint16_t flags;
  uint8_t flags2;
};
