// Attributes holding one value: weights, sizes, patterns, symbols,
// handedness, text alignment, path, spacing, window, frame and pattern.
#include <string>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

std::string Shown(void (*show)(char*)) {
  char text[256] = "untouched";
  show(text);
  return text;
}

class ValueAttributes : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    HC_Open_Segment("/values");
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }
};

TEST_F(ValueAttributes, WordValuesShowInTheirCanonicalSpelling) {
  struct Case {
    void (*set)(char const*);
    void (*show)(char*);
    const char* given;
    const char* shown;
  };
  const Case cases[] = {
      {HC_Set_Line_Pattern, HC_Show_Line_Pattern, " - - ", "- -"},
      {HC_Set_Line_Pattern, HC_Show_Line_Pattern, "FineDot", "...fine"},
      {HC_Set_Edge_Pattern, HC_Show_Edge_Pattern, "Phantom", "phantom"},
      {HC_Set_Marker_Symbol, HC_Show_Marker_Symbol, "o", "()"},
      {HC_Set_Marker_Symbol, HC_Show_Marker_Symbol, "@", "(*)"},
      {HC_Set_Handedness, HC_Show_Handedness, "RIGHT", "right"},
      {HC_Set_Text_Alignment, HC_Show_Text_Alignment, "^<|", "^<|"},
      {HC_Set_Window_Frame, HC_Show_Window_Frame, "decorative, ON", "on,decorative"},
      {HC_Set_Window_Pattern, HC_Show_Window_Pattern, "Clear", "clear"},
  };
  for (const Case& c : cases) {
    c.set(c.given);
    EXPECT_EQ(Shown(c.show), c.shown) << c.given;
  }
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(ValueAttributes, BadValuesAreRefusedAndKeepTheOldOne) {
  HC_Set_Line_Pattern("-.");
  HC_Set_Text_Alignment("*");
  HC_Set_Line_Pattern("");
  HC_Set_Line_Pattern("wavy");
  HC_Set_Text_Alignment("<>");
  HC_Set_Text_Alignment("^v");
  HC_Set_Handedness(nullptr);
  EXPECT_EQ(TakeReports().size(), 5u);
  EXPECT_EQ(Shown(HC_Show_Line_Pattern), "-.");
  EXPECT_EQ(Shown(HC_Show_Text_Alignment), "*");
}

TEST_F(ValueAttributes, WeightsTakeAPlainFactorOrANumberWithAUnit) {
  HC_Set_Line_Weight(2.5);
  float weight = 0;
  HC_Show_Line_Weight(&weight);
  EXPECT_EQ(weight, 2.5f);
  HC_Set_Variable_Edge_Weight("3 Pixels");
  HC_Show_Edge_Weight(&weight);
  EXPECT_EQ(weight, 3.0f);
  HC_Set_Variable_Marker_Size("0.5 sru");
  HC_Show_Marker_Size(&weight);
  EXPECT_EQ(weight, 0.5f);
  EXPECT_TRUE(TakeReports().empty());

  HC_Set_Line_Weight(0);
  HC_Set_Variable_Line_Weight("2 furlongs");
  HC_Set_Variable_Line_Weight("-1 pixels");
  EXPECT_EQ(TakeReports().size(), 3u);
  HC_Show_Line_Weight(&weight);
  EXPECT_EQ(weight, 2.5f);
}

TEST_F(ValueAttributes, ShowingWhatIsNotSetIsReportedAndUnsetIsSilent) {
  float weight = -1;
  HC_Show_Line_Weight(&weight);
  EXPECT_EQ(weight, -1.0f);
  float l = 9, r = 9, b = 9, t = 9;
  EXPECT_FALSE(HC_Show_Window(&l, &r, &b, &t));
  EXPECT_EQ(l, 9.0f);
  auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 2u);
  EXPECT_EQ(reports[0].specific, 2303);

  HC_UnSet_Line_Weight();
  HC_UnSet_Window();
  HC_Set_Line_Weight(2);
  HC_UnSet_Line_Weight();
  HC_Show_Line_Weight(&weight);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(ValueAttributes, WindowsNeedOrderedSides) {
  HC_Set_Window(-1, 0, -0.5, 0.5);
  float l = 0, r = 0, b = 0, t = 0;
  EXPECT_TRUE(HC_Show_Window(&l, &r, &b, &t));
  EXPECT_EQ(l, -1.0f);
  EXPECT_EQ(t, 0.5f);
  HC_Set_Window(0.5, 0.5, -1, 1);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(ValueAttributes, TextPathAndSpacing) {
  HC_Set_Text_Path(0, 1, 0);
  HC_Set_Text_Spacing(1.5);
  float x = 0, y = 0, z = 0, spacing = 0;
  HC_Show_Text_Path(&x, &y, &z);
  HC_Show_Text_Spacing(&spacing);
  EXPECT_EQ(y, 1.0f);
  EXPECT_EQ(spacing, 1.5f);
  HC_Set_Text_Path(0, 0, 0);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(ValueAttributes, ClipAndTextRegionsKeepTheirPointsAndOptions) {
  const float square[] = {-1, -1, 0, 1, -1, 0, 1, 1, 0, -1, 1, 0};
  HC_Set_Polygonal_Clip_Region(4, square, "type = Mask");
  int loops = 0, total = 0;
  char options[64] = "";
  HC_Show_Clip_Region_Size(&loops, &total, options);
  EXPECT_EQ(loops, 1);
  EXPECT_EQ(total, 4);
  EXPECT_EQ(std::string(options), "window,type=mask");
  float points[12] = {};
  HC_Show_Clip_Region(&loops, &total, points, options);
  EXPECT_EQ(points[3], 1.0f);
  HC_Set_Polygonal_Clip_Region(2, square, "");
  HC_Set_Polygonal_Clip_Region(4, square, "type=fog");
  EXPECT_EQ(TakeReports().size(), 2u);

  HC_Set_Text_Region(2, square, "fitting=size, alignment=center");
  int count = 0;
  HC_Show_Text_Region(&count, points, options);
  EXPECT_EQ(count, 2);
  EXPECT_EQ(std::string(options), "alignment=center,fitting=size");
  HC_Set_Text_Region(0, nullptr, "");
  HC_Show_Text_Region(&count, points, options);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(ValueAttributes, PrioritiesAreExplicitOrTheCreationRank) {
  HC_Create_Segment("first");
  const long long second = HC_Create_Segment("second");
  int priority = -1;
  EXPECT_FALSE(HC_Show_Priority(second, &priority));
  EXPECT_EQ(priority, 1);
  HC_Set_Priority(second, -7);
  EXPECT_TRUE(HC_Show_Priority(second, &priority));
  EXPECT_EQ(priority, -7);
  HC_Set_Priority(123456, 1);
  EXPECT_EQ(TakeReports().size(), 1u);
}

}  // namespace
