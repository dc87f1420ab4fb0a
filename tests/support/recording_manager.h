#pragma once
// A manager that logs the name of every operation of the table, in call
// order, and then does exactly what ZelmoSceneward does. Installed as a
// thread's manager, it shows which graphics calls the library makes and in
// which order, while the real engine does the work.
//
// Overloads log the same name. A test that needs a different answer from one
// operation derives from it and overrides that operation, calling Record.
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "sceneward/frame/zelmo_sceneward.h"

class RecordingManager : public ZelmoSceneward {
 public:
  RecordingManager() = default;

#define SW_MANAGER_OPERATION(shape, result, name, parameters, arguments) \
  result name parameters override;
#include "sceneward/frame/manager_operations.def"

  // Every name logged so far, oldest first.
  std::vector<std::string> Calls() const;
  // The logged names that are `name`, counted.
  int CountOf(std::string_view name) const;
  // Forgets what was logged, so that a test can look at one step alone.
  void ClearCalls();

 protected:
  void Record(const char* name);

 private:
  // Callbacks of an update may run on another thread.
  mutable std::mutex mutex_;
  std::vector<std::string> calls_;
};
