// The cost of reaching the graphics engine through the current thread's
// manager (registry lookup plus a virtual forward) against calling the engine
// directly, with the calling thread registered last among N threads: the
// lookup walks the whole registry.
#include <benchmark/benchmark.h>

#include "hc/hc.h"
#include "host/reference_host.h"
#include "platform/thread_id.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace {

// A host with `threads` registered rows, the caller's last, and one segment.
struct BenchScene {
  explicit BenchScene(int threads) {
    for (int i = 1; i < threads; ++i) host.RegisterThread(0x40000000u + static_cast<uint32_t>(i));
    host.RegisterThread(platform::CurrentThreadId());
    host.LoadAddIn();
    segment = HC_Create_Segment("/bench");
  }
  ~BenchScene() { HC_Delete_By_Key(segment); }

  host::ReferenceHost host;
  long long segment = -1;
};

void ThroughManager(benchmark::State& state) {
  BenchScene scene(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    benchmark::DoNotOptimize(CurrentManager()->HC_Check_Double_Precision(scene.segment, "modelling matrix"));
  }
}

void DirectEngineCall(benchmark::State& state) {
  BenchScene scene(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    benchmark::DoNotOptimize(HC_Check_Double_Precision(scene.segment, "modelling matrix"));
  }
}

void ManagerLookupOnly(benchmark::State& state) {
  BenchScene scene(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(CurrentManager());
}

BENCHMARK(ThroughManager)->Arg(1)->Arg(8)->Arg(64);
BENCHMARK(DirectEngineCall)->Arg(1)->Arg(8)->Arg(64);
BENCHMARK(ManagerLookupOnly)->Arg(1)->Arg(8)->Arg(64);

}  // namespace
