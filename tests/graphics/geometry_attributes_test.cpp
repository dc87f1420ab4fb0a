// Attributes that belong to one geometry item rather than its segment:
// colour and user data set through open geometry, normals and texture
// parameters of open parts, and the options of lights.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

// A unit square from two triangles.
constexpr std::array<float, 12> kSquare{0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0};
constexpr std::array<int, 8> kTwoTriangles{3, 0, 1, 2, 3, 0, 2, 3};

class GeometryAttributes : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    segment_ = HC_Open_Segment("/parts");
    shell_ = HC_Insert_Shell(4, kSquare.data(), 8, kTwoTriangles.data());
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }

  // The diffuse colour in force for faces along `keys`.
  static std::array<float, 3> NetFaceColor(std::vector<long long> keys) {
    std::array<float, 3> rgb{-1, -1, -1};
    char texture[64], options[64];
    HC_PShow_Net_Explicit_Color(static_cast<int>(keys.size()), keys.data(), "faces", "diffuse color", rgb.data(),
                                texture, options);
    return rgb;
  }

  long long segment_ = -1;
  long long shell_ = -1;
};

TEST_F(GeometryAttributes, ColourSetThroughOpenGeometryStaysOnTheItem) {
  HC_Set_Color("faces=blue");
  HC_Open_Geometry(shell_);
  HC_Set_Color("faces=red");
  char shown[64] = "";
  HC_Show_One_Color("faces", shown);
  HC_Close_Geometry();
  EXPECT_STREQ(shown, "red");
  HC_Show_One_Color("faces", shown);
  EXPECT_STREQ(shown, "blue");
  EXPECT_EQ(NetFaceColor({shell_, -1}), (std::array<float, 3>{1, 0, 0}));
  EXPECT_EQ(NetFaceColor({segment_}), (std::array<float, 3>{0, 0, 1}));
  // A lock on the segment overrides what the item sets for itself.
  HC_Set_Rendering_Options("attribute lock=color");
  EXPECT_EQ(NetFaceColor({shell_}), (std::array<float, 3>{0, 0, 1}));
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(GeometryAttributes, UserDataOfOpenGeometryAndItsPartsAreSeparate) {
  HC_Set_User_Options("level=segment, shared=segment");
  HC_Open_Geometry(shell_);
  HC_Set_User_Options("level=shell");
  HC_Set_User_Index(7, reinterpret_cast<void*>(std::intptr_t{70}));
  HC_Open_Face(1);
  HC_Set_User_Options("level=face");
  char value[64] = "";
  EXPECT_TRUE(HC_PShow_One_Net_User_Option(0, nullptr, "shared", value));
  EXPECT_STREQ(value, "segment");
  HC_Close_Face();
  HC_Show_One_User_Option("level", value);
  EXPECT_STREQ(value, "shell");
  int count = 0;
  HC_PShow_Net_User_Index_Count(0, nullptr, &count);
  EXPECT_EQ(count, 1);
  HC_Open_Face(0);  // another face: nothing of face 1's
  HC_Show_One_User_Option("level", value);
  EXPECT_STREQ(value, "");
  HC_Close_Face();
  HC_Close_Geometry();
  HC_Show_One_User_Option("level", value);
  EXPECT_STREQ(value, "segment");
  HC_Show_User_Index_Count(&count);
  EXPECT_EQ(count, 0);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(GeometryAttributes, CopiedGeometryKeepsItsOwnAttributes) {
  HC_Open_Geometry(shell_);
  HC_Set_User_Options("mark=original");
  HC_Close_Geometry();
  HC_Create_Segment("/copies");
  const long long copy = HC_Copy_Geometry(shell_, "/copies");
  HC_Open_Geometry(copy);
  char value[64] = "";
  HC_Show_One_User_Option("mark", value);
  HC_Close_Geometry();
  EXPECT_STREQ(value, "original");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(GeometryAttributes, VertexNormalsAreTheSurfacesOwn) {
  HC_Open_Geometry(shell_);
  HC_Open_Vertex(2);
  float x = 0, y = 0, z = 0;
  HC_Show_Net_Normal(&x, &y, &z);  // computed from the square's faces
  EXPECT_FLOAT_EQ(z, 1);
  HC_Set_Normal(1, 0, 0);
  HC_Show_Normal(&x, &y, &z);
  EXPECT_EQ(x, 1);
  HC_Close_Vertex();
  HC_Close_Geometry();
  std::array<float, 3> bulk{};
  HC_MShow_Net_Vertex_Normals(shell_, 2, 1, bulk.data());
  EXPECT_EQ(bulk, (std::array<float, 3>{1, 0, 0}));
  HC_Open_Geometry(shell_);
  HC_Open_Vertex(2);
  HC_UnSet_Normal();
  HC_UnSet_Normal();  // nothing left: silent
  HC_Show_Net_Normal(&x, &y, &z);
  EXPECT_FLOAT_EQ(z, 1);
  EXPECT_TRUE(TakeReports().empty());
  HC_Show_Normal(&x, &y, &z);
  HC_Close_Vertex();
  HC_Close_Geometry();
  ASSERT_EQ(TakeReports().size(), 1u);
}

TEST_F(GeometryAttributes, FaceAndEdgeNormalsAreExplicitOrComputed) {
  HC_Open_Geometry(shell_);
  HC_Open_Face(0);
  float x = 0, y = 0, z = 0;
  HC_Show_Net_Normal(&x, &y, &z);
  EXPECT_EQ((std::array<float, 3>{x, y, z}), (std::array<float, 3>{0, 0, 1}));
  HC_Set_Normal(0, 0, -2);
  HC_Close_Face();
  HC_Open_Edge(2, 0);
  HC_Set_Normal(0, 1, 0);
  HC_Close_Edge();
  HC_Open_Edge(0, 2);  // the same edge named the other way
  HC_Show_Normal(&x, &y, &z);
  EXPECT_EQ(y, 1);
  HC_Close_Edge();
  HC_Open_Face(0);
  HC_Show_Normal(&x, &y, &z);
  EXPECT_EQ(z, -2);
  HC_Close_Face();
  HC_Close_Geometry();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(GeometryAttributes, NormalsAndParametersNeedAnOpenPart) {
  HC_Set_Normal(0, 0, 1);  // a segment is open
  HC_Open_Geometry(shell_);
  HC_Set_Normal(0, 0, 1);  // the shell itself, no part
  HC_Open_Vertex(0);
  HC_Set_Normal(0, 0, 0);
  const float uv[2] = {0.5f, 0.25f};
  HC_Set_Parameter(4, uv);  // refused before anything is read
  HC_Set_Parameter(2, nullptr);
  HC_Close_Vertex();
  HC_Open_Face(0);
  HC_Set_Parameter(2, uv);
  HC_Close_Face();
  HC_Close_Geometry();
  EXPECT_EQ(TakeReports().size(), 6u);
  HC_Open_Geometry(-12345);  // a dead frame: silent
  HC_Set_Normal(0, 0, 1);
  HC_Close_Geometry();
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(GeometryAttributes, ParametersOfOpenVerticesJoinTheBulkOnes) {
  HC_Open_Geometry(shell_);
  HC_Open_Vertex(3);
  const float uvw[3] = {0.5f, 0.25f, 1};
  HC_Set_Parameter(2, uvw);
  HC_Close_Vertex();
  HC_Open_Vertex(1);
  HC_Set_Parameter(3, uvw);  // another width than the one in use
  HC_Close_Vertex();
  HC_Close_Geometry();
  EXPECT_EQ(TakeReports().size(), 1u);
  int number = 0;
  std::array<float, 2> shown{};
  HC_MShow_Vertex_Parameters(shell_, 3, 1, &number, shown.data());
  EXPECT_EQ(number, 2);
  EXPECT_EQ(shown, (std::array<float, 2>{0.5f, 0.25f}));
}

TEST_F(GeometryAttributes, LightsTakeCameraRelative) {
  const long long light = HC_Insert_Distant_Light(0, 0, -1);
  char shown[64] = "untouched";
  HC_Show_Geometry_Options(light, shown);
  EXPECT_STREQ(shown, "");
  HC_Set_Geometry_Options(light, "Camera Relative");
  HC_Show_Geometry_Options(light, shown);
  EXPECT_STREQ(shown, "camera relative");
  HC_Set_Geometry_Options(light, "no camera relative");
  HC_Show_Geometry_Options(light, shown);
  EXPECT_STREQ(shown, "no camera relative");
  EXPECT_TRUE(TakeReports().empty());
  HC_Set_Geometry_Options(shell_, "camera relative");
  HC_Set_Geometry_Options(light, "camera relative, sideways");
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 2u);
  EXPECT_EQ(reports[0].specific, 2002);
  EXPECT_EQ(reports[1].specific, 2301);
  HC_Show_Geometry_Options(light, shown);
  EXPECT_STREQ(shown, "no camera relative");
}

}  // namespace
