// Shells inserted from vectors, flat arrays and triangle strips, read back
// point by point or whole, with normals and texture parameters.
#include <gtest/gtest.h>

#include <vector>

#include "entity_test_fixture.h"
#include "primitive_test_support.h"
#include "sceneward/scene/entities/zdb_en_shell.h"

namespace {

// A unit square in z = 0 as two triangles.
const std::vector<ZGeoPoint> kSquare = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
const std::vector<int> kSquareFaces = {3, 0, 1, 2, 3, 0, 2, 3};

class ShellTest : public EntityTest {
 protected:
  ZDbEnShell square_ = scene_.InsertShell(kSquare, kSquareFaces);
};

TEST_F(ShellTest, PointsAndFacesComeBackAsInserted) {
  EXPECT_EQ(square_.GetVertexCount(), 4);
  std::vector<ZGeoPoint> points;
  std::vector<int> faces;
  square_.GetPointsAndFaces(points, faces);
  ASSERT_EQ(points.size(), kSquare.size());
  for (size_t i = 0; i < kSquare.size(); ++i) EXPECT_TRUE(SamePoint(points[i], kSquare[i])) << i;
  EXPECT_EQ(faces, kSquareFaces);
  EXPECT_TRUE(SamePoint(square_.GetPointAtIndex(2), kSquare[2]));
}

TEST_F(ShellTest, GetPointsReplacesALongerVector) {
  std::vector<ZGeoPoint> points(10, ZGeoPoint(9, 9, 9));
  square_.GetPoints(points);
  ASSERT_EQ(points.size(), 4u);
  EXPECT_TRUE(SamePoint(points[3], kSquare[3]));
}

TEST_F(ShellTest, FlatArrayAndTriangleStripFormsMakeTheSameShell) {
  const float flat[] = {0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0};
  const ZDbEnShell fromArray = scene_.InsertShell(flat, 4, kSquareFaces.data(), 8);
  const int strip[] = {4, 0, 1, 3, 2};
  const int faceOfTriangle[] = {0, 0};
  const ZDbEnShell fromStrip = scene_.InsertShellAsTriStrips(flat, 4, strip, 5, faceOfTriangle, 2);
  for (ZDbEnShell const& shell : {fromArray, fromStrip}) {
    std::vector<ZGeoPoint> points;
    shell.GetPoints(points);
    ASSERT_EQ(points.size(), 4u);
    EXPECT_TRUE(SamePoint(points[2], ZGeoPoint(1, 1, 0)));
  }
  std::vector<ZGeoPoint> points;
  std::vector<int> faces;
  fromArray.GetPointsAndFaces(points, faces);
  EXPECT_EQ(faces, kSquareFaces);
}

TEST_F(ShellTest, SetNormalsTakesWholeTriplesFromTheFirstPoint) {
  const ZGeoPoint computed = square_.GetNormalAtIndex(2);
  // Seven floats: two normals and a remainder that must not count.
  square_.SetNormals({1, 0, 0, 0, 1, 0, 0});
  EXPECT_TRUE(SamePoint(square_.GetNormalAtIndex(0), ZGeoPoint(1, 0, 0)));
  EXPECT_TRUE(SamePoint(square_.GetNormalAtIndex(1), ZGeoPoint(0, 1, 0)));
  EXPECT_TRUE(SamePoint(square_.GetNormalAtIndex(2), computed));
  EXPECT_NEAR(computed.Length(), 1.0f, 1e-5f);
}

TEST_F(ShellTest, TextureCoordinatesRoundTrip) {
  const std::vector<float> uv = {0, 0, 1, 0, 1, 1, 0, 1};
  square_.SetTextureCoords(uv, 2);
  std::vector<float> shown;
  int perVertex = 0;
  square_.GetTextureCoords(shown, perVertex);
  EXPECT_EQ(perVertex, 2);
  EXPECT_EQ(shown, uv);
}

TEST_F(ShellTest, ShellWithoutParametersGivesNoneAndSkipsTheRead) {
  std::vector<float> shown = {5, 5};
  int perVertex = 7;
  recorder_.ClearCalls();
  square_.GetTextureCoords(shown, perVertex);
  EXPECT_TRUE(shown.empty());
  EXPECT_EQ(perVertex, 0);
  EXPECT_EQ(recorder_.CountOf("HC_MShow_Vertex_Parameters"), 0);
}

TEST_F(ShellTest, InvalidHandleGivesEmptyResultsWithoutAnyCall) {
  const ZDbEnShell invalid;
  std::vector<ZGeoPoint> points(2);
  std::vector<int> faces(3);
  std::vector<float> coords(1);
  int perVertex = 5;
  recorder_.ClearCalls();
  EXPECT_EQ(invalid.GetVertexCount(), 0);
  invalid.GetPointsAndFaces(points, faces);
  invalid.GetTextureCoords(coords, perVertex);
  invalid.SetNormals({0, 0, 1});
  invalid.SetTextureCoords({0, 0}, 2);
  EXPECT_TRUE(SamePoint(invalid.GetPointAtIndex(0), ZGeoPoint()));
  EXPECT_TRUE(SamePoint(invalid.GetNormalAtIndex(0), ZGeoPoint()));
  EXPECT_EQ(recorder_.Calls(), Calls{});
  EXPECT_EQ(points.size(), 2u);
  EXPECT_EQ(faces.size(), 3u);
  EXPECT_EQ(perVertex, 5);
}

}  // namespace
