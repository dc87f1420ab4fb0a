// The entity handles at scale: the cost of the facade around one insertion
// (ZDbEnSegment::InsertLine against the same three engine calls made
// directly), an entity search over a big segment, and one huge shell from a
// flat float array.
#include <benchmark/benchmark.h>

#include <vector>

#include "hc/hc.h"
#include "host/reference_host.h"
#include "platform/thread_id.h"
#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/scene/entities/zdb_en_line.h"
#include "sceneward/scene/entities/zdb_en_segment.h"
#include "sceneward/scene/entities/zdb_en_shell.h"
#include "sceneward/scene/search/zdb_entity_vec.h"

namespace {

constexpr char kBenchSegment[] = "/entities bench";

// The calling thread registered with the add-in loaded, and an empty
// segment that is deleted again at the end.
struct BenchScene {
  BenchScene() {
    host.RegisterThread(platform::CurrentThreadId());
    host.LoadAddIn();
    segment = ZDbEnSegment(::HC_Create_Segment(kBenchSegment));
  }
  ~BenchScene() { ::HC_Delete_Segment(kBenchSegment); }

  host::ReferenceHost host;
  ZDbEnSegment segment;
};

void InsertLineThroughSegment(benchmark::State& state) {
  BenchScene scene;
  const ZGeoLine line(ZGeoPoint(0, 0, 0), ZGeoPoint(1, 1, 0));
  for (auto _ : state) benchmark::DoNotOptimize(scene.segment.InsertLine(line).GetID());
}

void InsertLineByEngineCalls(benchmark::State& state) {
  BenchScene scene;
  const long long key = scene.segment.GetID();
  for (auto _ : state) {
    ::HC_Open_Segment_By_Key(key);
    benchmark::DoNotOptimize(::HC_Insert_Line(0, 0, 0, 1, 1, 0));
    ::HC_Close_Segment();
  }
}

void EntitySearchOverManyLines(benchmark::State& state) {
  BenchScene scene;
  const int count = static_cast<int>(state.range(0));
  ::HC_Open_Segment_By_Key(scene.segment.GetID());
  for (int i = 0; i < count; ++i) ::HC_Insert_Line(i, 0, 0, i, 1, 0);
  ::HC_Close_Segment();
  for (auto _ : state) {
    ZDbEntityVec found;
    benchmark::DoNotOptimize(scene.segment.EntitySearch(found, -2, ".", true));
  }
}

// A grid of 501 x 1001 points, two triangles per cell: 1,000,000 triangles.
struct TriangleGrid {
  TriangleGrid() {
    for (int r = 0; r <= kRows; ++r) {
      for (int c = 0; c <= kColumns; ++c) points.insert(points.end(), {float(c), float(r), 0});
    }
    for (int r = 0; r < kRows; ++r) {
      for (int c = 0; c < kColumns; ++c) {
        const int a = r * (kColumns + 1) + c;
        const int b = a + kColumns + 1;
        faces.insert(faces.end(), {3, a, a + 1, b + 1, 3, a, b + 1, b});
      }
    }
  }
  static constexpr int kRows = 500;
  static constexpr int kColumns = 1000;
  std::vector<float> points;
  std::vector<int> faces;
};

void InsertShellOfAMillionTriangles(benchmark::State& state) {
  BenchScene scene;
  const TriangleGrid grid;
  for (auto _ : state) {
    ZDbEnShell shell =
        scene.segment.InsertShell(grid.points.data(), static_cast<int>(grid.points.size() / 3),
                                  grid.faces.data(), static_cast<int>(grid.faces.size()));
    state.PauseTiming();
    shell.Delete();
    state.ResumeTiming();
  }
  state.counters["triangles"] = static_cast<double>(grid.faces.size() / 4);
}

BENCHMARK(InsertLineThroughSegment)->Iterations(1000000);
BENCHMARK(InsertLineByEngineCalls)->Iterations(1000000);
BENCHMARK(EntitySearchOverManyLines)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(InsertShellOfAMillionTriangles)->Unit(benchmark::kMillisecond);

}  // namespace
