#pragma once
// The program's own data on a segment besides its 8-bit options: options in
// 16-bit text (a store of their own), pointer-sized values under integer
// indices, and one pointer-sized user value.
#include <cstdint>
#include <map>

#include "attributes/attribute_kind.h"
#include "attributes/user_options.h"

namespace graphics {

// Kept in UTF-8 (each 16-bit unit on its own, see text/utf16.h) so the one
// option grammar serves both stores.
struct UnicodeOptions : UserOptions {
  static constexpr AttributeKind kKind = AttributeKind::kUnicodeOptions;
};

struct UserIndices {
  static constexpr AttributeKind kKind = AttributeKind::kUserIndices;
  std::map<long, void*> values;  // ascending by index
  bool operator==(const UserIndices&) const = default;
};

struct UserValue {
  static constexpr AttributeKind kKind = AttributeKind::kUserValue;
  intptr_t value = 0;
  bool operator==(const UserValue&) const = default;
};

}  // namespace graphics
