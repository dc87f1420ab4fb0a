// Colours: the grammar, merging per target and channel, canonical show,
// values by colour space and index, explicit channels, net colours and
// conversion between spaces.
#include <array>
#include <string>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

std::string ShownColor() {
  char text[4096] = "untouched";
  HC_Show_Color(text);
  return text;
}

std::string OneColor(const char* type) {
  char text[256] = "untouched";
  HC_Show_One_Color(type, text);
  return text;
}

struct Rgb {
  float r = -1, g = -1, b = -1;
};

class Colors : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    segment_ = HC_Open_Segment("/painted");
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }
  long long segment_ = -1;
};

TEST_F(Colors, ABareColourColoursAllGeometryAndShowsAsOneGroup) {
  HC_Set_Color("Red");
  EXPECT_EQ(ShownColor(), "geometry=red");
  HC_Set_Color("edges=blue");
  EXPECT_EQ(OneColor("faces"), "red");
  EXPECT_EQ(OneColor("geometry"), "");
  EXPECT_EQ(ShownColor(), "cut geometry=red,faces=red,edges=blue,lines=red,markers=red,vertices=red,text=red,"
                          "lights=red");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Colors, TargetsFoldAndChannelsMergeIndependently) {
  HC_Set_Color("lines = edges = green, faces = (diffuse=white, transmission = (r=0.25 g=0.25 b=0.25))");
  HC_Set_Color("faces=specular=light gray, windows=(h=0 s=0 v=1)");
  EXPECT_EQ(OneColor("lines"), "green");
  EXPECT_EQ(OneColor("edges"), "green");
  EXPECT_EQ(OneColor("faces"),
            "diffuse=white,specular=light gray,transmission=(r=0.25 g=0.25 b=0.25)");
  EXPECT_EQ(OneColor("windows"), "(r=1 g=1 b=1)");
  HC_UnSet_One_Color("faces=specular");
  EXPECT_EQ(OneColor("faces"), "diffuse=white,transmission=(r=0.25 g=0.25 b=0.25)");
  // What Show gives, set on an empty segment, gives the same again.
  const std::string shown = ShownColor();
  HC_Open_Segment("copy");
  HC_Set_Color(shown.c_str());
  EXPECT_EQ(ShownColor(), shown);
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Colors, MixedAndModifiedNamesGiveInBetweenValues) {
  HC_Set_Color("faces=red-blue, edges=pinkish white, lines=dark white");
  Rgb faces, edges, lines;
  char space[16] = "";
  HC_Show_One_Color_By_Value("faces", space, &faces.r, &faces.g, &faces.b);
  HC_Show_One_Color_By_Value("edges", space, &edges.r, &edges.g, &edges.b);
  HC_Show_One_Color_By_Value("lines", space, &lines.r, &lines.g, &lines.b);
  EXPECT_EQ(std::string(space), "RGB");
  EXPECT_FLOAT_EQ(faces.r, 0.5f);
  EXPECT_FLOAT_EQ(faces.b, 0.5f);
  EXPECT_LT(edges.g, 1.0f);
  EXPECT_GT(edges.g, 0.8f);
  EXPECT_FLOAT_EQ(lines.g, 0.5f);
}

TEST_F(Colors, BadColoursChangeNothing) {
  HC_Set_Color("faces=red");
  HC_Set_Color("faces=blue, edges=no such colour");
  HC_Set_Color("widgets=red");
  HC_Set_Color("faces=(r=2 g=0 b=0)");
  HC_Set_Color("faces=(");
  HC_Set_Color(nullptr);
  EXPECT_EQ(TakeReports().size(), 5u);
  EXPECT_EQ(ShownColor(), "faces=red");
}

TEST_F(Colors, ValuesBySpaceAndByIndex) {
  HC_Set_Color_By_Value("faces, edges", "HSV", 120, 1, 1);
  char types[256] = "", space[16] = "";
  Rgb rgb;
  HC_Show_Color_By_Value(types, space, &rgb.r, &rgb.g, &rgb.b);
  EXPECT_EQ(std::string(types), "faces,edges");
  EXPECT_FLOAT_EQ(rgb.g, 1);
  EXPECT_FLOAT_EQ(rgb.r, 0);

  const float map[] = {1, 0, 0, 0, 0, 1};
  HC_Set_Color_Map_By_Value("RGB", 2, map);
  HC_Set_Color_By_Index("markers", 1);
  EXPECT_EQ(OneColor("markers"), "index=1");
  float explicit_rgb[3] = {-1, -1, -1};
  char texture[64] = "x", options[64] = "";
  HC_Show_Explicit_Color("markers", "diffuse color", explicit_rgb, texture, options);
  EXPECT_EQ(std::string(options), "FIndex");
  EXPECT_EQ(explicit_rgb[0], 1.0f);
  EXPECT_TRUE(HC_PShow_One_Net_Color_By_Value(1, &segment_, "markers", space, &rgb.r, &rgb.g, &rgb.b));
  EXPECT_EQ(rgb.b, 1.0f);  // entry 1 of the map
  int count = 0;
  HC_Show_Color_Map_Count(&count);
  EXPECT_EQ(count, 2);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Colors, TexturesServeAsColoursAndShowAsTextureParts) {
  HC_Define_Local_Texture("Wood", "source=wood_image, tiling=clamp");
  HC_Set_Color("faces=diffuse=Wood");
  EXPECT_EQ(OneColor("faces"), "Wood");
  float rgb[3] = {7, 7, 7};
  char texture[64] = "", options[64] = "";
  EXPECT_TRUE(HC_PShow_Net_Explicit_Color(1, &segment_, "faces", "diffuse", rgb, texture, options));
  EXPECT_EQ(std::string(texture), "Wood");
  EXPECT_EQ(std::string(options), "ignore color");
  EXPECT_EQ(rgb[0], 7.0f);
  HC_Set_Color("edges=Oak");  // neither a texture nor a colour name
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(Colors, NetColoursInheritAndDefault) {
  const long long child = HC_Create_Segment("child");
  Rgb rgb;
  char space[16] = "";
  EXPECT_FALSE(HC_PShow_One_Net_Color_By_Value(1, &child, "windows", space, &rgb.r, &rgb.g, &rgb.b));
  EXPECT_EQ(rgb.r, 1.0f);  // windows default to white
  HC_Set_Color("windows=black");
  EXPECT_TRUE(HC_PShow_One_Net_Color_By_Value(1, &child, "windows", space, &rgb.r, &rgb.g, &rgb.b));
  EXPECT_EQ(rgb.r, 0.0f);
  float explicit_rgb[3] = {};
  char texture[16] = "", options[16] = "x";
  const long long cut[] = {child, -1};
  EXPECT_FALSE(HC_PShow_Net_Explicit_Color(2, cut, "windows", "diffuse", explicit_rgb, texture, options));
  EXPECT_EQ(explicit_rgb[0], 1.0f);
  EXPECT_EQ(std::string(options), "");
}

TEST(ColorConversion, RoundTripsThroughEverySpace) {
  const float rgb[3] = {0.2f, 0.6f, 0.4f};
  for (const char* space : {"HLS", "hsv", "HIC", "RGB"}) {
    float there[3] = {}, back[3] = {};
    ASSERT_TRUE(HC_Compute_Color_By_Value("RGB", rgb, space, there)) << space;
    ASSERT_TRUE(HC_Compute_Color_By_Value(space, there, "rgb", back)) << space;
    for (int i = 0; i < 3; ++i) EXPECT_NEAR(back[i], rgb[i], 1e-5) << space;
  }
  float named[3] = {};
  EXPECT_TRUE(HC_Compute_Color("light blue", "RGB", named));
  EXPECT_FLOAT_EQ(named[0], 0.5f);
  EXPECT_FALSE(HC_Compute_Color("no such colour", "RGB", named));
  const float too_bright[3] = {2, 0, 0};
  float out[3] = {};
  EXPECT_FALSE(HC_Compute_Color_By_Value("RGB", too_bright, "HSV", out));
}

}  // namespace
