// Modelling and texture matrices built by appending, their net products, and
// the camera's setters and motions.
#include <array>
#include <cmath>
#include <string>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

using Matrix = std::array<float, 16>;

struct Point {
  float x, y, z;
};

Point Apply(const Matrix& m, Point p) {
  return {p.x * m[0] + p.y * m[4] + p.z * m[8] + m[12], p.x * m[1] + p.y * m[5] + p.z * m[9] + m[13],
          p.x * m[2] + p.y * m[6] + p.z * m[10] + m[14]};
}

void ExpectNear(Point actual, Point expected) {
  EXPECT_NEAR(actual.x, expected.x, 1e-5f);
  EXPECT_NEAR(actual.y, expected.y, 1e-5f);
  EXPECT_NEAR(actual.z, expected.z, 1e-5f);
}

Matrix Local(void (*show)(float*)) {
  Matrix m{};
  show(m.data());
  return m;
}

class Matrices : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    HC_Open_Segment("/moved");
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }
};

TEST_F(Matrices, AppendedChangesApplyAfterTheExistingOnes) {
  HC_Translate_Object(1, 0, 0);
  HC_Rotate_Object(0, 0, 90);
  // First moved to (2,0,0), then turned a quarter counter-clockwise about Z.
  ExpectNear(Apply(Local(HC_Show_Modelling_Matrix), {1, 0, 0}), {0, 2, 0});
  HC_UnSet_Modelling_Matrix();
  HC_Rotate_Object(0, 0, 90);
  HC_Translate_Object(1, 0, 0);
  ExpectNear(Apply(Local(HC_Show_Modelling_Matrix), {1, 0, 0}), {1, 1, 0});
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Matrices, RotationsFollowTheAxisConventions) {
  HC_Rotate_Object(90, 0, 0);
  ExpectNear(Apply(Local(HC_Show_Modelling_Matrix), {0, 1, 0}), {0, 0, 1});  // Y toward Z
  HC_UnSet_Modelling_Matrix();
  HC_Rotate_Object(0, 90, 0);
  ExpectNear(Apply(Local(HC_Show_Modelling_Matrix), {0, 0, 1}), {1, 0, 0});  // Z toward X
  HC_UnSet_Modelling_Matrix();
  HC_Rotate_Object_Offaxis(0, 0, 5, 90);  // the axis need not be unit length
  ExpectNear(Apply(Local(HC_Show_Modelling_Matrix), {1, 0, 0}), {0, 1, 0});
  HC_Rotate_Object_Offaxis(0, 0, 0, 90);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(Matrices, ScaleAndTranslateTextureMatrixLikeTheModellingOne) {
  HC_Scale_Texture(2, 3, 1);
  HC_Translate_Texture(0.5, 0, 0);
  ExpectNear(Apply(Local(HC_Show_Texture_Matrix), {1, 1, 0}), {2.5f, 3, 0});
  const Matrix given = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
  HC_Append_Texture_Matrix(given.data());
  ExpectNear(Apply(Local(HC_Show_Texture_Matrix), {1, 1, 0}), {2.5f, 3, 0});
  const Matrix perspective = {1, 0, 0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
  HC_Append_Texture_Matrix(perspective.data());
  EXPECT_EQ(TakeReports().size(), 1u);
  HC_UnSet_Texture_Matrix();
  Matrix untouched{};
  untouched.fill(7);
  HC_Show_Texture_Matrix(untouched.data());
  EXPECT_EQ(untouched[0], 7.0f);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(Matrices, NetMatricesComposeFromTheLeafUp) {
  HC_Translate_Object(10, 0, 0);
  HC_Open_Segment("child");
  HC_Scale_Object(2, 2, 2);
  Matrix net{};
  EXPECT_TRUE(HC_PShow_Net_Modelling_Matrix(0, nullptr, net.data()));
  // Scaled in the child first, then moved by the owner.
  ExpectNear(Apply(net, {1, 0, 0}), {12, 0, 0});
  const long long child = HC_Open_Segment("grandchild");
  HC_Close_Segment();
  EXPECT_FALSE(HC_PShow_Net_Texture_Matrix(1, &child, net.data()));
  ExpectNear(Apply(net, {1, 2, 3}), {1, 2, 3});
  const long long cut[] = {child, -1};
  EXPECT_FALSE(HC_PShow_Net_Modelling_Matrix(2, cut, net.data()));
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

struct CameraView {
  Point position, target, up;
  float width, height;
  std::string projection;
};

CameraView ShownCamera() {
  CameraView view{};
  char projection[64] = "";
  HC_Show_Camera(&view.position, &view.target, &view.up, &view.width, &view.height, projection);
  view.projection = projection;
  return view;
}

class Cameras : public Matrices {};

TEST_F(Cameras, SingleSettersStartFromTheDefaultCamera) {
  HC_Set_Camera_Projection("Perspective");
  const CameraView view = ShownCamera();
  ExpectNear(view.position, {0, 0, -5});
  ExpectNear(view.up, {0, 1, 0});
  EXPECT_EQ(view.width, 2.0f);
  EXPECT_EQ(view.projection, "perspective");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Cameras, TheFieldKeepsItsAngleWhenTheCameraMoves) {
  HC_Set_Camera_Position(0, 0, -10);
  float width = 0, height = 0;
  HC_Show_Camera_Field(&width, &height);
  EXPECT_FLOAT_EQ(width, 4);
  EXPECT_FLOAT_EQ(height, 4);
}

TEST_F(Cameras, UpVectorsAreMadePerpendicularAndBadCamerasRefused) {
  const Point position{0, 0, -5}, target{0, 0, 0}, slanted{0, 1, 1}, along{0, 0, 2};
  HC_Set_Camera(&position, &target, &slanted, 2, 2, "orthographic");
  ExpectNear(ShownCamera().up, {0, 1, 0});
  HC_Set_Camera(&position, &target, &along, 2, 2, "orthographic");
  HC_Set_Camera(&position, &position, &slanted, 2, 2, "orthographic");
  HC_Set_Camera(&position, &target, &slanted, 2, 2, "fisheye");
  HC_Set_Camera_Field(0, 1);
  EXPECT_EQ(TakeReports().size(), 4u);
  EXPECT_EQ(ShownCamera().projection, "orthographic");
}

TEST_F(Cameras, MotionsMoveTheCameraAsSeenFromIt) {
  HC_Dolly_Camera(1, 0, 0);  // to the camera's right: +X in the default view
  ExpectNear(ShownCamera().position, {1, 0, -5});
  ExpectNear(ShownCamera().target, {1, 0, 0});
  HC_UnSet_Camera();

  HC_Orbit_Camera(90, 0);  // walks right round the target
  ExpectNear(ShownCamera().position, {5, 0, 0});
  HC_UnSet_Camera();

  HC_Orbit_Camera(0, 90);  // up and over: now above, looking down
  const CameraView above = ShownCamera();
  ExpectNear(above.position, {0, 5, 0});
  ExpectNear(above.up, {0, 0, 1});
  HC_UnSet_Camera();

  HC_Roll_Camera(90);
  ExpectNear(ShownCamera().up, {-1, 0, 0});
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Cameras, ByVolumeAndNetCameras) {
  HC_Set_Camera_By_Volume("stretched", 0, 4, -1, 1);
  char projection[64] = "";
  float xmin = 0, xmax = 0, ymin = 0, ymax = 0;
  HC_Show_Camera_By_Volume(projection, &xmin, &xmax, &ymin, &ymax);
  EXPECT_EQ(std::string(projection), "stretched");
  EXPECT_FLOAT_EQ(xmin, 0);
  EXPECT_FLOAT_EQ(xmax, 4);
  const long long child = HC_Create_Segment("child");
  Point position{};
  EXPECT_EQ(HC_PShow_Net_Camera_Position(1, &child, &position.x, &position.y, &position.z), 1);
  ExpectNear(position, {2, 0, -10});
  const long long cut[] = {child, -1};
  EXPECT_EQ(HC_PShow_Net_Camera_Position(2, cut, &position.x, &position.y, &position.z), 0);
  ExpectNear(position, {0, 0, -5});
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Cameras, NearLimitAnswersWithoutComplaint) {
  float limit = -1;
  EXPECT_FALSE(HC_Show_Camera_Near_Limit(&limit));
  EXPECT_EQ(limit, 0.0f);
  HC_Set_Camera_Near_Limit(0.25);
  EXPECT_TRUE(HC_Show_Camera_Near_Limit(&limit));
  EXPECT_EQ(limit, 0.25f);
  EXPECT_TRUE(TakeReports().empty());
  float x = 9;
  HC_UnSet_Camera();
  HC_Show_Camera_Position(&x, nullptr, nullptr);
  EXPECT_EQ(x, 9.0f);
  EXPECT_EQ(TakeReports().size(), 1u);
}

}  // namespace
