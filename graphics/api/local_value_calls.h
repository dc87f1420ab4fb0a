#pragma once
// Set, show and unset of the attributes that hold one value, written once:
// a set replaces the local value; a show of a value not set here is
// reported (23/2303) and writes nothing; an unset of nothing is silent.
// Under a dead frame sets store nothing and shows write nothing.
#include <utility>

#include "api/call.h"

namespace graphics::api {

// `make()` gives Result<value type of T>, checked before anything changes.
template <typename T, typename Make>
void SetLocal(const char* routine, Make&& make) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    auto value = make();
    if (!value.ok()) return value.error();
    if (Segment* segment = session.SegmentToChange()) segment->MutableAttributes().Set(T{std::move(value.value())});
    return Done{};
  });
}

// Calls `write(value)` with the local value; returns whether there was one.
template <typename T, typename Write>
bool ShowLocal(const char* routine, Write&& write) {
  return Run(Access::kRead, routine, false, [&](Session& session) -> Result<bool> {
    if (session.open_stack().top_is_dead()) return false;
    const Segment* segment = session.SegmentToRead();
    const T* local = segment ? segment->attributes().Find<T>() : nullptr;
    if (local == nullptr) {
      return Error(errc::kNotSet, "no " + std::string(AttributeName(T::kKind)) + " is set here");
    }
    write(local->value);
    return true;
  });
}

template <typename T>
void UnSetLocal(const char* routine) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    Segment* segment = session.SegmentToChange();
    if (segment != nullptr && segment->attributes().Has(T::kKind)) segment->MutableAttributes().Remove(T::kKind);
    return Done{};
  });
}

}  // namespace graphics::api
