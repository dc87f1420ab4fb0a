#pragma once
// Fixture of the attribute handle tests: the recording host, with a scene
// segment of its own that is removed again after each test.
#include <algorithm>
#include <string>
#include <vector>

#include "hc/hc.h"
#include "sceneward/scene/attributes/zdb_at_color.h"
#include "sceneward/scene/entities/zdb_en_segment.h"
#include "support/recording_host_test.h"

class AttributeTest : public RecordingHostTest {
 protected:
  using Calls = std::vector<std::string>;

  static constexpr char kScene[] = "/attribute handles";
  static constexpr char kLibraryProbe[] = "/include library/attribute handles probe";

  AttributeTest() : scene_(MakeSegment(kScene)) {
    // The first walk up the tree opens "/include library" once for the
    // process; it is done here so that no test sees those calls. A walk
    // from just below the library ends there at once.
    const ZDbEnSegment probe = MakeSegment(kLibraryProbe);
    ZDbAtColor(probe).IsAttributeSet(true, ZString());
    ::HC_Delete_Segment(kLibraryProbe);
    recorder_.ClearCalls();
  }
  ~AttributeTest() override { ::HC_Delete_Segment(kScene); }

  // The segment at the absolute `path`, created if missing, without going
  // through the recorder.
  static ZDbEnSegment MakeSegment(std::string const& path) {
    const long long key = ::HC_Open_Segment(path.c_str());
    ::HC_Close_Segment();
    return ZDbEnSegment(key);
  }
  ZDbEnSegment MakeChild(std::string const& relative) const {
    return MakeSegment(std::string(kScene) + "/" + relative);
  }

  // The graphics calls since the last ClearCalls, without the manager's
  // own Lock and UnLock.
  Calls GraphicsCalls() const {
    Calls calls = recorder_.Calls();
    std::erase_if(calls, [](std::string const& name) { return name.rfind("HC_", 0) != 0; });
    return calls;
  }

  // The calls of one bracket around `call`.
  static Calls Bracket(std::string const& call) {
    return {"HC_Open_Segment_By_Key", call, "HC_Close_Segment"};
  }
  // The calls of a guarded local read or removal that passed its guard.
  static Calls Guarded(std::string const& call) {
    Calls calls = Bracket("HC_Show_Existence");
    for (std::string const& name : Bracket(call)) calls.push_back(name);
    return calls;
  }

  ZDbEnSegment scene_;
};
