#include "sceneward/data/zdata_type.h"

void ZDataType::Release() {
  if (--mRefCount < 1) delete this;
}
