// Net values: inheritance from owners, attribute locks (a lock below a lock,
// ignored subsegment locks) and key paths.
#include <string>
#include <vector>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

struct NetRead {
  bool set;
  std::string value;
};

NetRead NetFacesVisibility(std::vector<long long> keys) {
  NetRead read{false, "untouched"};
  char value[256] = "untouched";
  read.set = HC_PShow_One_Net_Visibility(static_cast<int>(keys.size()), keys.data(), "faces", value);
  read.value = value;
  return read;
}

class NetAttributes : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    view_ = HC_Create_Segment("/view");
    part_ = HC_Create_Segment("/view/assembly/part");
  }
  long long view_ = -1;
  long long part_ = -1;
};

TEST_F(NetAttributes, TheLowestSettingOnTheOwnerChainWins) {
  HC_Open_Segment_By_Key(view_);
  HC_Set_Heuristics("related selection limit=3, no selection sorting");
  HC_Close_Segment();
  HC_Open_Segment("/view/assembly");
  HC_Set_Heuristics("related selection limit=7");
  HC_Close_Segment();

  HC_Open_Segment_By_Key(part_);
  char value[256] = "";
  EXPECT_TRUE(HC_PShow_One_Net_Heuristic(0, nullptr, "related selection limit", value));
  EXPECT_EQ(std::string(value), "7");
  char list[1024] = "";
  HC_PShow_Net_Heuristics(0, nullptr, list);
  EXPECT_EQ(std::string(list),
            "internal selection limit=10,related selection limit=7,selection level=entity,no selection sorting");
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(NetAttributes, DefaultsAnswerFalse) {
  char value[256] = "";
  EXPECT_FALSE(HC_PShow_One_Net_Heuristic(1, &part_, "internal selection limit", value));
  EXPECT_EQ(std::string(value), "10");
  EXPECT_FALSE(HC_PShow_One_Net_Visibility(1, &part_, "vertices", value));
  EXPECT_EQ(std::string(value), "off");
  EXPECT_FALSE(HC_PShow_One_Net_Rendering_Opti(1, &part_, "attribute lock", value));
  EXPECT_EQ(std::string(value), "");
  EXPECT_TRUE(TakeReports().empty());
}

class AttributeLocks : public NetAttributes {
 protected:
  void Set(long long segment, const char* visibility, const char* rendering) {
    HC_Open_Segment_By_Key(segment);
    if (visibility) HC_Set_Visibility(visibility);
    if (rendering) HC_Set_Rendering_Options(rendering);
    HC_Close_Segment();
  }
};

TEST_F(AttributeLocks, ALockMakesTheLockingValueWinBelow) {
  Set(view_, "faces=off", "attribute lock=visibility");
  Set(part_, "faces=on", nullptr);
  EXPECT_EQ(NetFacesVisibility({part_}).value, "off");
  // Locked-out settings are kept, just not heard.
  HC_Open_Segment_By_Key(part_);
  char shown[256] = "";
  HC_Show_One_Visibility("faces", shown);
  HC_Close_Segment();
  EXPECT_EQ(std::string(shown), "on");
}

TEST_F(AttributeLocks, ALockBelowALockTakesOver) {
  Set(view_, "faces=off", "attribute lock=visibility");
  Set(part_, "faces=on", "attribute lock=visibility");
  EXPECT_EQ(NetFacesVisibility({part_}).value, "on");
}

TEST_F(AttributeLocks, IgnoringSubsegmentLocksKeepsTheUpperLock) {
  Set(view_, "faces=off", "attribute lock=visibility, ignore subsegment locks=visibility");
  Set(part_, "faces=on", "attribute lock=visibility");
  EXPECT_EQ(NetFacesVisibility({part_}).value, "off");
}

TEST_F(AttributeLocks, ALockOnSomeTypesLeavesTheOthersFree) {
  Set(view_, "everything=off", "attribute lock=(visibility=(edges))");
  Set(part_, "faces=on, edges=on", nullptr);
  EXPECT_EQ(NetFacesVisibility({part_}).value, "on");
  char value[64] = "";
  HC_PShow_One_Net_Visibility(1, &part_, "edges", value);
  EXPECT_EQ(std::string(value), "off");
}

TEST_F(AttributeLocks, AnExplicitOffBeatsEverything) {
  Set(view_, "faces=off", "attribute lock=(everything, visibility=off)");
  Set(part_, "faces=on", nullptr);
  EXPECT_EQ(NetFacesVisibility({part_}).value, "on");
}

TEST_F(NetAttributes, KeyPathsFillInOwnersAndStopAtMinusOne) {
  HC_Open_Segment_By_Key(view_);
  HC_Set_Visibility("faces=off");
  HC_Close_Segment();
  EXPECT_EQ(NetFacesVisibility({part_, view_}).value, "off");
  EXPECT_TRUE(NetFacesVisibility({part_, view_}).set);
  const NetRead cut = NetFacesVisibility({part_, -1});
  EXPECT_FALSE(cut.set);
  EXPECT_EQ(cut.value, "on");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(NetAttributes, UnjoinableKeyPathsAreReported) {
  const long long elsewhere = HC_Create_Segment("/elsewhere");
  char value[64] = "untouched";
  EXPECT_FALSE(HC_PShow_One_Net_Visibility(2, std::vector<long long>{part_, elsewhere}.data(), "faces", value));
  EXPECT_FALSE(HC_PShow_One_Net_Visibility(1, std::vector<long long>{12345}.data(), "faces", value));
  EXPECT_FALSE(HC_PShow_One_Net_Visibility(1, nullptr, "faces", value));
  EXPECT_EQ(std::string(value), "untouched");
  EXPECT_EQ(TakeReports().size(), 3u);
}

TEST_F(NetAttributes, StylesLendTheirOpinionsAndLocalSettingsWin) {
  HC_Open_Segment("/styles/hidden");
  HC_Set_Visibility("faces=off, edges=off");
  HC_Close_Segment();
  HC_Open_Segment_By_Key(part_);
  HC_Style_Segment("/styles/hidden");
  HC_Set_Visibility("edges=on");
  HC_Close_Segment();
  EXPECT_EQ(NetFacesVisibility({part_}).value, "off");
  char value[16] = "";
  HC_PShow_One_Net_Visibility(1, &part_, "edges", value);
  EXPECT_EQ(std::string(value), "on");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(NetAttributes, ConditionalStylesFollowTheConditionsBelow) {
  HC_Open_Segment("/styles/selected");
  HC_Set_Visibility("faces=off");
  HC_Close_Segment();
  HC_Open_Segment_By_Key(view_);
  HC_Conditional_Style("/styles/selected", "selected AND NOT locked");
  HC_Close_Segment();
  EXPECT_EQ(NetFacesVisibility({part_}).value, "on");
  HC_Open_Segment_By_Key(part_);
  HC_Set_Conditions("selected");
  HC_Close_Segment();
  EXPECT_EQ(NetFacesVisibility({part_}).value, "off");
  HC_Open_Segment_By_Key(part_);
  HC_Set_Conditions("locked");
  HC_Close_Segment();
  EXPECT_EQ(NetFacesVisibility({part_}).value, "on");
}

TEST_F(NetAttributes, IncludedSegmentsInheritFromTheIncluder) {
  const long long library_part = HC_Create_Segment("/library/bolt");
  HC_Open_Segment("/library");
  HC_Set_Visibility("faces=off");
  HC_Close_Segment();
  HC_Open_Segment_By_Key(view_);
  const long long include = HC_Include_Segment("/library/bolt");
  HC_Close_Segment();
  // Through the include the library's own owners do not count.
  EXPECT_EQ(NetFacesVisibility({library_part, include, view_}).value, "on");
  EXPECT_EQ(NetFacesVisibility({library_part}).value, "off");
  HC_Open_Segment_By_Key(view_);
  HC_Set_Visibility("faces=off");
  HC_Close_Segment();
  // The including segment's key stands for its one include.
  EXPECT_EQ(NetFacesVisibility({library_part, view_}).value, "off");
  EXPECT_TRUE(NetFacesVisibility({library_part, view_}).set);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(NetAttributes, NetTextAlignmentFallsBackToCentred) {
  char alignment[16] = "";
  HC_PShow_Net_Text_Alignment(1, &part_, alignment);
  EXPECT_EQ(std::string(alignment), "*");
  HC_Open_Segment_By_Key(view_);
  HC_Set_Text_Alignment("<v");
  HC_Close_Segment();
  HC_PShow_Net_Text_Alignment(1, &part_, alignment);
  EXPECT_EQ(std::string(alignment), "<v");
}

TEST_F(NetAttributes, KeyPathsGoThroughConditionalIncludesOnlyWhenTheyHold) {
  const long long bolt = HC_Create_Segment("/library/bolt");
  HC_Open_Segment_By_Key(view_);
  HC_Set_Visibility("faces=off");
  const long long include = HC_Conditional_Include("/library/bolt", "exploded");
  HC_Close_Segment();
  EXPECT_FALSE(NetFacesVisibility({bolt, include}).set);
  EXPECT_FALSE(NetFacesVisibility({bolt, view_}).set);
  EXPECT_EQ(TakeReports().size(), 2u);
  // Conditions above the includer count there.
  HC_Open_Segment("/");
  HC_Set_Conditions("exploded");
  HC_Close_Segment();
  EXPECT_EQ(NetFacesVisibility({bolt, include}).value, "off");
  EXPECT_EQ(NetFacesVisibility({bolt, view_}).value, "off");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(NetAttributes, MatricesAlongAPathHonourLocksAndStyles) {
  const auto net_x = [&] {
    float m[16] = {};
    HC_PShow_Net_Modelling_Matrix(1, &part_, m);
    return m[12];
  };
  HC_Open_Segment_By_Key(view_);
  HC_Translate_Object(1, 0, 0);
  HC_Close_Segment();
  HC_Open_Segment_By_Key(part_);
  HC_Translate_Object(10, 0, 0);
  HC_Close_Segment();
  HC_Open_Segment("/styles/shifted");
  HC_Translate_Object(100, 0, 0);
  HC_Close_Segment();
  HC_Open_Segment("/view/assembly");
  HC_Style_Segment("/styles/shifted");
  HC_Close_Segment();
  EXPECT_EQ(net_x(), 111);
  HC_Open_Segment("/view/assembly");
  HC_Translate_Object(1000, 0, 0);  // its own matrix beats the style's
  HC_Close_Segment();
  EXPECT_EQ(net_x(), 1011);
  HC_Open_Segment_By_Key(view_);
  HC_Set_Rendering_Options("attribute lock=modelling matrix");
  HC_Close_Segment();
  EXPECT_EQ(net_x(), 1);
  float texture[16] = {};
  EXPECT_FALSE(HC_PShow_Net_Texture_Matrix(1, &part_, texture));
  EXPECT_TRUE(TakeReports().empty());
}

}  // namespace
