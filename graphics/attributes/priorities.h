#pragma once
// Drawing priorities set explicitly on items, by key. Keys are never
// reused, so an entry of a deleted item is never asked for again.
#include <map>

namespace graphics {

std::map<long long, int>& Priorities();

}  // namespace graphics
