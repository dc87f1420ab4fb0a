// Bounding volumes kept per segment and computed on request.
#include <array>
#include <cmath>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

using Box = std::array<float, 6>;

Box CuboidOf(const char* segment) {
  Box box{};
  EXPECT_TRUE(HC_Compute_Circumcuboid(segment, &box[0], &box[3]));
  return box;
}

using BoundingVolumes = EngineTest;

TEST_F(BoundingVolumes, CoverSubsegmentsThroughTheirMatricesAndIncludes) {
  HC_Create_Segment("/include library/far");
  HC_Open_Segment("/scene");
  HC_Insert_Line(0, 0, 0, 1, 1, 1);
  HC_Open_Segment("moved");
  const float shift[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 0, 0, 1};
  HC_Set_Modelling_Matrix(shift);
  HC_Insert_Marker(0, 0, 0);
  HC_Close_Segment();
  HC_Include_Segment("/include library/far");  // empty: adds nothing
  HC_Close_Segment();
  EXPECT_EQ(CuboidOf("/scene"), (Box{0, 0, 0, 10, 1, 1}));
  HC_Open_Segment("/include library/far");
  HC_Insert_Marker(0, -5, 0);
  HC_Close_Segment();
  EXPECT_EQ(CuboidOf("/scene"), (Box{0, -5, 0, 10, 1, 1}));  // the include changed below
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(BoundingVolumes, FollowEditsDeletesAndMoves) {
  HC_Open_Segment("/shapes");
  const float points[9] = {0, 0, 0, 2, 0, 0, 0, 2, 0};
  const int faces[4] = {3, 0, 1, 2};
  const long long shell = HC_Insert_Shell(3, points, 4, faces);
  const long long text = HC_Insert_Text(-3, 0, 0, "label");
  HC_Close_Segment();
  EXPECT_EQ(CuboidOf("/shapes"), (Box{-3, 0, 0, 2, 2, 0}));
  const float far[3] = {0, 0, 9};
  HC_Edit_Shell_Points(shell, -1, 0, 1, far);
  HC_Move_Text(text, 0, 0, 0);
  EXPECT_EQ(CuboidOf("/shapes"), (Box{0, 0, 0, 2, 2, 9}));
  HC_Delete_By_Key(shell);
  EXPECT_EQ(CuboidOf("/shapes"), (Box{0, 0, 0, 0, 0, 0}));
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(BoundingVolumes, CircularArcsAndSpheresCountTheirExtent) {
  HC_Open_Segment("/round");
  const float a[3] = {1, 0, 0}, b[3] = {0, 1, 0}, c[3] = {-1, 0, 0};
  HC_Insert_Circle(a, b, c);
  HC_Close_Segment();
  const Box box = CuboidOf("/round");
  EXPECT_NEAR(box[1], -1.0f, 1e-6);
  EXPECT_NEAR(box[4], 1.0f, 1e-6);
  float center[3], radius = 0;
  EXPECT_TRUE(HC_Compute_Circumsphere("/round", center, &radius));
  EXPECT_NEAR(radius, std::sqrt(2.0f), 1e-6);
}

TEST_F(BoundingVolumes, KeptVolumesOfSegmentsShellsAndProgramSpheres) {
  const long long segment = HC_Open_Segment("/kept");
  float center[3] = {}, radius = 0;
  EXPECT_FALSE(HC_Show_Bounding_Sphere(center, &radius));  // empty
  const float points[6] = {0, 0, 0, 0, 0, 4};
  const long long line = HC_Insert_Polyline(2, points);
  EXPECT_TRUE(HC_Show_Bounding_Sphere(center, &radius));
  EXPECT_EQ(radius, 2.0f);
  EXPECT_EQ(center[2], 2.0f);
  const float mine[3] = {5, 5, 5};
  HC_Set_Bounding_Sphere(mine, 1);
  float box[6];
  EXPECT_TRUE(HC_Show_Bounding_Cuboid(&box[0], &box[3]));
  EXPECT_EQ(box[0], 4.0f);
  HC_Insert_Marker(0, 0, 0);  // a change below drops the program's sphere
  EXPECT_TRUE(HC_Show_Bounding_Cuboid_By_Key(segment, &box[0], &box[3]));
  EXPECT_EQ(box[0], 0.0f);
  HC_Close_Segment();
  EXPECT_FALSE(HC_Show_Bounding_Cuboid_By_Key(line, &box[0], &box[3]));  // not kept for polylines
  EXPECT_TRUE(HC_Compute_Circumcuboid_By_Key(line, &box[0], &box[3]));
  EXPECT_TRUE(TakeReports().empty());
  EXPECT_FALSE(HC_Compute_Circumcuboid_By_Key(-99, &box[0], &box[3]));
  EXPECT_FALSE(HC_Filter_Circumcuboid("/kept", "sparkle", &box[0], &box[3]));
  EXPECT_EQ(TakeReports().size(), 2u);
}

}  // namespace
