#pragma once
// Creation of globally unique identifiers.
#include "platform/guid.h"

using _GUID = platform::Guid;

class ZGUID {
 public:
  // Fills `out` with a new random identifier. Whether that worked is not
  // reported: should the system give no randomness, `out` keeps what it
  // held.
  static void CreateGUID(_GUID& out);
};
