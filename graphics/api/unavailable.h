#pragma once
// The "not available yet" stand-in of every C function, sw_unavailable_<name>.
// Each exported function is a weak alias of its stand-in until the engine
// defines it for real; comparing the two addresses tells which is in force.
#include "hc/hc.h"

extern "C" {
#define HC_FUNCTION(result, name, parameters, arguments) \
  __attribute__((visibility("hidden"))) result sw_unavailable_##name parameters;
#include "hc/functions.def"
#include "hc/immediate_functions.def"
#undef HC_FUNCTION
}
