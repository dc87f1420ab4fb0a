#include "engine/update_scope.h"

namespace graphics {

namespace {

thread_local int update_depth = 0;

}  // namespace

UpdateScope::UpdateScope() { ++update_depth; }

UpdateScope::~UpdateScope() { --update_depth; }

bool UpdateScope::Active() { return update_depth > 0; }

}  // namespace graphics
