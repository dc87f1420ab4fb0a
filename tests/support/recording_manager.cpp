#include "support/recording_manager.h"

#include <algorithm>

// The manager gets its own arguments back as they came; only the engine
// needs them adapted.
#define SW_STRING_OUT(s) s
#define SW_STRING_IN(s) s
#define SW_WIDE_IN(s) s

#define SW_MANAGER_OPERATION(shape, result, name, parameters, arguments) \
  result RecordingManager::name parameters {                            \
    Record(#name);                                                      \
    return ZelmoSceneward::name arguments;                              \
  }
#include "sceneward/frame/manager_operations.def"

std::vector<std::string> RecordingManager::Calls() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return calls_;
}

int RecordingManager::CountOf(std::string_view name) const {
  std::lock_guard<std::mutex> lock(mutex_);
  return static_cast<int>(std::count(calls_.begin(), calls_.end(), name));
}

void RecordingManager::ClearCalls() {
  std::lock_guard<std::mutex> lock(mutex_);
  calls_.clear();
}

void RecordingManager::Record(const char* name) {
  std::lock_guard<std::mutex> lock(mutex_);
  calls_.emplace_back(name);
}
