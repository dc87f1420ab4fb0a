#include "sceneward/foundation/zguid.h"

void ZGUID::CreateGUID(_GUID& out) { platform::CreateGuid(out); }
