#include "engine/engine.h"

#include <cstdint>
#include <mutex>

namespace graphics {

namespace {

// A thread's frames, tagged with the database generation they point into.
struct ThreadFrames {
  OpenStack stack;
  ThreadSearches searches;
  uint64_t generation = 0;

  ThreadFrames() = default;
  ThreadFrames(const ThreadFrames&) = delete;
  ThreadFrames& operator=(const ThreadFrames&) = delete;

  // A thread that ends with segments open closes them, or they could never
  // be deleted.
  ~ThreadFrames() {
    if (stack.empty()) return;
    Engine& engine = Engine::Instance();
    std::unique_lock lock(engine.mutex());
    if (generation == engine.database().generation()) stack.CloseAll();
  }
};

}  // namespace

Engine& Engine::Instance() {
  static Engine engine;
  return engine;
}

namespace {

ThreadFrames& ThisThreadFrames() {
  thread_local ThreadFrames frames;
  return frames;
}

}  // namespace

ThreadSearches& Engine::ThisThreadSearches() { return ThisThreadFrames().searches; }

OpenStack& Engine::ThisThreadStack() {
  ThreadFrames& frames = ThisThreadFrames();
  if (frames.generation != database_.generation()) {
    frames.stack.Abandon();
    frames.generation = database_.generation();
  }
  return frames.stack;
}

}  // namespace graphics
