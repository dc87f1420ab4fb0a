// The costly parts of the geometry kernel: circle recognition, the polyline
// shape tests on long lists, and point transforms, each of which crosses to
// the graphics engine through the current thread's manager.
#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "host/reference_host.h"
#include "platform/thread_id.h"
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/geometry/zgeo_matrix.h"
#include "sceneward/geometry/zgeo_polyline.h"

namespace {

// A closed tessellation of a circle of radius 10 tilted out of the XY plane:
// `count` points, the last repeating the first.
std::vector<ZGeoPoint> CirclePoints(int count) {
  std::vector<ZGeoPoint> points;
  for (int i = 0; i < count; ++i) {
    const double a = 2 * std::numbers::pi * i / (count - 1);
    points.emplace_back(float(3 + 10 * std::cos(a)), float(-2 + 10 * std::sin(a) * 0.6),
                        float(5 + 10 * std::sin(a) * 0.8));
  }
  return points;
}

// `count` scattered points of the plane z = 0.5 x + 0.25 y. Scattered, so
// that the first three span the plane well and every point gets tested (the
// first three points of a fine tessellation are nearly collinear, and their
// plane is too rough to hold the rest).
std::vector<ZGeoPoint> PlanarPoints(int count) {
  std::mt19937 rng(1);
  std::uniform_real_distribution<float> coordinate(-100, 100);
  std::vector<ZGeoPoint> points;
  for (int i = 0; i < count; ++i) {
    const float x = coordinate(rng), y = coordinate(rng);
    points.emplace_back(x, y, 0.5f * x + 0.25f * y);
  }
  return points;
}

ZGeoPolyline PolylineOf(std::vector<ZGeoPoint> const& points) {
  ZGeoPolyline polyline;
  polyline.SetNumberOfPoints(static_cast<int>(points.size()));
  for (std::size_t i = 0; i < points.size(); ++i) polyline.GetPointBuffer()[i] = points[i];
  return polyline;
}

void MakeFromPointVec(benchmark::State& state) {
  const std::vector<ZGeoPoint> points = CirclePoints(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    ZGeoCircle circle;
    benchmark::DoNotOptimize(circle.MakeFromPointVec(points, false, 0.01f, 0.01f));
  }
}

// Each iteration starts from a fresh polyline, since the answers are cached.
void PolylineIsPlanar(benchmark::State& state) {
  const ZGeoPolyline original = PolylineOf(PlanarPoints(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    ZGeoPolyline polyline = original;
    benchmark::DoNotOptimize(polyline.IsPlanar());
  }
}

void PolylineFitToCircle(benchmark::State& state) {
  const ZGeoPolyline original = PolylineOf(CirclePoints(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    ZGeoPolyline polyline = original;
    ZGeoCircle circle;
    benchmark::DoNotOptimize(polyline.FitToCircle(circle, 3, 0.01f, 0.01f, false));
  }
}

// A million transforms per iteration, through the registered manager.
void TransformPoint(benchmark::State& state) {
  host::ReferenceHost host;
  host.RegisterThread(platform::CurrentThreadId());
  host.LoadAddIn();
  ZGeoMatrix m(0.5f, ZGeoPoint(1, 2, 3));
  m = m.Translate(ZGeoPoint(4, 5, 6));
  for (auto _ : state) {
    ZGeoPoint p(1, 1, 1);
    for (int i = 0; i < 1000000; ++i) p = m.TransformPoint(p);
    benchmark::DoNotOptimize(p);
  }
}

BENCHMARK(MakeFromPointVec)->Arg(1000);
BENCHMARK(PolylineIsPlanar)->Arg(10000);
BENCHMARK(PolylineFitToCircle)->Arg(10000);
BENCHMARK(TransformPoint)->Unit(benchmark::kMillisecond);

}  // namespace
