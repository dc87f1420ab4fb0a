#include "sceneward/data/zdata_values.h"

ZDataInteger* ZDataCreateInteger(uint64_t value) { return new ZDataInteger(value); }

ZDataFloat* ZDataCreateFloat(float value) { return new ZDataFloat(value); }

ZDataString* ZDataCreateString(const ZString& value) { return new ZDataString(value); }
