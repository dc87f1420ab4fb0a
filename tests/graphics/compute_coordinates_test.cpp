// Positions converted between object, world, viewpoint, window and pixel
// coordinates with the modelling matrices, cameras and windows of real
// segments, and the matrices that do the same for whole arrays.
#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

struct P {
  float x, y, z;
};

constexpr float kUntouched = -12345;
const char* const kSystems[] = {"object",       "world",        "viewpoint",    "projection",  "screen range",
                                "local window", "outer window", "local pixels", "outer pixels"};

void ExpectNear(P actual, P expected, float tolerance = 1e-4f) {
  EXPECT_NEAR(actual.x, expected.x, tolerance);
  EXPECT_NEAR(actual.y, expected.y, tolerance);
  EXPECT_NEAR(actual.z, expected.z, tolerance);
}

P Convert(const char* segment, const char* from, P in, const char* to) {
  P out{kUntouched, kUntouched, kUntouched};
  EXPECT_TRUE(HC_Compute_Coordinates(segment, from, &in, to, &out)) << from << " -> " << to;
  return out;
}

class Coordinates : public EngineTest {
 protected:
  // A scene segment inside the default display's window.
  static constexpr const char* kScene = "/driver/null/window0/scene";
  void SetUp() override {
    EngineTest::SetUp();
    HC_Create_Segment(kScene);
  }
  static void WithCamera(const char* projection) {
    HC_Open_Segment(kScene);
    const P position{0, 0, -5}, target{0, 0, 0}, up{0, 1, 0};
    HC_Set_Camera(&position, &target, &up, 2, 2, projection);
    HC_Close_Segment();
  }
};

TEST_F(Coordinates, ObjectToWorldAppliesTheNetModellingMatrixAndBack) {
  HC_Open_Segment("/moved");
  HC_Translate_Object(1, 2, 3);
  HC_Open_Segment("scaled");
  HC_Scale_Object(2, 2, 2);
  HC_Close_Segment();
  HC_Close_Segment();
  // The lower matrix acts first: scaled, then moved.
  ExpectNear(Convert("/moved/scaled", "object", {1, 1, 1}, "world"), {3, 4, 5});
  ExpectNear(Convert("/moved/scaled", "world", {3, 4, 5}, "object"), {1, 1, 1});
  // Words compare without case and with blanks normalised; "camera" is the
  // older name of world coordinates.
  ExpectNear(Convert("/moved/scaled", "  OBJECT ", {1, 1, 1}, "Camera"), {3, 4, 5});
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Coordinates, ViewpointHasTheCameraAtItsOriginLookingAlongZ) {
  // The default camera stands at (0, 0, -5) looking at the origin, up +Y.
  ExpectNear(Convert("/", "world", {0, 0, 0}, "viewpoint"), {0, 0, 5});
  ExpectNear(Convert("/", "world", {1, 2, 0}, "viewpoint"), {1, 2, 5});
  HC_Open_Segment("/side");
  HC_Set_Camera_Position(10, 0, 0);
  HC_Close_Segment();
  // Looking along -X with up +Y, the world's +Z is on the camera's right.
  ExpectNear(Convert("/side", "world", {0, 0, 1}, "viewpoint"), {1, 0, 10});
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Coordinates, TheFieldFitsTheWindowWithoutDistortion) {
  // The 2 x 2 field in a 1024 x 768 window: the height limits it.
  ExpectNear(Convert(kScene, "world", {0, 0, 0}, "local pixels"), {512, 384, 0});
  ExpectNear(Convert(kScene, "world", {0, 1, 0}, "local pixels"), {512, 0, 0});
  const P corner = Convert(kScene, "world", {1, -1, 0}, "local pixels");
  EXPECT_NEAR(corner.x - 512, corner.y - 384, 1e-3);  // a square stays square
  EXPECT_LT(corner.x, 1024);                         // with margin at the sides
  ExpectNear(Convert(kScene, "world", {0, 1, 0}, "local window"), {0, 1, 0});

  WithCamera("stretched");
  ExpectNear(Convert(kScene, "world", {1, -1, 0}, "local pixels"), {1024, 768, 0}, 1e-3f);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Coordinates, PerspectiveShrinksWhatLiesBeyondTheTarget) {
  WithCamera("perspective");
  const P on_target = Convert(kScene, "world", {1, 1, 0}, "local window");
  const P beyond = Convert(kScene, "world", {1, 1, 5}, "local window");
  const P nearer = Convert(kScene, "world", {1, 1, -2.5f}, "local window");
  WithCamera("orthographic");
  ExpectNear(Convert(kScene, "world", {1, 1, 0}, "local window"), on_target);
  // Twice as far from the camera: half the size, and deeper.
  EXPECT_NEAR(beyond.x, on_target.x / 2, 1e-5);
  EXPECT_NEAR(beyond.y, on_target.y / 2, 1e-5);
  EXPECT_GT(beyond.z, 0);
  EXPECT_NEAR(nearer.x, on_target.x * 2, 1e-5);
  EXPECT_LT(nearer.z, 0);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Coordinates, InnerWindowsNestInTheOuterOne) {
  HC_Open_Segment(kScene);
  HC_Open_Segment("quarter");
  HC_Set_Window(0, 1, 0, 1);  // the upper right quarter
  HC_Open_Segment("inner");
  HC_Set_Window(-1, 0, -1, 0);  // the lower left quarter of that
  HC_Close_Segment();
  HC_Close_Segment();
  HC_Close_Segment();
  const std::string quarter = "/driver/null/window0/scene/quarter";
  const std::string inner = "/driver/null/window0/scene/quarter/inner";
  ExpectNear(Convert(quarter.c_str(), "local pixels", {0, 0, 0}, "outer pixels"), {512, 0, 0});
  ExpectNear(Convert(quarter.c_str(), "local window", {0, 0, 0}, "outer window"), {0.5f, 0.5f, 0});
  ExpectNear(Convert(quarter.c_str(), "local pixels", {512, 384, 0}, "outer pixels"), {1024, 384, 0});
  ExpectNear(Convert(inner.c_str(), "local window", {1, 1, 0}, "outer window"), {0.5f, 0.5f, 0});
  ExpectNear(Convert(inner.c_str(), "local pixels", {0, 0, 0}, "outer pixels"), {512, 192, 0});
  // The camera's field fits the inner window, a quarter the size each way.
  ExpectNear(Convert(inner.c_str(), "world", {0, 1, 0}, "local pixels"), {128, 0, 0}, 1e-3f);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Coordinates, ScreenRangeSpansItsRectangleOfTheLocalWindow) {
  ExpectNear(Convert(kScene, "local window", {0.5f, 0.5f, 0}, "screen range"), {0.5f, 0.5f, 0});
  HC_Open_Segment(kScene);
  HC_Set_Rendering_Options("screen range = (-0.5, 0.5, 0, 1)");
  HC_Close_Segment();
  ExpectNear(Convert(kScene, "local window", {0.25f, 0.5f, 0}, "screen range"), {0.5f, 0, 0});
  ExpectNear(Convert(kScene, "screen range", {-1, 1, 0}, "local window"), {-0.5f, 1, 0});
  EXPECT_TRUE(TakeReports().empty());
}

// A scene with every stage at work: a turned and scaled object, a
// perspective camera off the axes, a window inside the display and a screen
// range.
class BusyScene : public Coordinates {
 protected:
  void SetUp() override {
    Coordinates::SetUp();
    HC_Open_Segment(kScene);
    const P position{3, 4, -6}, target{0.5f, 0, 1}, up{0, 1, 0.2f};
    HC_Set_Camera(&position, &target, &up, 3, 2, "perspective");
    HC_Open_Segment("part");
    HC_Set_Window(-0.8, 0.6, -0.5, 0.9);
    HC_Set_Rendering_Options("screen range = (-0.9, 0.8, -0.7, 0.6)");
    HC_Rotate_Object(20, 30, 40);
    HC_Scale_Object(1.5, 0.5, 2);
    HC_Translate_Object(0.2, -0.3, 0.4);
    HC_Close_Segment();
    HC_Close_Segment();
    segment_ = "/driver/null/window0/scene/part";
  }
  std::string segment_;
};

TEST_F(BusyScene, EveryConversionComesBackWhereItStarted) {
  const P start{0.3f, -0.4f, 0.7f};
  for (const char* from : kSystems) {
    const P in = Convert(segment_.c_str(), "object", start, from);
    for (const char* to : kSystems) {
      const P there = Convert(segment_.c_str(), from, in, to);
      const P back = Convert(segment_.c_str(), to, there, from);
      const float scale = std::max({1.0f, std::abs(in.x), std::abs(in.y), std::abs(in.z)});
      ExpectNear(back, in, 2e-4f * scale);
    }
  }
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(BusyScene, TransformMatricesConvertArraysAsPositionsConvertOneByOne) {
  const std::vector<P> points = {{0.3f, -0.4f, 0.7f}, {-1, 2, 0.5f}, {0, 0, 0}, {2, 1, -1}};
  for (const char* from : kSystems) {
    std::vector<P> in;
    for (const P& p : points) in.push_back(Convert(segment_.c_str(), "object", p, from));
    for (const char* to : kSystems) {
      std::array<float, 16> matrix{};
      ASSERT_TRUE(HC_Compute_Transform(segment_.c_str(), from, to, matrix.data())) << from << " -> " << to;
      std::vector<P> out(in.size());
      HC_Compute_Transformed_Points(static_cast<int>(in.size()), in.data(), matrix.data(), out.data());
      for (size_t i = 0; i < in.size(); ++i) {
        const P expected = Convert(segment_.c_str(), from, in[i], to);
        const float scale = std::max({1.0f, std::abs(expected.x), std::abs(expected.y), std::abs(expected.z)});
        ExpectNear(out[i], expected, 2e-4f * scale);
      }
    }
  }
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Coordinates, ByPathReadsTheKeysOrTheOpenSegment) {
  HC_Open_Segment("/moved");
  HC_Translate_Object(5, 0, 0);
  const long long child = HC_Open_Segment("child");
  HC_Translate_Object(0, 1, 0);
  const P in{0, 0, 0};
  P open{kUntouched, 0, 0};
  EXPECT_TRUE(HC_Compute_Coordinates_By_Path(0, nullptr, "object", &in, "world", &open));
  ExpectNear(open, {5, 1, 0});
  HC_Close_Segment();
  HC_Close_Segment();
  P keyed{kUntouched, 0, 0};
  EXPECT_TRUE(HC_Compute_Coordinates_By_Path(1, &child, "object", &in, "world", &keyed));
  ExpectNear(keyed, {5, 1, 0});
  const long long bad = 12345;
  P untouched{kUntouched, kUntouched, kUntouched};
  EXPECT_FALSE(HC_Compute_Coordinates_By_Path(1, &bad, "object", &in, "world", &untouched));
  EXPECT_FALSE(HC_Compute_Coordinates_By_Path(-1, &child, "object", &in, "world", &untouched));
  EXPECT_EQ(untouched.x, kUntouched);
  EXPECT_EQ(TakeReports().size(), 2u);
}

TEST_F(Coordinates, FailuresReportAndLeaveTheOutputAlone) {
  HC_Open_Segment("/flat");
  HC_Scale_Object(1, 1, 0);
  HC_Close_Segment();
  const P in{1, 2, 3};
  const P nan{std::numeric_limits<float>::quiet_NaN(), 0, 0};
  struct Case {
    const char* segment;
    const char* from;
    const P* position;
    const char* to;
    int category;
  };
  const Case cases[] = {
      {"/flat", "object", &in, "galaxy", 23},            // unknown word
      {"/flat", "objects", &in, "world", 23},            // near miss
      {"/flat", "world", &in, "local pixels", 23},       // no driver above
      {"/flat", "world", &in, "object", 25},             // a flat matrix has no way back
      {"/nowhere", "object", &in, "world", 22},          // no such segment
      {nullptr, "object", &in, "world", 24},             // null arguments
      {"/flat", nullptr, &in, "world", 24},
      {"/flat", "object", nullptr, "world", 24},
      {"/flat", "object", &nan, "world", 24},            // not a finite position
  };
  for (const Case& c : cases) {
    P out{kUntouched, kUntouched, kUntouched};
    EXPECT_FALSE(HC_Compute_Coordinates(c.segment, c.from, c.position, c.to, &out));
    EXPECT_EQ(out.x, kUntouched);
    const auto reports = TakeReports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].category, c.category) << reports[0].message;
    EXPECT_EQ(reports[0].routine, "HC_Compute_Coordinates");
  }
  std::array<float, 16> matrix{};
  matrix.fill(kUntouched);
  EXPECT_FALSE(HC_Compute_Transform("/flat", "world", "outer pixels", matrix.data()));
  EXPECT_EQ(matrix[0], kUntouched);
  EXPECT_EQ(TakeReports().size(), 1u);
  // Into object coordinates of a flat segment fails; out of them does not.
  EXPECT_TRUE(HC_Compute_Transform("/flat", "object", "world", matrix.data()));
  EXPECT_EQ(matrix[10], 0);
}

}  // namespace
