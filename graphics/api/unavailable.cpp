// Defines the stand-in of every C function and makes the exported name a
// weak alias of it. A real definition elsewhere in the engine is strong and
// wins at link time, so no list of implemented functions is kept by hand.
#include "api/unavailable.h"

#include <string>
#include <type_traits>

#include "errors/report.h"

namespace graphics {
namespace {

// The one specific number of the "not available" category.
constexpr int kSpecificNotAvailable = 1;

// A stand-in takes the published parameters and looks at none of them.
template <class... Arguments>
void IgnoreArguments(Arguments const&...) {}

// What a failing call of the engine returns: the error key -1 for a key,
// false, zero or null for anything else.
template <class Result>
Result FailureResult() {
  if constexpr (std::is_same_v<Result, long long>) {
    return -1;
  } else if constexpr (!std::is_void_v<Result>) {
    return Result{};
  }
}

}  // namespace

void ReportUnavailable(const char* routine) {
  ReportError(kCategoryUnavailable, kSpecificNotAvailable, kError,
              std::string(routine) + " is not available yet", routine);
}

}  // namespace graphics

#define HC_FUNCTION(result, name, parameters, arguments)              \
  extern "C" result sw_unavailable_##name parameters {                 \
    graphics::IgnoreArguments arguments;                               \
    graphics::ReportUnavailable(#name);                                \
    return graphics::FailureResult<result>();                          \
  }                                                                    \
  extern "C" __attribute__((weak, alias("sw_unavailable_" #name))) result name parameters;
#include "hc/functions.def"
#include "hc/immediate_functions.def"
#undef HC_FUNCTION
