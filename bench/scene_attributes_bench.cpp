// The cost of the attribute handles against reading the same information
// with direct engine calls: the net colour of an entity ten levels deep
// (the handle walks up to the coloured ancestor before its channel queries)
// and a guarded local read (the handle's existence test costs a second
// bracket).
#include <benchmark/benchmark.h>

#include <string>

#include "hc/hc.h"
#include "host/reference_host.h"
#include "platform/thread_id.h"
#include "sceneward/scene/attributes/zdb_at_color.h"
#include "sceneward/scene/attributes/zdb_at_visibility.h"
#include "sceneward/scene/entities/zdb_en_segment.h"

namespace {

constexpr int kDepth = 10;

// The calling thread registered with the add-in, and a chain of segments
// ten deep below "/bench attributes", coloured at the top of the chain and
// with a local visibility at the bottom.
struct BenchScene {
  BenchScene() {
    host.RegisterThread(platform::CurrentThreadId());
    host.LoadAddIn();
    std::string path = "/bench attributes";
    for (int level = 1; level <= kDepth; ++level) {
      path += "/level " + std::to_string(level);
      deepest = HC_Create_Segment(path.c_str());
      if (level == 1) {
        HC_Open_Segment_By_Key(deepest);
        HC_Set_Color("faces=(diffuse=red, transmission=(r=0.5 g=0.5 b=0.5))");
        HC_Close_Segment();
      }
    }
    HC_Open_Segment_By_Key(deepest);
    HC_Set_Visibility("faces=off");
    HC_Close_Segment();
  }
  ~BenchScene() { HC_Delete_Segment("/bench attributes"); }

  host::ReferenceHost host;
  long long deepest = -1;
};

void NetColourThroughHandle(benchmark::State& state) {
  BenchScene scene;
  const ZDbEnSegment deepest(scene.deepest);
  const ZColor fallback(0, 0, 0);
  for (auto _ : state) {
    benchmark::DoNotOptimize(deepest.Color().GetOneNetByValue("faces", true, true, fallback));
  }
}

void NetColourDirect(benchmark::State& state) {
  BenchScene scene;
  for (auto _ : state) {
    float diffuse[3], transmission[3];
    char texture[4096], options[4096];
    HC_Open_Segment_By_Key(scene.deepest);
    HC_PShow_Net_Explicit_Color(0, nullptr, "faces", "diffuse color", diffuse, texture, options);
    HC_PShow_Net_Explicit_Color(0, nullptr, "faces", "transmission", transmission, texture,
                                options);
    HC_Close_Segment();
    benchmark::DoNotOptimize(diffuse);
    benchmark::DoNotOptimize(transmission);
  }
}

void GuardedLocalReadThroughHandle(benchmark::State& state) {
  BenchScene scene;
  const ZDbEnSegment deepest(scene.deepest);
  for (auto _ : state) benchmark::DoNotOptimize(deepest.Visibility().Get());
}

void GuardedLocalReadDirect(benchmark::State& state) {
  BenchScene scene;
  for (auto _ : state) {
    char visibility[4096] = "";
    HC_Open_Segment_By_Key(scene.deepest);
    if (HC_Show_Existence("visibility") > 0) HC_Show_Visibility(visibility);
    HC_Close_Segment();
    benchmark::DoNotOptimize(visibility);
  }
}

BENCHMARK(NetColourThroughHandle);
BENCHMARK(NetColourDirect);
BENCHMARK(GuardedLocalReadThroughHandle);
BENCHMARK(GuardedLocalReadDirect);

}  // namespace
