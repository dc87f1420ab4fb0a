// The engine's database at scale: inserting many lines and one huge shell,
// a contents search over many items, and the bounding box of a big segment
// after one edit. Memory per item is read from the allocator's statistics.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cmath>
#include <string>
#include <vector>

#include "hc/hc.h"

namespace {

// Heap in use, big blocks the allocator maps on their own included.
size_t AllocatedBytes() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

// A grid of points and its triangles, two per cell: about `triangles` of
// them.
struct TriangleGrid {
  explicit TriangleGrid(int triangles) {
    const int side = static_cast<int>(std::sqrt(triangles / 2.0)) + 1;
    for (int r = 0; r <= side; ++r) {
      for (int c = 0; c <= side; ++c) points.insert(points.end(), {float(c), float(r), float((r * c) % 7)});
    }
    for (int r = 0; r < side; ++r) {
      for (int c = 0; c < side; ++c) {
        const int a = r * (side + 1) + c;
        const int b = a + side + 1;
        faces.insert(faces.end(), {3, a, a + 1, b + 1, 3, a, b + 1, b});
      }
    }
  }
  int point_count() const { return static_cast<int>(points.size() / 3); }
  int triangle_count() const { return static_cast<int>(faces.size() / 4); }

  std::vector<float> points;
  std::vector<int> faces;
};

void InsertMillionLinesOverThousandSegments(benchmark::State& state) {
  constexpr int kSegments = 1000;
  constexpr int kLinesPerSegment = 1000;
  for (auto _ : state) {
    HC_Reset_System();
    const size_t before = AllocatedBytes();
    for (int s = 0; s < kSegments; ++s) {
      HC_Open_Segment(("/lines/" + std::to_string(s)).c_str());
      for (int i = 0; i < kLinesPerSegment; ++i) HC_Insert_Line(i, s, 0, i + 1, s, 1);
      HC_Close_Segment();
    }
    state.counters["bytes_per_line"] =
        double(AllocatedBytes() - before) / double(kSegments * kLinesPerSegment);
  }
  HC_Reset_System();
}
BENCHMARK(InsertMillionLinesOverThousandSegments)->Unit(benchmark::kMillisecond)->Iterations(1);

void InsertShellOfTwoMillionTriangles(benchmark::State& state) {
  const TriangleGrid grid(2'000'000);
  for (auto _ : state) {
    HC_Reset_System();
    const size_t before = AllocatedBytes();
    HC_Open_Segment("/shell");
    HC_Insert_Shell(grid.point_count(), grid.points.data(), static_cast<int>(grid.faces.size()), grid.faces.data());
    HC_Close_Segment();
    const double bytes = double(AllocatedBytes() - before);
    state.counters["triangles"] = grid.triangle_count();
    state.counters["bytes_per_triangle"] = bytes / grid.triangle_count();
    // What the point and face arrays alone take.
    state.counters["array_bytes_per_triangle"] =
        double(grid.points.size() * sizeof(float) + grid.faces.size() * sizeof(int)) / grid.triangle_count();
  }
  HC_Reset_System();
}
BENCHMARK(InsertShellOfTwoMillionTriangles)->Unit(benchmark::kMillisecond)->Iterations(1);

void ContentsSearchOverHundredThousandItems(benchmark::State& state) {
  HC_Reset_System();
  HC_Open_Segment("/many");
  for (int i = 0; i < 100'000; ++i) {
    if (i % 2 == 0) {
      HC_Insert_Marker(i, 0, 0);
    } else {
      HC_Insert_Line(0, 0, 0, i, 1, 1);
    }
  }
  HC_Close_Segment();
  for (auto _ : state) {
    HC_Begin_Contents_Search("/many", "geometry");
    char type[64];
    long long key = 0;
    int found = 0;
    while (HC_Find_Contents(type, &key)) ++found;
    HC_End_Contents_Search();
    benchmark::DoNotOptimize(found);
  }
  HC_Reset_System();
}
BENCHMARK(ContentsSearchOverHundredThousandItems)->Unit(benchmark::kMillisecond);

// A segment holding a shell of a million triangles and a marker. Moving the
// marker leaves the shell's cached box alone; moving one shell point
// rescans its points.
class BigSegment : public benchmark::Fixture {
 public:
  void SetUp(const benchmark::State&) override {
    HC_Reset_System();
    const TriangleGrid grid(1'000'000);
    HC_Open_Segment("/big");
    std::vector<float> points = grid.points;
    points.insert(points.end(), {0, 0, 0});  // one point no face uses, free to edit
    shell_ = HC_Insert_Shell(grid.point_count() + 1, points.data(), static_cast<int>(grid.faces.size()),
                             grid.faces.data());
    spare_ = grid.point_count();
    HC_Close_Segment();
  }
  void TearDown(const benchmark::State&) override { HC_Reset_System(); }

 protected:
  long long shell_ = -1;
  int spare_ = 0;
};

BENCHMARK_F(BigSegment, CuboidAfterInsertingAMarker)(benchmark::State& state) {
  float box[6];
  HC_Open_Segment("/big");
  for (auto _ : state) {
    const long long marker = HC_Insert_Marker(1, 2, 3);
    benchmark::DoNotOptimize(HC_Compute_Circumcuboid("/big", &box[0], &box[3]));
    state.PauseTiming();
    HC_Delete_By_Key(marker);
    state.ResumeTiming();
  }
  HC_Close_Segment();
}

BENCHMARK_F(BigSegment, CuboidAfterEditingAShellPoint)(benchmark::State& state) {
  float box[6];
  float point[3] = {0, 0, 0};
  for (auto _ : state) {
    point[2] += 1;
    HC_Edit_Shell_Points(shell_, spare_, 1, 1, point);
    benchmark::DoNotOptimize(HC_Compute_Circumcuboid("/big", &box[0], &box[3]));
  }
}

}  // namespace
