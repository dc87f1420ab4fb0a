// Shells, triangle-strip shells and meshes, with the data set on many of
// their vertices and faces at once, and the frames that open their parts.
#include <vector>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;
using engine_test::TreeSnapshot;

struct P {
  float x, y, z;
  bool operator==(const P&) const = default;
};

// A unit square from two triangles, and a square face with a square hole.
const std::vector<P> kSquare{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
const std::vector<int> kTwoTriangles{3, 0, 1, 2, 3, 0, 2, 3};

class Surfaces : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    HC_Open_Segment("/surfaces");
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }
  long long TwoTriangles() { return HC_Insert_Shell(4, kSquare.data(), 8, kTwoTriangles.data()); }
};

TEST_F(Surfaces, ShellRoundTripWithNullOutputs) {
  const long long key = TwoTriangles();
  int pcount = 0, flength = 0;
  HC_Show_Shell_Size(key, &pcount, nullptr);
  EXPECT_EQ(pcount, 4);
  std::vector<P> points(4);
  std::vector<int> faces(8);
  HC_Show_Shell(key, &pcount, points.data(), &flength, faces.data());
  EXPECT_EQ(points, kSquare);
  EXPECT_EQ(faces, kTwoTriangles);
  P one{};
  HC_Show_Partial_Shell(key, 2, 1, &one, 0, 0, nullptr, nullptr);
  EXPECT_EQ(one, kSquare[2]);
  std::vector<int> second(4);
  HC_Show_Partial_Shell(key, 0, 0, nullptr, 1, 1, &flength, second.data());
  EXPECT_EQ(second, (std::vector<int>{3, 0, 2, 3}));
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Surfaces, HolesBelongToTheirFace) {
  std::vector<P> points = kSquare;
  for (const P& p : kSquare) points.push_back(P{0.25f + p.x / 2, 0.25f + p.y / 2, 0});
  const int faces[] = {4, 0, 1, 2, 3, -4, 7, 6, 5, 4};
  const long long key = HC_Insert_Shell(8, points.data(), 10, faces);
  int count = 0;
  HC_Show_Faces_Count(key, &count);
  EXPECT_EQ(count, 1);
  const int starts_with_hole[] = {-3, 0, 1, 2};
  const int out_of_range[] = {3, 0, 1, 9};
  EXPECT_EQ(HC_Insert_Shell(8, points.data(), 4, starts_with_hole), -1);
  EXPECT_EQ(HC_Insert_Shell(8, points.data(), 4, out_of_range), -1);
  EXPECT_EQ(TakeReports().size(), 2u);
}

TEST_F(Surfaces, TristripsAreKeptAndShownAsTriangles) {
  const int strip[] = {4, 0, 1, 3, 2};
  const int ids[] = {7, 7};
  const long long key = HC_Insert_Shell_By_Tristrips(4, kSquare.data(), 5, strip, 2, ids);
  int pcount = 0, tlength = 0, ilength = 0;
  HC_Show_Shell_By_Tristrips_Size(key, &pcount, &tlength, &ilength);
  EXPECT_EQ(tlength, 5);
  EXPECT_EQ(ilength, 2);
  int count = 0;
  HC_Show_Faces_Count(key, &count);
  EXPECT_EQ(count, 1);  // both triangles share one face identifier
  int flength = 0;
  std::vector<int> faces(8);
  HC_Show_Shell(key, nullptr, nullptr, &flength, faces.data());
  EXPECT_EQ(faces, (std::vector<int>{3, 0, 1, 3, 3, 3, 1, 2}));  // second triangle turned
  const long long each = HC_Insert_Shell_By_Tristrips(4, kSquare.data(), 5, strip, 0, nullptr);
  HC_Show_Faces_Count(each, &count);
  EXPECT_EQ(count, 2);
  EXPECT_EQ(HC_Insert_Shell_By_Tristrips(4, kSquare.data(), 5, strip, 1, ids), -1);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(Surfaces, EditShellPointsRenumbersFacesAndRefusesUsedPoints) {
  std::vector<P> points = kSquare;
  points.insert(points.begin(), P{9, 9, 9});  // unused point 0
  const int faces[] = {3, 1, 2, 3};
  const long long key = HC_Insert_Shell(5, points.data(), 4, faces);
  const std::string before = TreeSnapshot();
  HC_Edit_Shell_Points(key, 1, 1, 0, nullptr);
  EXPECT_EQ(TakeReports().size(), 1u);
  EXPECT_EQ(TreeSnapshot(), before);
  HC_Edit_Shell_Points(key, 0, 1, 0, nullptr);
  int list[4];
  HC_Show_Shell(key, nullptr, nullptr, nullptr, list);
  EXPECT_EQ(std::vector<int>(list, list + 4), (std::vector<int>{3, 0, 1, 2}));
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Surfaces, MeshRoundTripEditAndFaceCount) {
  std::vector<P> grid;
  for (int r = 0; r < 3; ++r) {
    for (int c = 0; c < 2; ++c) grid.push_back(P{float(c), float(r), 0});
  }
  const long long key = HC_Insert_Mesh(3, 2, grid.data());
  int count = 0;
  HC_Show_Faces_Count(key, &count);
  EXPECT_EQ(count, 4);
  const P raised[2] = {{0, 2, 5}, {1, 2, 5}};
  HC_Edit_Mesh(key, 2, 0, 1, 2, raised);
  int rows = 0, columns = 0;
  std::vector<P> shown(6);
  HC_Show_Mesh(key, &rows, &columns, shown.data());
  EXPECT_EQ(rows, 3);
  EXPECT_EQ(shown[5], raised[1]);
  HC_Edit_Mesh(key, 2, 0, 2, 2, raised);
  EXPECT_EQ(HC_Insert_Mesh(0, 2, grid.data()), -1);
  EXPECT_EQ(TakeReports().size(), 2u);
}

TEST_F(Surfaces, NetNormalsAreExplicitOrComputedFromFaces) {
  std::vector<P> points = kSquare;
  points.push_back(P{5, 5, 5});  // in no face
  const long long key = HC_Insert_Shell(5, points.data(), 8, kTwoTriangles.data());
  const P down{0, 0, -1};
  HC_MSet_Vertex_Normals(key, 1, 1, &down);
  std::vector<P> normals(5);
  HC_MShow_Net_Vertex_Normals(key, 0, 5, normals.data());
  EXPECT_EQ(normals[0], (P{0, 0, 1}));
  EXPECT_EQ(normals[1], down);
  EXPECT_EQ(normals[4], (P{0, 0, 0}));
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Surfaces, VertexParametersKeepOneWidth) {
  const long long key = TwoTriangles();
  int width = -1;
  HC_MShow_Vertex_Parameter_Size(key, &width);
  EXPECT_EQ(width, 0);
  const float uv[4] = {0, 0, 1, 0};
  HC_MSet_Vertex_Parameters(key, 0, 2, 2, uv);
  const float uvw[3] = {1, 1, 1};
  HC_MSet_Vertex_Parameters(key, 2, 1, 3, uvw);
  EXPECT_EQ(TakeReports().size(), 1u);
  float shown[2];
  HC_MShow_Vertex_Parameters(key, 1, 1, &width, shown);
  EXPECT_EQ(width, 2);
  EXPECT_EQ(shown[0], 1.0f);
}

TEST_F(Surfaces, ColoursAreCheckedForSpaceTypeAndRange) {
  const long long key = TwoTriangles();
  const float red_hls[3] = {0, 0.5f, 1};
  HC_MSet_Face_Colors_By_Value(key, "faces", 0, "HLS", 1, red_hls);
  const float index = 3;
  HC_MSet_Vertex_Colors_By_FIndex(key, "markers, edges", 0, 1, &index);
  HC_MUnSet_Vertex_Colors(key, 0, 4);
  EXPECT_TRUE(TakeReports().empty());
  HC_MSet_Face_Colors_By_Value(key, "faces", 1, "CMY", 1, red_hls);
  HC_MSet_Face_Colors_By_Value(key, "faces", 2, "RGB", 1, red_hls);
  HC_MSet_Vertex_Colors_By_FIndex(key, "polygons", 0, 1, &index);
  EXPECT_EQ(TakeReports().size(), 3u);
}

TEST_F(Surfaces, OpenPartsNestInsideOpenGeometryOnly) {
  const long long key = TwoTriangles();
  HC_Open_Geometry(key);
  HC_Open_Face(1);
  HC_Close_Face();
  HC_Open_Edge(0, 2);
  HC_Close_Edge();
  HC_Open_Vertex(3);
  HC_Close_Vertex();
  HC_Open_Region(0);
  HC_Close_Region();
  EXPECT_TRUE(TakeReports().empty());
  HC_Open_Face(2);        // no such face
  HC_Close_Segment();     // the geometry is on top
  HC_Delete_By_Key(key);  // open items stay
  EXPECT_EQ(TakeReports().size(), 3u);
  HC_Close_Geometry();
  HC_Delete_By_Key(key);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Surfaces, OpenGeometryOnABadKeyStillPairsWithItsClose) {
  HC_Open_Geometry(-12345);
  HC_Open_Face(0);
  HC_Close_Face();
  HC_Close_Geometry();
  EXPECT_EQ(TakeReports().size(), 1u);
  HC_Close_Face();
  EXPECT_EQ(TakeReports().size(), 1u);
}

}  // namespace
