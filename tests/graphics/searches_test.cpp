// Contents, segment and open-segment searches: specifications with
// wildcards and lists, type lists, snapshots and nesting.
#include <cstring>
#include <string>
#include <vector>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

struct Found {
  std::string type;
  long long key;
  bool operator==(const Found&) const = default;
};

std::vector<Found> AllContents() {
  std::vector<Found> found;
  char type[256];
  long long key = 0;
  while (HC_Find_Contents(type, &key)) found.push_back(Found{type, key});
  return found;
}

std::vector<Found> Contents(const char* segment, const char* filter) {
  HC_Begin_Contents_Search(segment, filter);
  std::vector<Found> found = AllContents();
  HC_End_Contents_Search();
  return found;
}

std::vector<std::string> Segments(const char* spec) {
  HC_Begin_Segment_Search(spec);
  std::vector<std::string> found;
  char path[1024];
  while (HC_Find_Segment(path)) found.push_back(path);
  HC_End_Segment_Search();
  return found;
}

class Searches : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    model_ = HC_Open_Segment("/model");
    line_ = HC_Insert_Line(0, 0, 0, 1, 1, 1);
    alpha_ = HC_Create_Segment("alpha");
    HC_Create_Segment("alpha/deep");
    beta_ = HC_Create_Segment("beta");
    marker_ = HC_Insert_Marker(0, 0, 0);
    text_ = HC_Insert_Text(0, 0, 0, "t");
    include_ = HC_Include_Segment("/include library");
    HC_Close_Segment();
  }
  long long model_, line_, alpha_, beta_, marker_, text_, include_;
};

TEST_F(Searches, TypeListsChooseTheKindsInStoredOrder) {
  EXPECT_EQ(Contents("/model", "geometry"),
            (std::vector<Found>{{"line", line_}, {"marker", marker_}, {"text", text_}}));
  EXPECT_EQ(Contents("/model", "geometry,segment"),
            (std::vector<Found>{{"segment", alpha_}, {"segment", beta_}, {"line", line_}, {"marker", marker_},
                                {"text", text_}}));
  EXPECT_EQ(Contents("/model", "markers, Lines"), (std::vector<Found>{{"line", line_}, {"marker", marker_}}));
  EXPECT_EQ(Contents("/model", "subsegments").size(), 3u);  // includes count as subsegments
  EXPECT_EQ(Contents("/model", "everything, no geometry, no include"),
            (std::vector<Found>{{"segment", alpha_}, {"segment", beta_}}));
  EXPECT_EQ(Contents("/model", "").size(), 6u);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Searches, SpecificationsTakeWildcardsListsAndAliases) {
  EXPECT_EQ(Segments("/model/*"), (std::vector<std::string>{"/model/alpha", "/model/beta"}));
  EXPECT_EQ(Segments("/model/%eta, /model/alpha"), (std::vector<std::string>{"/model/beta", "/model/alpha"}));
  EXPECT_EQ(Segments("/model/..."),
            (std::vector<std::string>{"/model", "/model/alpha", "/model/alpha/deep", "/model/beta"}));
  EXPECT_EQ(Segments("/model/(alpha,beta)/deep"), (std::vector<std::string>{"/model/alpha/deep"}));
  EXPECT_EQ(Segments("?Include Library"), (std::vector<std::string>{"/include library"}));
  EXPECT_TRUE(Segments("/model/gamma").empty());  // searching never creates
  HC_Open_Segment_By_Key(model_);
  EXPECT_EQ(Segments("*"), (std::vector<std::string>{"/model/alpha", "/model/beta"}));
  EXPECT_EQ(Contents(".", "segment").size(), 2u);
  EXPECT_EQ(Contents("...", "segment").size(), 3u);  // designated segments are not reported
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Searches, AnonymousSegmentsAreFoundByWildcardAndReopenByPath) {
  HC_Open_Segment("/model");
  const long long anonymous = HC_Open_Segment("");
  HC_Close_Segment();
  HC_Close_Segment();
  const auto found = Segments("/model/*");
  ASSERT_EQ(found.size(), 3u);
  EXPECT_EQ(HC_Open_Segment(found[2].c_str()), anonymous);
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Searches, ResultsAreASnapshotAndSearchesNest) {
  HC_Begin_Contents_Search("/model", "geometry");
  HC_Delete_By_Key(marker_);
  int count = 0;
  HC_Show_Contents_Count(&count);
  EXPECT_EQ(count, 3);
  char type[64];
  long long key = 0;
  ASSERT_TRUE(HC_Find_Contents(type, &key));
  HC_Begin_Contents_Search("/model", "segments");
  EXPECT_EQ(AllContents().size(), 2u);
  HC_End_Contents_Search();
  ASSERT_TRUE(HC_Find_Contents(type, &key));
  EXPECT_EQ(key, marker_);  // deleted meanwhile, still reported
  ASSERT_TRUE(HC_Find_Contents(type, &key));
  std::strcpy(type, "untouched");
  key = -1;
  EXPECT_FALSE(HC_Find_Contents(type, &key));
  EXPECT_STREQ(type, "untouched");
  EXPECT_EQ(key, -1);
  HC_End_Contents_Search();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Searches, MistakesReportButKeepBracketsPaired) {
  HC_Begin_Contents_Search("/model", "geometry, gizmos");
  int count = -1;
  HC_Show_Contents_Count(&count);
  EXPECT_EQ(count, 0);
  HC_End_Contents_Search();
  HC_Begin_Segment_Search("relative/with/nothing/open");
  HC_End_Segment_Search();
  HC_End_Segment_Search();
  char path[64];
  EXPECT_FALSE(HC_Find_Segment(path));
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 4u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryOption);
  EXPECT_EQ(reports[1].category, graphics::kCategoryName);
  EXPECT_EQ(reports[2].category, graphics::kCategorySearch);
  EXPECT_EQ(reports[3].routine, "HC_Find_Segment");
}

TEST_F(Searches, OpenSegmentSearchGoesInnermostFirst) {
  HC_Open_Segment("/model");
  HC_Open_Segment("beta");
  HC_Open_Geometry(marker_);
  HC_Begin_Open_Segment_Search();
  int count = 0;
  HC_Show_Open_Segment_Count(&count);
  char path[64];
  ASSERT_TRUE(HC_Find_Open_Segment(path));
  EXPECT_STREQ(path, "/model/beta");
  HC_End_Open_Segment_Search();
  HC_Close_Geometry();
  HC_Close_Segment();
  HC_Close_Segment();
  EXPECT_EQ(count, 2);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Searches, ExistenceCountsWhatASearchWouldFind) {
  EXPECT_EQ(HC_QShow_Existence("/model", "geometry"), 3);
  EXPECT_EQ(HC_QShow_Existence("/model/*", "self"), 2);
  EXPECT_EQ(HC_Show_Existence_By_Key(beta_, "segments"), 0);
  EXPECT_EQ(HC_Show_Existence_By_Key(-7777, "self"), 0);
  EXPECT_EQ(HC_Show_Existence("self"), 0);
  HC_Open_Segment_By_Key(model_);
  EXPECT_EQ(HC_Show_Existence("self"), 1);
  EXPECT_EQ(HC_Show_Existence("include, style"), 1);
  HC_Close_Segment();
  HC_Open_Segment_By_Key(marker_);  // a dead frame: nothing, silently
  EXPECT_EQ(HC_Show_Existence("geometry"), 0);
  HC_Close_Segment();
  EXPECT_EQ(TakeReports().size(), 1u);
  EXPECT_EQ(HC_QShow_Existence("/model", "widgets"), 0);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(Searches, AttributeWordsTakeEitherNumberAndTheRootHoldsEveryDefault) {
  HC_Open_Segment_By_Key(model_);
  HC_Set_Conditions("day");
  EXPECT_EQ(HC_Show_Existence("condition"), 1);
  EXPECT_EQ(HC_Show_Existence("conditions"), 1);
  EXPECT_EQ(HC_Show_Existence("color"), 0);
  HC_Close_Segment();
  // A walk up the owners for a set colour ends at the root at the latest.
  EXPECT_EQ(HC_QShow_Existence("/", "color"), 1);
  EXPECT_EQ(HC_QShow_Existence("/", "color, no color"), 0);
  EXPECT_EQ(HC_QShow_Existence("/", "color = faces"), 0);
  EXPECT_TRUE(TakeReports().empty());
}

}  // namespace
