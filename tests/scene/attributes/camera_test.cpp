// ZDbAtCamera: its guards and brackets through the recording manager, and
// cameras set, moved and read back through the engine.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "attribute_fixture.h"
#include "key_path_recorder.h"
#include "sceneward/scene/attributes/zdb_at_camera.h"
#include "support/engine_error_log.h"

namespace {

void ExpectNear(ZGeoPoint const& expected, ZGeoPoint const& actual) {
  EXPECT_NEAR(expected.x, actual.x, 1e-4f);
  EXPECT_NEAR(expected.y, actual.y, 1e-4f);
  EXPECT_NEAR(expected.z, actual.z, 1e-4f);
}

void ExpectSameCamera(ZDbCamera const& expected, ZDbCamera const& actual) {
  ExpectNear(expected.position, actual.position);
  ExpectNear(expected.target, actual.target);
  ExpectNear(expected.upVector, actual.upVector);
  EXPECT_FLOAT_EQ(expected.fieldWidth, actual.fieldWidth);
  EXPECT_FLOAT_EQ(expected.fieldHeight, actual.fieldHeight);
  EXPECT_EQ(std::string(expected.projection.GetAsMBCS()), actual.projection.GetAsMBCS());
}

// An eye on +Z, ten units from the origin, looking at it with +Y up.
ZDbCamera FrontCamera() {
  return ZDbCamera(ZGeoPoint(0, 0, 10), ZGeoPoint(0, 0, 0), ZGeoPoint(0, 1, 0), 4, 3,
                   ZString("perspective"));
}

class CameraTest : public AttributeTest {
 protected:
  CameraTest() : child_(MakeChild("child")) { recorder_.ClearCalls(); }

  ZDbEnSegment child_;
  EngineErrorLog log_;
};

TEST_F(CameraTest, InvalidSegmentMakesNoCallAndReadsDefaults) {
  const ZDbEnSegment none;
  ZDbAtCamera camera = none.Camera();
  camera.Set(FrontCamera());
  camera.SetByVolume("perspective", -1, 1, -1, 1);
  camera.SetPosition(ZGeoPoint(1, 2, 3));
  camera.SetTarget(ZGeoPoint(1, 2, 3));
  camera.SetUpVector(ZGeoPoint(1, 0, 0));
  camera.SetField(2, 2);
  camera.SetProjection("");
  camera.SetNearLimit(0.5f);
  camera.Dolly(ZGeoPoint(1, 0, 0));
  camera.Orbit(10, 10);
  camera.Roll(10);
  ExpectSameCamera(ZDbCamera(), camera.Get());
  ExpectSameCamera(ZDbCamera(), camera.GetNet({scene_}));
  for (ZGeoPoint const& p : {camera.GetPosition(), camera.GetTarget(), camera.GetUpVector(),
                             camera.GetNetPosition(), camera.GetNetTarget()}) {
    ExpectNear(ZGeoPoint(0, 0, 0), p);
  }
  float width = 7, height = 8;
  camera.GetNetField(width, height);
  EXPECT_EQ(width, 7);
  EXPECT_EQ(height, 8);
  EXPECT_TRUE(camera.GetNetProjection().IsEmpty());
  EXPECT_EQ(camera.GetNearLimit(), 0.0f);
  EXPECT_EQ(camera.GetNetNearLimit(), 0.0f);
  EXPECT_TRUE(recorder_.Calls().empty());
}

TEST_F(CameraTest, SettersAndMotionsAreOneBracketEach) {
  ZDbAtCamera camera = scene_.Camera();
  camera.Set(FrontCamera());
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_Set_Camera"));
  recorder_.ClearCalls();
  camera.Orbit(30, 0);
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_Orbit_Camera"));
  recorder_.ClearCalls();
  // An empty projection is passed on; judging it is the engine's business.
  camera.SetProjection("");
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_Set_Camera_Projection"));
  EXPECT_EQ(std::string(camera.Get().projection.GetAsMBCS()), "perspective");
}

TEST_F(CameraTest, LocalReadsTestExistenceFirstExceptTheNearLimit) {
  ZDbAtCamera bare = child_.Camera();
  ExpectSameCamera(ZDbCamera(), bare.Get());
  ExpectNear(ZGeoPoint(0, 0, 0), bare.GetUpVector());
  const Calls existence = Bracket("HC_Show_Existence");
  Calls twoTests = existence;
  twoTests.insert(twoTests.end(), existence.begin(), existence.end());
  EXPECT_EQ(GraphicsCalls(), twoTests);
  recorder_.ClearCalls();
  EXPECT_EQ(bare.GetNearLimit(), 0.0f);
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_Show_Camera_Near_Limit"));

  scene_.Camera().Set(FrontCamera());
  recorder_.ClearCalls();
  ExpectNear(ZGeoPoint(0, 0, 10), scene_.Camera().GetPosition());
  EXPECT_EQ(GraphicsCalls(), Guarded("HC_Show_Camera_Position"));
  recorder_.ClearCalls();
  // Net reads ask no existence test.
  ExpectNear(ZGeoPoint(0, 0, 10), bare.GetNetPosition());
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_PShow_Net_Camera_Position"));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(CameraTest, CameraSetOnASegmentIsReadBackAndInheritedBelow) {
  ZDbCamera set = FrontCamera();
  set.upVector = ZGeoPoint(0, 2, 0);
  scene_.Camera().Set(set);
  scene_.Camera().SetNearLimit(0.25f);
  set.upVector = ZGeoPoint(0, 1, 0);  // the engine keeps a unit up vector

  EXPECT_TRUE(scene_.Camera().IsAttributeSet(ZString()));
  ExpectSameCamera(set, scene_.Camera().Get());
  EXPECT_FLOAT_EQ(scene_.Camera().GetNearLimit(), 0.25f);

  ZDbAtCamera below = child_.Camera();
  EXPECT_FALSE(below.IsAttributeSet(ZString()));
  ExpectSameCamera(set, below.GetNet({}));
  ExpectNear(set.target, below.GetNetTarget());
  float width = 0, height = 0;
  below.GetNetField(width, height);
  EXPECT_FLOAT_EQ(width, 4);
  EXPECT_FLOAT_EQ(height, 3);
  EXPECT_EQ(std::string(below.GetNetProjection().GetAsMBCS()), "perspective");
  EXPECT_FLOAT_EQ(below.GetNetNearLimit(), 0.25f);
  EXPECT_EQ(below.GetNearLimit(), 0.0f);
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(CameraTest, OrbitSwingsThePositionRoundTheTarget) {
  ZDbAtCamera camera = scene_.Camera();
  camera.Set(FrontCamera());
  // In the engine's default left-handed world, an eye on +Z looking back at
  // the origin has -X on its right.
  camera.Orbit(90, 0);
  ZDbCamera moved = camera.Get();
  ExpectNear(ZGeoPoint(-10, 0, 0), moved.position);
  ExpectNear(ZGeoPoint(0, 0, 0), moved.target);
  ExpectNear(ZGeoPoint(0, 1, 0), moved.upVector);
  EXPECT_FLOAT_EQ(moved.fieldWidth, 4);

  camera.Orbit(-90, 90);
  moved = camera.Get();
  // Over the top: the eye sits on the old up axis at the same distance, and
  // its up vector now points where it used to look.
  ExpectNear(ZGeoPoint(0, 10, 0), moved.position);
  ExpectNear(ZGeoPoint(0, 0, -1), moved.upVector);
  EXPECT_TRUE(moved.IsValid());
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(CameraTest, DollyAndRollMoveInTheCamerasOwnFrame) {
  ZDbAtCamera camera = scene_.Camera();
  camera.Set(FrontCamera());
  camera.Dolly(ZGeoPoint(1, 0, 2));  // one unit right, two towards the target
  ExpectNear(ZGeoPoint(-1, 0, 8), camera.GetPosition());
  ExpectNear(ZGeoPoint(-1, 0, -2), camera.GetTarget());
  camera.Roll(90);
  // The up vector turns a quarter about the line of sight, onto the left.
  ExpectNear(ZGeoPoint(1, 0, 0), camera.GetUpVector());
  camera.SetPosition(ZGeoPoint(-1, 0, 20));
  ExpectNear(ZGeoPoint(-1, 0, 20), camera.GetPosition());
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(CameraTest, NetCameraAlongAPathCrossesAnInclude) {
  const ZDbEnSegment library = MakeChild("library");
  const ZDbEnSegment viewer = MakeChild("viewer");
  ::HC_Open_Segment_By_Key(viewer.GetID());
  ::HC_Include_Segment_By_Key(library.GetID());
  ::HC_Close_Segment();
  ZDbCamera seen = FrontCamera();
  seen.position = ZGeoPoint(5, 0, 5);
  viewer.Camera().Set(seen);
  scene_.Camera().Set(FrontCamera());
  recorder_.ClearCalls();

  ZDbAtCamera camera = library.Camera();
  ExpectSameCamera(seen, camera.GetNet({viewer}));
  EXPECT_EQ(GraphicsCalls(), Calls{"HC_PShow_Net_Camera"});  // no segment opened
  ExpectSameCamera(FrontCamera(), camera.GetNet({}));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(CameraTest, NetCameraWithAnEmptyPathAsksForTheOwnKeyAlone) {
  auto* paths = new KeyPathRecorder;
  entry_.SetManager(paths);  // replaces, and frees, the fixture's recorder
  child_.Camera().GetNet({});
  child_.Camera().GetNet({scene_});
  const std::vector<std::vector<long long>> expected = {{child_.GetID()},
                                                        {child_.GetID(), scene_.GetID()}};
  EXPECT_EQ(paths->paths_, expected);
}

}  // namespace
