#pragma once
// Fixture of the entity, segment and search tests: the recording host with
// a scene segment of its own, removed again after each test. Scenes are
// built with direct engine calls, so that only the calls of the code under
// test are recorded.
#include <string>
#include <vector>

#include "hc/hc.h"
#include "sceneward/scene/entities/zdb_en_segment.h"
#include "support/recording_host_test.h"

class EntityTest : public RecordingHostTest {
 protected:
  using Calls = std::vector<std::string>;

  static constexpr char kScene[] = "/entity handles";

  EntityTest() : scene_(MakeSegment(kScene)) {}
  ~EntityTest() override { ::HC_Delete_Segment(kScene); }

  // The segment at `path`, absolute or below the scene, created if missing.
  static ZDbEnSegment MakeSegment(std::string const& path) {
    std::string const absolute = path[0] == '/' ? path : std::string(kScene) + "/" + path;
    const long long key = ::HC_Open_Segment(absolute.c_str());
    ::HC_Close_Segment();
    return ZDbEnSegment(key);
  }
  // A line from (x, 0, 0) to (x, 1, 0) in `segment`.
  static long long InsertLine(ZDbEnSegment const& segment, float x = 0) {
    ::HC_Open_Segment_By_Key(segment.GetID());
    const long long key = ::HC_Insert_Line(x, 0, 0, x, 1, 0);
    ::HC_Close_Segment();
    return key;
  }

  // The graphics calls since the last ClearCalls, without the manager's own
  // Lock and UnLock.
  Calls GraphicsCalls() const {
    Calls calls = recorder_.Calls();
    std::erase_if(calls, [](std::string const& name) {
      return name.rfind("HC_", 0) != 0 && name.rfind("HIC_", 0) != 0;
    });
    return calls;
  }

  ZDbEnSegment scene_;
};
