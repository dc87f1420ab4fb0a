#include "sceneward/scene/attributes/zdb_at_driver_options.h"

ZDbAtDriverOptions ZDbEnSegment::DriverOptions() const { return ZDbAtDriverOptions(*this); }

ZDbAtDriverOptions::ZDbAtDriverOptions(ZDbEnSegment const& segment)
    : ZDbAttribute(kAttributeDriverOptions, segment, "driver options") {}

void ZDbAtDriverOptions::Set(ZString const& options) {
  SetNonEmpty(&ZelmoSceneward::HC_Set_Driver_Options, options);
}

ZString ZDbAtDriverOptions::Get() const {
  return ShowLocal(&ZelmoSceneward::HC_Show_Driver_Options);
}

ZString ZDbAtDriverOptions::GetOne(ZString const& name) const {
  return ShowLocal(&ZelmoSceneward::HC_Show_One_Driver_Option, name);
}
