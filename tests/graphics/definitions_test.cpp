// Named definitions: global and local textures, line styles and their
// searches, and highlights.
#include <set>
#include <string>

#include "engine_fixture.h"
#include "system/highlights.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

std::set<std::string> FoundTextures() {
  std::set<std::string> names;
  char name[256];
  HC_Begin_Texture_Search();
  while (HC_Find_Texture(name)) names.insert(name);
  HC_End_Texture_Search();
  return names;
}

std::set<std::string> FoundLineStyles() {
  std::set<std::string> names;
  char name[256];
  HC_Begin_Line_Style_Search();
  while (HC_Find_Line_Style(name)) names.insert(name);
  HC_End_Line_Style_Search();
  return names;
}

void DoNothing() {}

class Definitions : public EngineTest {
 protected:
  void TearDown() override {
    for (const std::string& name : FoundTextures()) HC_UnDefine_Texture(name.c_str());
    EngineTest::TearDown();
  }
};

TEST_F(Definitions, TexturesShowSourceFirstAndReplaceWhole) {
  HC_Define_Texture("Brick", "tiling = Clamp, no down sampling, source = Brick_Image");
  char definition[256] = "";
  HC_Show_Texture("Brick", definition);
  EXPECT_EQ(std::string(definition), "source=Brick_Image,tiling=clamp,no down sampling");
  HC_Define_Texture("Brick", "source=other");
  HC_Show_Texture("Brick", definition);
  EXPECT_EQ(std::string(definition), "source=other");
  EXPECT_EQ(FoundTextures(), std::set<std::string>{"Brick"});
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Definitions, BadTexturesAreRefused) {
  HC_Define_Texture("nosource", "tiling=repeat");
  HC_Define_Texture("odd", "source=x, sparkle");
  char definition[64] = "untouched";
  HC_Show_Texture("nosource", definition);
  HC_UnDefine_Texture("never");
  EXPECT_EQ(std::string(definition), "");
  EXPECT_EQ(TakeReports().size(), 4u);
}

TEST_F(Definitions, LocalTexturesBelongToTheirSegment) {
  HC_Open_Segment("/a");
  HC_Define_Local_Texture("skin", "source=img");
  char definition[64] = "";
  HC_Show_Local_Texture("skin", definition);
  EXPECT_EQ(std::string(definition), "source=img");
  HC_Begin_Local_Texture_Search();
  int count = 0;
  HC_Show_Texture_Count(&count);
  EXPECT_EQ(count, 1);
  HC_End_Texture_Search();
  HC_Close_Segment();
  HC_Open_Segment("/b");
  HC_Show_Local_Texture("skin", definition);
  HC_Close_Segment();
  EXPECT_EQ(TakeReports().size(), 1u);
  EXPECT_TRUE(FoundTextures().empty());
}

TEST_F(Definitions, LineStylesServeAsPatterns) {
  HC_Define_Line_Style("Rail", " parallel = (weight=2 pixels) ");
  char definition[128] = "";
  HC_Show_Line_Style("rail", definition);
  EXPECT_EQ(std::string(definition), "parallel = (weight=2 pixels)");
  int size = 0;
  HC_Show_Line_Style_Size("RAIL", &size);
  EXPECT_EQ(size, 28);
  HC_Open_Segment("/track");
  HC_Set_Line_Pattern("Rail");
  HC_Show_Line_Pattern(definition);
  EXPECT_EQ(std::string(definition), "rail");
  HC_Close_Segment();
  HC_Begin_Line_Style_Search();
  EXPECT_TRUE(HC_Find_Line_Style(definition));
  EXPECT_FALSE(HC_Find_Line_Style(definition));
  HC_End_Line_Style_Search();
  HC_UnDefine_Line_Style("rail");
  HC_UnDefine_Line_Style("rail");
  HC_End_Line_Style_Search();
  EXPECT_EQ(TakeReports().size(), 2u);
}

TEST_F(Definitions, HighlightsNeedLiveKeysAndAStyle) {
  HC_Create_Segment("/styles/hot");
  const long long part = HC_Create_Segment("/scene/part");
  const long long path[] = {part, -1};
  HC_Define_Highlight(2, path, "/styles/hot", "");
  HC_UnDefine_Highlight(2, path, "/styles/hot", "");
  HC_UnDefine_Highlight(2, path, "/styles/hot", "");
  EXPECT_TRUE(TakeReports().empty());
  const long long dead[] = {12345};
  HC_Define_Highlight(1, dead, "/styles/hot", "");
  HC_Define_Highlight(1, &part, "/styles/cold", "");
  HC_Define_Highlight(0, &part, "/styles/hot", "");
  EXPECT_EQ(TakeReports().size(), 3u);
}

TEST_F(Definitions, ResetForgetsEveryProcessWideDefinition) {
  HC_Define_Texture("wood", "source=grain");
  HC_Define_Line_Style("rail", "parallel = (weight=2 pixels)");
  HC_Define_Callback_Name("nothing", DoNothing);
  HC_Create_Segment("/styles/hot");
  const long long part = HC_Create_Segment("/scene/part");
  HC_Define_Highlight(1, &part, "/styles/hot", "");
  ASSERT_FALSE(graphics::Highlights().empty());
  HC_Reset_System();
  EXPECT_TRUE(FoundTextures().empty());
  EXPECT_TRUE(FoundLineStyles().empty());
  EXPECT_TRUE(graphics::Highlights().empty());
  EXPECT_TRUE(TakeReports().empty());
  HC_UnDefine_Callback_Name("nothing");  // no longer known
  EXPECT_EQ(TakeReports().size(), 1u);
}

}  // namespace
