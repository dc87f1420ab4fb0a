// Option-list attributes: merging, canonical show, single reads, unsetting,
// and lists that are refused whole.
#include <string>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

using ShowFn = void (*)(char*);
using ShowOneFn = void (*)(char const*, char*);

std::string Shown(ShowFn show) {
  char text[4096] = "untouched";
  show(text);
  return text;
}

std::string ShownOne(ShowOneFn show, const char* name) {
  char text[4096] = "untouched";
  show(name, text);
  return text;
}

class OptionAttributes : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    HC_Open_Segment("/scene");
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }
};

TEST_F(OptionAttributes, HeuristicsMergePerOptionAndShowInVocabularyOrder) {
  HC_Set_Heuristics("selection sorting, related selection limit = 5");
  HC_Set_Heuristics("Internal Selection Limit = -1, no selection sorting");
  EXPECT_EQ(Shown(HC_Show_Heuristics), "internal selection limit=-1,related selection limit=5,no selection sorting");
  EXPECT_EQ(ShownOne(HC_Show_One_Heuristic, "related selection limit"), "5");
  EXPECT_EQ(ShownOne(HC_Show_One_Heuristic, "selection sorting"), "off");
  EXPECT_EQ(ShownOne(HC_Show_One_Heuristic, "backplane cull"), "");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OptionAttributes, NumbersAreShownInShortestFormWithTheirUnit) {
  HC_Set_Text_Font("size = 0.300000 SRU, name = 'Times New Roman', bold");
  EXPECT_EQ(Shown(HC_Show_Text_Font), "name=Times New Roman,size=0.3 sru,bold");
  HC_Set_Driver_Options("selection proximity=1e-1, title=`a, b`");
  EXPECT_EQ(Shown(HC_Show_Driver_Options), "selection proximity=0.1,title=`a, b`");
  EXPECT_EQ(ShownOne(HC_Show_One_Driver_Option, "title"), "a, b");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OptionAttributes, ShownListsSetBackReproduceTheSegment) {
  HC_Set_Visibility("everything=off, faces, edges=on");
  HC_Set_Rendering_Options("attribute lock=(color,selectability), hsra = Z-Buffer");
  HC_Set_Text_Font("name=`x=y`, size=2 pixels");
  HC_Set_Driver_Options("marker drawing=(fast=x,)");  // a one-item list holding "=" keeps its parentheses
  const std::string visibility = Shown(HC_Show_Visibility);
  const std::string rendering = Shown(HC_Show_Rendering_Options);
  const std::string font = Shown(HC_Show_Text_Font);
  const std::string driver = Shown(HC_Show_Driver_Options);
  HC_Open_Segment("copy");
  HC_Set_Visibility(visibility.c_str());
  HC_Set_Rendering_Options(rendering.c_str());
  HC_Set_Text_Font(font.c_str());
  HC_Set_Driver_Options(driver.c_str());
  EXPECT_EQ(Shown(HC_Show_Visibility), visibility);
  EXPECT_EQ(Shown(HC_Show_Rendering_Options), rendering);
  EXPECT_EQ(Shown(HC_Show_Text_Font), font);
  EXPECT_EQ(Shown(HC_Show_Driver_Options), driver);
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OptionAttributes, ANumberTakesAUnitWordAndNothingElse) {
  HC_Set_Text_Font("size=0.5 sru");
  HC_Set_Text_Font("size=403 s(((<)))o italic");
  EXPECT_EQ(TakeReports().size(), 1u);
  EXPECT_EQ(Shown(HC_Show_Text_Font), "size=0.5 sru");
}

TEST_F(OptionAttributes, GroupWordsSetEachMemberAndShowWhenAllAgree) {
  HC_Set_Visibility("off");
  EXPECT_EQ(Shown(HC_Show_Visibility), "no everything");
  HC_Set_Visibility("polygons=on");
  EXPECT_EQ(ShownOne(HC_Show_One_Visibility, "faces"), "on");
  EXPECT_EQ(ShownOne(HC_Show_One_Visibility, "edges"), "on");
  EXPECT_EQ(ShownOne(HC_Show_One_Visibility, "geometry"), "");
  EXPECT_EQ(Shown(HC_Show_Visibility),
            "polygons,no cut geometry,no windows,no lines,no markers,no vertices,no text,no images,"
            "no cutting planes,no lights,no string cursors,no shadows");
  HC_Set_Visibility("images=off, no faces");  // "images" and "face" plural or not
  EXPECT_EQ(ShownOne(HC_Show_One_Visibility, "image"), "off");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OptionAttributes, SelectabilityKeepsActionsInCanonicalOrder) {
  HC_Set_Selectability("faces = !^v, windows=on, lines = off");
  EXPECT_EQ(Shown(HC_Show_Selectability), "windows=v,faces=v^!,no lines");
  HC_Set_Selectability("faces=x");
  EXPECT_EQ(TakeReports().size(), 1u);
  EXPECT_EQ(Shown(HC_Show_Selectability), "windows=v,faces=v^!,no lines");
}

TEST_F(OptionAttributes, AttributeLocksMergePerType) {
  HC_Set_Rendering_Options("attribute lock=color");
  HC_Set_Rendering_Options("attribute lock=selectability");
  EXPECT_EQ(ShownOne(HC_Show_One_Rendering_Option, "attribute lock"), "color,selectability");
  HC_Set_Rendering_Options("attribute lock=(color=off, visibility=(faces, edges))");
  EXPECT_EQ(ShownOne(HC_Show_One_Rendering_Option, "attribute lock"),
            "color=off,selectability,visibility=(faces,edges)");
  HC_UnSet_One_Rendering_Option("attribute lock=selectability");
  EXPECT_EQ(ShownOne(HC_Show_One_Rendering_Option, "attribute lock"), "color=off,visibility=(faces,edges)");
  HC_Set_Rendering_Options("no attribute lock");
  EXPECT_EQ(Shown(HC_Show_Rendering_Options), "no attribute lock");
  HC_Set_Rendering_Options("attribute lock");
  EXPECT_EQ(Shown(HC_Show_Rendering_Options), "attribute lock=everything");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OptionAttributes, FreeNamesKeepTheOrderOfFirstSetting) {
  HC_Set_Conditions("Zeta, alpha, no beta");
  HC_Set_Conditions("zeta=off");
  EXPECT_EQ(Shown(HC_Show_Conditions), "no zeta,alpha,no beta");
  HC_UnSet_One_Condition("ALPHA");
  EXPECT_EQ(Shown(HC_Show_Conditions), "no zeta,no beta");
  HC_Set_Callback("draw segments = my_Draw, draw text=other");
  EXPECT_EQ(Shown(HC_Show_Callback), "draw segment=my_Draw,draw text=other");
  HC_UnSet_One_Callback("draw segment");
  EXPECT_EQ(Shown(HC_Show_Callback), "draw text=other");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OptionAttributes, UnsettingRemovesLocalOptionsSilently) {
  HC_UnSet_Heuristics();
  HC_UnSet_One_Heuristic("culling");
  EXPECT_TRUE(TakeReports().empty());
  HC_Set_Heuristics("culling=view frustum");
  HC_UnSet_One_Heuristic("culling");
  char list[64] = "untouched";
  HC_Show_Heuristics(list);
  EXPECT_EQ(std::string(list), "untouched");
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].specific, 2303);
}

struct RefusedList {
  const char* list;
  int specific;
};

class RefusedOptionLists : public OptionAttributes, public ::testing::WithParamInterface<RefusedList> {};

TEST_P(RefusedOptionLists, LeaveTheSegmentAsItWas) {
  HC_Set_Heuristics("selection sorting");
  HC_Set_Rendering_Options("attribute lock=color");
  HC_Set_Rendering_Options(GetParam().list);
  HC_Set_Heuristics(GetParam().list);
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 2u);
  EXPECT_EQ(reports[0].specific, GetParam().specific);
  EXPECT_EQ(reports[0].routine, "HC_Set_Rendering_Options");
  EXPECT_EQ(Shown(HC_Show_Heuristics), "selection sorting");
  EXPECT_EQ(Shown(HC_Show_Rendering_Options), "attribute lock=color");
}

INSTANTIATE_TEST_SUITE_P(Bad, RefusedOptionLists,
                         ::testing::Values(RefusedList{"no such option", 2301},
                                           RefusedList{"attribute lock=", 2302},
                                           RefusedList{"attribute lock=(colour)", 2301},
                                           RefusedList{"lighting=maybe", 2301},
                                           RefusedList{"stereo separation=wide", 2301},
                                           RefusedList{"selection sorting, (", 2302},
                                           RefusedList{"title='open", 2302}));

TEST_F(OptionAttributes, NullPointersAreReported) {
  HC_Set_Visibility(nullptr);
  HC_Show_One_Heuristic(nullptr, nullptr);
  HC_UnSet_One_Rendering_Option(nullptr);
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 3u);
  for (const auto& report : reports) EXPECT_EQ(report.specific, 2402);
}

TEST_F(OptionAttributes, EdgesAndLightsTakeListsOfTheirParts) {
  HC_Set_Visibility("edges=(hard=off, Silhouettes)");
  HC_Set_Visibility("edges=(no generics), lights=(no markers)");
  char shown[512] = "";
  HC_Show_One_Visibility("edges", shown);
  EXPECT_EQ(std::string(shown),
            "perimeters,no hard,adjacent,mesh quads,silhouettes,interior silhouettes,nonculled,no generics");
  HC_Show_One_Visibility("lights", shown);
  EXPECT_EQ(std::string(shown), "faces,edges,no markers");
  // Parts that come to agree fold back to a plain switch.
  HC_Set_Visibility("edges=(hard, generics)");
  HC_Show_One_Visibility("edges", shown);
  EXPECT_EQ(std::string(shown), "on");
  HC_Set_Visibility("edges=(everything)");
  HC_Set_Visibility("faces=(hard=off)");
  EXPECT_EQ(TakeReports().size(), 2u);
  HC_Show_Visibility(shown);
  HC_UnSet_Visibility();
  HC_Set_Visibility(shown);
  char again[512] = "";
  HC_Show_Visibility(again);
  EXPECT_EQ(std::string(again), shown);
}

}  // namespace
