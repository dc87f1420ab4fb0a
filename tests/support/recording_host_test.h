#pragma once
// Fixture for tests of the order of graphics calls: a reference host with the
// calling thread registered and the add-in loaded, whose thread is then
// served by a RecordingManager. The engine behind it is the real one.
#include <gtest/gtest.h>

#include "host/host_thread_entry.h"
#include "host/reference_host.h"
#include "platform/thread_id.h"
#include "support/recording_manager.h"

class RecordingHostTest : public ::testing::Test {
 protected:
  RecordingHostTest()
      : entry_(referenceHost_.RegisterThread(platform::CurrentThreadId())),
        recorder_(Install(entry_)) {}

  host::ReferenceHost referenceHost_;
  host::HostThreadEntry& entry_;
  // The current thread's manager, owned by the entry.
  RecordingManager& recorder_;

 private:
  RecordingManager& Install(host::HostThreadEntry& entry) {
    referenceHost_.LoadAddIn();
    auto* recorder = new RecordingManager;
    entry.SetManager(recorder);
    return *recorder;
  }
};
