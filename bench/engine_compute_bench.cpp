// The engine's computations through its C interface: a million positions
// from object coordinates to pixels, a polyline from a long NURBS curve, and
// the optimisation of a million-triangle soup.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "hc/hc.h"

namespace {

constexpr int kMillion = 1'000'000;

// A segment with every viewing stage at work: a modelling matrix, a
// perspective camera and a window inside the default display.
void MakeViewedSegment() {
  HC_Reset_System();
  HC_Open_Segment("/driver/null/window0/bench");
  const float position[] = {3, 4, -6}, target[] = {0, 0, 0}, up[] = {0, 1, 0};
  HC_Set_Camera(position, target, up, 4, 3, "perspective");
  HC_Set_Window(-0.5, 0.9, -0.8, 0.7);
  HC_Rotate_Object(10, 20, 30);
  HC_Scale_Object(2, 2, 2);
  HC_Close_Segment();
}

std::vector<float> Positions() {
  std::vector<float> points(3 * static_cast<size_t>(kMillion));
  for (size_t i = 0; i < points.size(); ++i) points[i] = static_cast<float>(i % 997) * 0.002f - 1;
  return points;
}

// The published interface converts one position a call.
void BM_MillionPositionsObjectToPixelsOneByOne(benchmark::State& state) {
  MakeViewedSegment();
  const std::vector<float> points = Positions();
  std::vector<float> out(points.size());
  for (auto _ : state) {
    for (size_t i = 0; i < points.size(); i += 3) {
      HC_Compute_Coordinates("/driver/null/window0/bench", "object", &points[i], "local pixels", &out[i]);
    }
    benchmark::DoNotOptimize(out.data());
  }
}
BENCHMARK(BM_MillionPositionsObjectToPixelsOneByOne)->Unit(benchmark::kMillisecond);

// The array form: one matrix, then one transform of the whole array.
void BM_MillionPositionsObjectToPixelsByMatrix(benchmark::State& state) {
  MakeViewedSegment();
  const std::vector<float> points = Positions();
  std::vector<float> out(points.size());
  float matrix[16];
  for (auto _ : state) {
    HC_Compute_Transform("/driver/null/window0/bench", "object", "local pixels", matrix);
    HC_Compute_Transformed_Points(kMillion, points.data(), matrix, out.data());
    benchmark::DoNotOptimize(out.data());
  }
}
BENCHMARK(BM_MillionPositionsObjectToPixelsByMatrix)->Unit(benchmark::kMillisecond);

// A cubic through 1,000 control points on a wave, at the default deviation.
void BM_PolylineFromThousandPointNurbs(benchmark::State& state) {
  HC_Reset_System();
  HC_Open_Segment("/bench/curve");
  std::vector<float> control;
  for (int i = 0; i < 1000; ++i) {
    control.insert(control.end(), {static_cast<float>(i), std::sin(i * 0.3f) * 5, std::cos(i * 0.1f)});
  }
  const long long curve = HC_Insert_NURBS_Curve(3, 1000, control.data(), nullptr, nullptr, 0, 1);
  HC_Close_Segment();
  int count = 0;
  HC_Compute_Pline_From_Crv_Size(curve, "", &count);
  std::vector<float> points(3 * static_cast<size_t>(count));
  for (auto _ : state) {
    benchmark::DoNotOptimize(HC_Compute_Polyline_From_Curve(curve, "", &count, points.data()));
  }
  state.counters["points"] = count;
}
BENCHMARK(BM_PolylineFromThousandPointNurbs)->Unit(benchmark::kMillisecond);

// 500 x 1,000 squares, two triangles each, every triangle with its own
// three corners: 3,000,000 points that merge into 501 x 1,001.
void BM_OptimizeMillionTriangleSoup(benchmark::State& state) {
  constexpr int kColumns = 1000, kRows = 500;
  std::vector<float> points;
  std::vector<int> faces;
  points.reserve(3 * 3 * static_cast<size_t>(kMillion));
  faces.reserve(4 * static_cast<size_t>(kMillion));
  const auto corner = [&](int column, int row) {
    points.insert(points.end(), {static_cast<float>(column), static_cast<float>(row), 0});
    return static_cast<int>(points.size() / 3) - 1;
  };
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kColumns; ++column) {
      faces.insert(faces.end(), {3, corner(column, row), corner(column + 1, row), corner(column + 1, row + 1)});
      faces.insert(faces.end(), {3, corner(column, row), corner(column + 1, row + 1), corner(column, row + 1)});
    }
  }
  const int pcount = static_cast<int>(points.size() / 3);
  std::vector<float> new_points(points.size());
  std::vector<int> new_faces(faces.size()), point_mapping(static_cast<size_t>(pcount)), face_mapping(kMillion);
  int new_pcount = 0, new_flist_length = 0;
  for (auto _ : state) {
    HC_Compute_Optimized_Shell(pcount, points.data(), nullptr, static_cast<int>(faces.size()), faces.data(), "",
                               &new_pcount, new_points.data(), &new_flist_length, new_faces.data(),
                               point_mapping.data(), face_mapping.data());
  }
  state.counters["points kept"] = new_pcount;
}
BENCHMARK(BM_OptimizeMillionTriangleSoup)->Unit(benchmark::kMillisecond);

}  // namespace
