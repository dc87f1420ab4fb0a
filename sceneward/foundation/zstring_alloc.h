#pragma once
// Allocation for the buffers that ZString hands to callers, who release
// them with free().
#include <cstddef>
#include <cstdlib>
#include <new>

// malloc(bytes), raising std::bad_alloc instead of answering null, as every
// other allocation of the library does.
inline void* MallocOrThrow(size_t bytes) {
  void* memory = std::malloc(bytes);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
