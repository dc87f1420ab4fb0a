#pragma once
// The process's engine state: one database for all threads, guarded by one
// reader/writer lock (show calls share it, changes take it alone), and one
// open-segment stack and set of searches per thread.
#include <shared_mutex>

#include "database/database.h"
#include "search/search_stack.h"
#include "session/open_stack.h"

namespace graphics {

class Engine {
 public:
  static Engine& Instance();

  std::shared_mutex& mutex() { return mutex_; }
  Database& database() { return database_; }

  // The calling thread's open segments; frames left from before a reset are
  // dropped first. Call with the lock held.
  OpenStack& ThisThreadStack();
  // The calling thread's searches in progress. Call with the lock held.
  ThreadSearches& ThisThreadSearches();

 private:
  Engine() = default;

  std::shared_mutex mutex_;
  Database database_;
};

}  // namespace graphics
