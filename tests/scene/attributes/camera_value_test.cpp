// ZDbCamera as a value: which cameras are valid, and the view and projection
// matrices checked by where they carry known points.
#include <gtest/gtest.h>

#include "sceneward/scene/attributes/zdb_camera.h"
#include "support/recording_host_test.h"

namespace {

void ExpectNear(ZGeoPoint const& expected, ZGeoPoint const& actual) {
  EXPECT_NEAR(expected.x, actual.x, 1e-5f);
  EXPECT_NEAR(expected.y, actual.y, 1e-5f);
  EXPECT_NEAR(expected.z, actual.z, 1e-5f);
}

// p * M without the homogeneous divide, so that a projection's fourth
// column can be seen.
float RowTimesColumn(ZGeoPoint const& p, ZGeoMatrix const& m, int column) {
  return p.x * m.GetAt(0, column) + p.y * m.GetAt(1, column) + p.z * m.GetAt(2, column) +
         m.GetAt(3, column);
}

ZDbCamera Looking(ZGeoPoint const& position, ZGeoPoint const& target, ZGeoPoint const& up,
                  char const* projection) {
  return ZDbCamera(position, target, up, 4, 3, ZString(projection));
}

TEST(ZDbCameraValidity, DefaultCameraIsValid) {
  const ZDbCamera camera;
  EXPECT_TRUE(camera.IsValid());
  EXPECT_TRUE(camera.position.Equals(ZGeoPoint(0, 0, -1), 0));
  EXPECT_TRUE(camera.upVector.Equals(ZGeoPoint(0, 1, 0), 0));
  EXPECT_TRUE(camera.projection == "orthographic");
}

TEST(ZDbCameraValidity, FieldSidesDownToOneMillionth) {
  ZDbCamera camera;
  camera.fieldWidth = 0;
  EXPECT_FALSE(camera.IsValid());
  camera.fieldWidth = 1;
  camera.fieldHeight = 9.9e-7f;
  EXPECT_FALSE(camera.IsValid());
  camera.fieldHeight = 1e-6f;
  EXPECT_TRUE(camera.IsValid());
  camera.fieldHeight = -1;
  EXPECT_FALSE(camera.IsValid());
}

TEST(ZDbCameraValidity, DegeneratePlacementsAndUnknownProjections) {
  ZDbCamera camera;
  camera.position = camera.target;
  EXPECT_FALSE(camera.IsValid());
  camera = ZDbCamera();
  camera.upVector = ZGeoPoint(0, 0, 0);
  EXPECT_FALSE(camera.IsValid());
  camera.upVector = ZGeoPoint(0, 0.00005f, 0);  // within the zero tolerance
  EXPECT_FALSE(camera.IsValid());
  camera = ZDbCamera();
  camera.projection = "PERSPECTIVE";
  EXPECT_TRUE(camera.IsValid());
  camera.projection = "stretched";
  EXPECT_FALSE(camera.IsValid());
  camera.projection = "";
  EXPECT_FALSE(camera.IsValid());
}

class ZDbCameraMatrices : public RecordingHostTest {};

TEST_F(ZDbCameraMatrices, ViewMatrixMovesTheTargetToTheOriginAndTheEyeOntoPlusZ) {
  ZDbCamera camera =
      Looking(ZGeoPoint(1, 2, 8), ZGeoPoint(1, 2, 3), ZGeoPoint(0, 2, 0), "orthographic");
  const ZGeoMatrix view = camera.GetPositioningMatrix();
  ExpectNear(ZGeoPoint(0, 0, 0), view.TransformPoint(ZGeoPoint(1, 2, 3)));
  ExpectNear(ZGeoPoint(0, 0, 5), view.TransformPoint(ZGeoPoint(1, 2, 8)));
  ExpectNear(ZGeoPoint(0, 1, 0), view.TransformPoint(ZGeoPoint(1, 3, 3)));
  // Right is up x line of sight: +X for an eye on +Z with +Y up.
  ExpectNear(ZGeoPoint(1, 0, 0), view.TransformPoint(ZGeoPoint(2, 2, 3)));
  // The camera's own up vector has been normalised.
  EXPECT_TRUE(camera.upVector.Equals(ZGeoPoint(0, 1, 0), 0));
}

TEST_F(ZDbCameraMatrices, ViewMatrixOfACameraLookingDownTheXAxis) {
  ZDbCamera camera =
      Looking(ZGeoPoint(-10, 0, 0), ZGeoPoint(0, 0, 0), ZGeoPoint(0, 0, 1), "orthographic");
  const ZGeoMatrix view = camera.GetPositioningMatrix();
  ExpectNear(ZGeoPoint(0, 0, 10), view.TransformPoint(ZGeoPoint(-10, 0, 0)));
  ExpectNear(ZGeoPoint(0, 1, 0), view.TransformPoint(ZGeoPoint(0, 0, 1)));
  ExpectNear(ZGeoPoint(1, 0, 0), view.TransformPoint(ZGeoPoint(0, -1, 0)));
}

TEST_F(ZDbCameraMatrices, TiltedUpVectorIsKeptAsItStands) {
  ZDbCamera camera =
      Looking(ZGeoPoint(0, 0, 5), ZGeoPoint(0, 0, 0), ZGeoPoint(0, 1, 1), "orthographic");
  const ZGeoMatrix view = camera.GetPositioningMatrix();
  const float half = camera.upVector.y;
  EXPECT_NEAR(half, 0.70710678f, 1e-6f);
  EXPECT_NEAR(camera.upVector.z, half, 1e-6f);
  // Not made perpendicular to the line of sight: a point straight towards
  // the eye also rises in the view.
  ExpectNear(ZGeoPoint(0, half, 1), view.TransformPoint(ZGeoPoint(0, 0, 1)));
}

TEST_F(ZDbCameraMatrices, PerspectiveProjectionCarriesTheDistanceIntoTheFourthColumn) {
  ZDbCamera perspective =
      Looking(ZGeoPoint(1, 2, 8), ZGeoPoint(1, 2, 3), ZGeoPoint(0, 3, 0), "PERSPECTIVE");
  const ZGeoMatrix projected = perspective.GetProjectionMatrix();
  EXPECT_TRUE(perspective.upVector.Equals(ZGeoPoint(0, 1, 0), 0));
  // A point one unit right of, one above and one towards the eye from the
  // target: scaled by the field, the depth by the distance 5, and the
  // fourth coordinate grows with the depth.
  const ZGeoPoint p(2, 3, 4);
  EXPECT_NEAR(RowTimesColumn(p, projected, 0), 4, 1e-5f);
  EXPECT_NEAR(RowTimesColumn(p, projected, 1), 3, 1e-5f);
  EXPECT_NEAR(RowTimesColumn(p, projected, 2), 5, 1e-5f);
  EXPECT_NEAR(RowTimesColumn(p, projected, 3), 6, 1e-5f);

  for (char const* text : {"Orthographic", "stretched"}) {
    ZDbCamera flat = Looking(ZGeoPoint(1, 2, 8), ZGeoPoint(1, 2, 3), ZGeoPoint(0, 1, 0), text);
    const ZGeoMatrix m = flat.GetProjectionMatrix();
    EXPECT_EQ(m.GetAt(2, 3), 0.0f) << text;
    EXPECT_NEAR(RowTimesColumn(p, m, 3), 1, 1e-6f) << text;
  }
}

}  // namespace
