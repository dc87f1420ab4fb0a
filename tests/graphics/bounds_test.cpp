// Bounding volumes kept per segment and computed on request.
#include <array>
#include <cmath>
#include <mutex>

#include "engine/engine.h"
#include "engine/update_scope.h"
#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

using Box = std::array<float, 6>;

// No program gave this key and the library issues only negative ones.
constexpr long long kNoSuchKey = 424242;

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
  EXPECT_FALSE(HC_Compute_Circumcuboid_By_Key(kNoSuchKey, &box[0], &box[3]));
  EXPECT_FALSE(HC_Filter_Circumcuboid("/kept", "sparkle", &box[0], &box[3]));
  EXPECT_EQ(TakeReports().size(), 2u);
}

using FilteredBounds = EngineTest;

// A scene whose invisible parts lie far out: a visible line near the
// origin, lines turned off at x = 100, an invisible subsegment at y = 100
// and an include of a segment at z = 100 from below an invisible one.
void BuildPartlyHiddenScene() {
  HC_Open_Segment("/include library/far part");
  HC_Insert_Marker(0, 0, 100);
  HC_Close_Segment();
  HC_Open_Segment("/scene");
  HC_Insert_Line(0, 0, 0, 1, 1, 1);
  HC_Open_Segment("lines off");
  HC_Set_Visibility("lines = off");
  HC_Insert_Line(100, 0, 0, 101, 0, 0);
  HC_Insert_Marker(2, 0, 0);  // markers are still on
  HC_Close_Segment();
  HC_Open_Segment("hidden");
  HC_Set_Visibility("everything = off");
  HC_Insert_Polyline(2, std::array<float, 6>{0, 100, 0, 0, 101, 0}.data());
  HC_Include_Segment("/include library/far part");
  HC_Close_Segment();
  HC_Close_Segment();
}

TEST_F(FilteredBounds, VisibilityLeavesOutWhatWouldNotBeDrawn) {
  BuildPartlyHiddenScene();
  Box box{};
  ASSERT_TRUE(HC_Filter_Circumcuboid("/scene", "visibility", &box[0], &box[3]));
  EXPECT_EQ(box, (Box{0, 0, 0, 2, 1, 1}));
  ASSERT_TRUE(HC_Filter_Circumcuboid("/scene", "", &box[0], &box[3]));  // visibility is the default
  EXPECT_EQ(box, (Box{0, 0, 0, 2, 1, 1}));
  ASSERT_TRUE(HC_Filter_Circumcuboid("/scene", "visibility, no visibility", &box[0], &box[3]));
  Box everything{};
  ASSERT_TRUE(HC_Compute_Circumcuboid("/scene", &everything[0], &everything[3]));
  EXPECT_EQ(box, everything);
  EXPECT_EQ(everything, (Box{0, 0, 0, 101, 101, 100}));
  // The included segment is visible where it stands, hidden where included.
  ASSERT_TRUE(HC_Filter_Circumcuboid("/include library/far part", "visibility", &box[0], &box[3]));
  EXPECT_EQ(box[5], 100.0f);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(FilteredBounds, KeysOfHiddenItemsAnswerNothing) {
  HC_Open_Segment("/dots");
  HC_Set_Visibility("markers = off");
  const long long hidden = HC_Insert_Marker(5, 5, 5);
  const long long shown = HC_Insert_Line(0, 0, 0, 1, 0, 0);
  HC_Close_Segment();
  Box box{};
  EXPECT_FALSE(HC_Filter_Circumcuboid_By_Key(hidden, "visibility", &box[0], &box[3]));
  EXPECT_TRUE(HC_Filter_Circumcuboid_By_Key(hidden, "no visibility", &box[0], &box[3]));
  EXPECT_EQ(box, (Box{5, 5, 5, 5, 5, 5}));
  EXPECT_TRUE(HC_Filter_Circumcuboid_By_Key(shown, "visibility", &box[0], &box[3]));
  EXPECT_TRUE(HC_Filter_Circumcuboid_By_Key(HC_Show_Owner_By_Key(shown, nullptr), "visibility", &box[0], &box[3]));
  EXPECT_EQ(box, (Box{0, 0, 0, 1, 0, 0}));
  EXPECT_TRUE(TakeReports().empty());
  EXPECT_FALSE(HC_Filter_Circumcuboid_By_Key(shown, "visibility = on", &box[0], &box[3]));
  EXPECT_FALSE(HC_Filter_Circumcuboid_By_Key(kNoSuchKey, "visibility", &box[0], &box[3]));
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 2u);
  EXPECT_EQ(reports[0].specific, 2301);
  EXPECT_EQ(reports[1].specific, 2001);
}

using KeptVolumes = EngineTest;

TEST_F(KeptVolumes, NoneAreShownWhileBoundingVolumesAreOff) {
  const long long segment = HC_Open_Segment("/kept");
  HC_Insert_Line(0, 0, 0, 2, 0, 0);
  HC_Close_Segment();
  HC_Define_System_Options("no bounding volumes");
  Box box{9, 9, 9, 9, 9, 9};
  float radius = 9;
  EXPECT_FALSE(HC_Show_Bounding_Cuboid_By_Key(segment, &box[0], &box[3]));
  EXPECT_FALSE(HC_Show_Bounding_Sphere_By_Key(segment, &box[0], &radius));
  EXPECT_EQ(box, (Box{9, 9, 9, 9, 9, 9}));  // untouched
  EXPECT_TRUE(TakeReports().empty());
  EXPECT_TRUE(HC_Compute_Circumcuboid_By_Key(segment, &box[0], &box[3]));  // computed anew: not kept
  HC_Define_System_Options("bounding volumes");
  EXPECT_TRUE(HC_Show_Bounding_Sphere_By_Key(segment, &box[0], &radius));
  EXPECT_EQ(radius, 1.0f);
}

TEST_F(KeptVolumes, ImmediateFormsAnswerAsThePlainOnesEvenInsideAnUpdate) {
  const long long segment = HC_Open_Segment("/kept");
  HC_Insert_Line(0, 0, 0, 0, 4, 0);
  HC_Close_Segment();
  const int any_rendition = 0;
  const auto* nr = reinterpret_cast<const HIC_Rendition*>(&any_rendition);
  Box plain{}, immediate{};
  float centre[3] = {}, radius = 0;
  ASSERT_TRUE(HC_Show_Bounding_Cuboid_By_Key(segment, &plain[0], &plain[3]));
  ASSERT_TRUE(HIC_Show_Bounding_Cuboid_By_Key(nr, segment, &immediate[0], &immediate[3]));
  EXPECT_EQ(plain, immediate);
  {
    // An update holds the lock alone while its callbacks run.
    graphics::Engine& engine = graphics::Engine::Instance();
    std::unique_lock lock(engine.mutex());
    graphics::UpdateScope update;
    EXPECT_TRUE(HIC_Show_Bounding_Sphere_By_Key(nr, segment, centre, &radius));
    EXPECT_FALSE(HIC_Show_Bounding_Sphere_By_Key(nr, kNoSuchKey, centre, &radius));
  }
  EXPECT_EQ(radius, 2.0f);
  EXPECT_EQ(centre[1], 2.0f);
  ASSERT_EQ(TakeReports().size(), 1u);  // the bad key
  EXPECT_FALSE(HIC_Show_Bounding_Cuboid_By_Key(nullptr, segment, &immediate[0], &immediate[3]));
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].specific, 2402);
  EXPECT_EQ(reports[0].routine, "HIC_Show_Bounding_Cuboid_By_Key");
}

}  // namespace
