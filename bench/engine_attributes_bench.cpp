// The engine's attribute system called directly through its C interface:
// option lists set and shown, a net colour read through a deep path with a
// style and an include, point transforms, and text measurement.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "hc/hc.h"

namespace {

// Twenty rendering options of every value kind, locks included.
constexpr char kTwentyOptions[] =
    "attribute lock=(color,visibility), ignore subsegment locks=selectability, hsra=z-buffer, lighting, "
    "no local viewer, stereo, stereo separation=2.5, face displacement=1, general displacement=0.5, "
    "vertex displacement=3, vertex decimation=0.75, force grayscale=off, perspective correction, "
    "local cutting planes, level of detail, transparency=(style=blended), technology=standard, "
    "lighting interpolation=phong, texture interpolation=on, tessellation=(cylinder=(24))";

void BM_SetAndShowTwentyOptions(benchmark::State& state) {
  HC_Reset_System();
  HC_Open_Segment("/bench/options");
  char shown[4096];
  for (auto _ : state) {
    HC_Set_Rendering_Options(kTwentyOptions);
    HC_Show_Rendering_Options(shown);
    benchmark::DoNotOptimize(shown);
  }
  HC_Close_Segment();
}
BENCHMARK(BM_SetAndShowTwentyOptions);

// Ten segments deep below an include of a library part; the colour comes
// from a style on the top segment.
void BM_NetColourTenLevelsDeep(benchmark::State& state) {
  HC_Reset_System();
  HC_Open_Segment("/bench/styles/painted");
  HC_Set_Color("faces=green");
  HC_Close_Segment();
  HC_Open_Segment("/bench/library");
  long long leaf = -1;
  for (int level = 0; level < 10; ++level) leaf = HC_Open_Segment("level");
  for (int level = 0; level <= 10; ++level) HC_Close_Segment();
  const long long top = HC_Open_Segment("/bench/top");
  HC_Style_Segment("/bench/styles/painted");
  const long long include = HC_Include_Segment("/bench/library");
  HC_Close_Segment();
  const long long path[] = {leaf, include, top};
  float rgb[3];
  char texture[64], options[64];
  for (auto _ : state) {
    benchmark::DoNotOptimize(HC_PShow_Net_Explicit_Color(3, path, "faces", "diffuse", rgb, texture, options));
  }
}
BENCHMARK(BM_NetColourTenLevelsDeep);

void BM_MillionPointTransforms(benchmark::State& state) {
  std::vector<float> points(3'000'000);
  for (size_t i = 0; i < points.size(); ++i) points[i] = static_cast<float>(i % 1000) * 0.01f;
  std::vector<float> out(points.size());
  const float matrix[16] = {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 2, 0, 5, 6, 7, 1};
  for (auto _ : state) {
    HC_Compute_Transformed_Points(1'000'000, points.data(), matrix, out.data());
    benchmark::DoNotOptimize(out.data());
  }
}
BENCHMARK(BM_MillionPointTransforms)->Unit(benchmark::kMillisecond);

void BM_TextExtentOfHundredCharacters(benchmark::State& state) {
  HC_Reset_System();
  HC_Open_Segment("/bench/label");
  HC_Set_Text_Font("name=sans serif, size=0.03 sru");
  const std::string text(100, 'x');
  float x, y;
  for (auto _ : state) benchmark::DoNotOptimize(HC_Compute_Text_Extent(".", text.c_str(), &x, &y));
  HC_Close_Segment();
}
BENCHMARK(BM_TextExtentOfHundredCharacters);

}  // namespace
