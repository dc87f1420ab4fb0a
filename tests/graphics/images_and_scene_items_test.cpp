// Images, grids, cutting planes, spheres and lights.
#include <cstdint>
#include <vector>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

struct P {
  float x, y, z;
  bool operator==(const P&) const = default;
};

using Images = EngineTest;
using SceneItems = EngineTest;

TEST_F(Images, NullDataStartsBlackAndFillsLineByLine) {
  const long long key = HC_Insert_Image(1, 2, 3, "rgba, name = 'My Tex', local", 2, 2, nullptr);
  const uint32_t rows[2][2] = {{0x11223344, 0x55667788}, {0x99aabbcc, 0xddeeff00}};
  HC_Edit_Image(key, 0, 1, 2, 1, rows[1]);
  std::vector<uint32_t> all(4, 7);
  char format[128];
  int width = 0, height = 0;
  HC_Show_Image(key, nullptr, nullptr, nullptr, format, &width, &height, all.data());
  EXPECT_STREQ(format, "rgba, name = 'My Tex', local");
  EXPECT_EQ(all, (std::vector<uint32_t>{0, 0, rows[1][0], rows[1][1]}));
  uint32_t one = 0;
  HC_Show_Partial_Image(key, 1, 1, 1, 1, &one);
  EXPECT_EQ(one, rows[1][1]);
  char name[64];
  HC_Show_Image_Name(key, name);
  EXPECT_STREQ(name, "My Tex");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Images, BadFormatsAndRectanglesAreRefused) {
  const uint8_t pixels[4] = {1, 2, 3, 4};
  EXPECT_EQ(HC_Insert_Image(0, 0, 0, "rgb, sparkles", 1, 1, pixels), -1);
  EXPECT_EQ(HC_Insert_Image(0, 0, 0, "rgb, rgba", 1, 1, pixels), -1);
  EXPECT_EQ(HC_Insert_Image(0, 0, 0, "grayscale", 0, 1, pixels), -1);
  const long long key = HC_Insert_Image(0, 0, 0, "grayscale", 2, 2, pixels);
  uint8_t out[4] = {9, 9, 9, 9};
  HC_Show_Partial_Image(key, 1, 1, 2, 1, out);
  EXPECT_EQ(out[0], 9);
  HC_Edit_Image_Options(key, "rgb");
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 5u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryOption);
  char name[8] = "x";
  HC_Show_Image_Name(key, name);
  EXPECT_STREQ(name, "");
}

TEST_F(Images, MoveAndEditOptions) {
  const long long key = HC_Insert_Image(0, 0, 0, "mapped 16", 1, 1, nullptr);
  HC_Move_Image(key, 4, 5, 6);
  HC_Edit_Image_Options(key, "mapped 16, name = checker");
  P at{};
  char format[64];
  HC_Show_Image_Size(key, &at.x, &at.y, &at.z, format, nullptr, nullptr);
  EXPECT_EQ(at, (P{4, 5, 6}));
  EXPECT_STREQ(format, "mapped 16, name = checker");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(SceneItems, GridCuttingPlaneAndSphereRoundTrip) {
  const P o{0, 0, 0}, r1{1, 0, 0}, r2{0, 1, 0};
  const long long grid = HC_Insert_Grid("Radial", &o, &r1, &r2, 0, 12);
  char type[32];
  P shown{};
  int c1 = -1, c2 = -1;
  HC_Show_Grid(grid, type, nullptr, &shown, nullptr, &c1, &c2);
  EXPECT_STREQ(type, "radial");
  EXPECT_EQ(shown, r1);
  EXPECT_EQ(c2, 12);

  const long long plane = HC_Insert_Cutting_Plane(0, 0, 1, -2);
  float d = 0;
  HC_Show_Cutting_Plane(plane, nullptr, nullptr, nullptr, &d);
  EXPECT_EQ(d, -2.0f);

  const long long sphere = HC_Insert_Sphere(&o, 3, nullptr, nullptr);
  float radius = 0;
  P axis{}, ortho{};
  HC_Show_Sphere(sphere, nullptr, &radius, &axis, &ortho);
  EXPECT_EQ(radius, 3.0f);
  EXPECT_EQ(axis, (P{0, 1, 0}));
  EXPECT_EQ(ortho, (P{1, 0, 0}));
  EXPECT_TRUE(TakeReports().empty());

  EXPECT_EQ(HC_Insert_Grid("hexagonal", &o, &r1, &r2, 1, 1), -1);
  EXPECT_EQ(HC_Insert_Cutting_Plane(0, 0, 0, 1), -1);
  EXPECT_EQ(HC_Insert_Sphere(&o, -1, nullptr, nullptr), -1);
  EXPECT_EQ(TakeReports().size(), 3u);
}

TEST_F(SceneItems, LightsMoveOnlyAsTheirKindAllows) {
  const P position{0, 5, 0}, target{0, 0, 0};
  const long long spot = HC_Insert_Spot_Light(&position, &target, "illumination cone = 30, concentration = 2");
  const long long local = HC_Insert_Local_Light(1, 1, 1);
  const long long distant = HC_Insert_Distant_Light(0, 0, -1);
  HC_Move_Light_Position(spot, 0, 6, 0);
  HC_Move_Light_Target(spot, 1, 0, 0);
  HC_Move_Light_Position(local, 2, 2, 2);
  HC_Move_Distant_Light(distant, 1, 0, 0);
  EXPECT_TRUE(TakeReports().empty());
  P p{}, t{};
  HC_Show_Spot_Light(spot, &p, &t, nullptr);
  EXPECT_EQ(p, (P{0, 6, 0}));
  EXPECT_EQ(t, (P{1, 0, 0}));
  HC_Move_Light_Target(local, 0, 0, 0);
  HC_Move_Distant_Light(spot, 1, 1, 1);
  EXPECT_EQ(HC_Insert_Spot_Light(&position, &target, "brightness = 11"), -1);
  EXPECT_EQ(TakeReports().size(), 3u);
}

}  // namespace
