#pragma once
// A recording manager that also keeps the key paths handed to the net reads
// along a path, so that a test can see which keys a handle asked about.
#include <vector>

#include "support/recording_manager.h"

class KeyPathRecorder : public RecordingManager {
 public:
  int HC_PShow_Net_Camera(int count, long long const* keys, void* position, void* target, void* up,
                          float* width, float* height, ZString& projection) override {
    Keep(count, keys);
    return RecordingManager::HC_PShow_Net_Camera(count, keys, position, target, up, width, height, projection);
  }
  bool HC_PShow_Net_Modelling_Matrix(int count, long long const* keys, float* m) override {
    Keep(count, keys);
    return RecordingManager::HC_PShow_Net_Modelling_Matrix(count, keys, m);
  }

  // The key path of each such read, oldest first.
  std::vector<std::vector<long long>> paths_;

 private:
  void Keep(int count, long long const* keys) { paths_.emplace_back(keys, keys + count); }
};
