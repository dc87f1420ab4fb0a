// Keys: their form, their types, and what deletion does to them.
#include <set>
#include <string>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;
using engine_test::TreeSnapshot;

std::string KeyType(long long key) {
  char type[4096] = "untouched";
  HC_Show_Key_Type(key, type);
  return type;
}

std::string KeyStatus(long long key) {
  char status[4096] = "untouched";
  HC_Show_Key_Status(key, status);
  return status;
}

class KeysAndDeletion : public EngineTest {};

TEST_F(KeysAndDeletion, KeysAreNegativeDistinctAndNeverMinusOne) {
  std::set<long long> seen;
  HC_Open_Segment("/keys");
  for (int i = 0; i < 50; ++i) {
    for (long long key : {HC_Create_Segment(("s" + std::to_string(i)).c_str()), HC_Insert_Line(0, 0, 0, i, 0, 0),
                          HC_Insert_Text(0, 0, 0, "t")}) {
      EXPECT_LT(key, -1);
      EXPECT_TRUE(seen.insert(key).second);
    }
  }
  HC_Close_Segment();
}

TEST_F(KeysAndDeletion, KeyTypesNameTheirItems) {
  HC_Open_Segment("/typed");
  const long long segment = HC_Open_Segment(".");
  HC_Close_Segment();
  EXPECT_EQ(KeyType(segment), "segment");
  EXPECT_EQ(KeyType(HC_Insert_Line(0, 0, 0, 1, 1, 1)), "line");
  EXPECT_EQ(KeyType(HC_Insert_Text(0, 0, 0, "t")), "text");
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(KeysAndDeletion, DeletingASegmentInvalidatesItsWholeSubtree) {
  const long long top = HC_Create_Segment("/doomed");
  const long long child = HC_Create_Segment("/doomed/child");
  HC_Open_Segment_By_Key(child);
  const long long line = HC_Insert_Line(0, 0, 0, 1, 1, 1);
  HC_Close_Segment();
  const long long keeper = HC_Create_Segment("/keeper");

  HC_Delete_Segment("/DOOMED");
  ASSERT_TRUE(TakeReports().empty());
  for (long long gone : {top, child, line}) {
    EXPECT_EQ(KeyStatus(gone), "invalid");
    EXPECT_EQ(KeyType(gone), "");
    ASSERT_EQ(TakeReports().size(), 1u);
  }
  EXPECT_EQ(KeyStatus(keeper), "valid");
  EXPECT_TRUE(TakeReports().empty());

  // The name is free again; the new segment gets a new key.
  const long long again = HC_Create_Segment("/doomed");
  EXPECT_NE(again, top);
  EXPECT_EQ(KeyStatus(top), "invalid");
}

TEST_F(KeysAndDeletion, DeleteByKeyTakesGeometryOrSegments) {
  HC_Open_Segment("/holder");
  const long long first = HC_Insert_Line(0, 0, 0, 1, 0, 0);
  const long long second = HC_Insert_Line(0, 0, 0, 2, 0, 0);
  const long long sub = HC_Create_Segment("sub");
  HC_Close_Segment();

  HC_Delete_By_Key(first);
  HC_Delete_By_Key(sub);
  EXPECT_TRUE(TakeReports().empty());
  EXPECT_EQ(KeyStatus(first), "invalid");
  EXPECT_EQ(KeyStatus(sub), "invalid");
  EXPECT_EQ(KeyStatus(second), "valid");

  HC_Delete_By_Key(first);
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryKey);
  EXPECT_EQ(reports[0].routine, "HC_Delete_By_Key");
}

TEST_F(KeysAndDeletion, OpenSegmentsAndTheirAncestorsCannotBeDeleted) {
  HC_Open_Segment("/busy/inner");
  const std::string before = TreeSnapshot();
  HC_Delete_Segment("/busy/inner");
  HC_Delete_Segment("/busy");
  HC_Delete_Segment("/");
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 3u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryOpen);
  EXPECT_EQ(reports[1].category, graphics::kCategoryOpen);
  EXPECT_EQ(reports[2].category, graphics::kCategoryName);
  EXPECT_EQ(TreeSnapshot(), before);
  HC_Close_Segment();
  HC_Delete_Segment("/busy");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(KeysAndDeletion, ResetInvalidatesEveryKeyForGood) {
  const long long before = HC_Create_Segment("/old");
  const long long root_before = HC_Create_Segment("/");
  HC_Reset_System();
  EXPECT_EQ(KeyStatus(before), "invalid");
  EXPECT_EQ(KeyStatus(root_before), "invalid");
  const long long after = HC_Create_Segment("/old");
  EXPECT_NE(after, before);
  EXPECT_EQ(KeyStatus(before), "invalid");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(KeysAndDeletion, WildcardsAndListsDeleteEveryMatch) {
  HC_Create_Segment("/w/one");
  HC_Create_Segment("/w/two/below");
  const long long kept = HC_Create_Segment("/w/kept");
  HC_Delete_Segment("/w/(one, two)");
  EXPECT_EQ(HC_QShow_Existence("/w/*", "self"), 1);
  EXPECT_EQ(KeyStatus(kept), "valid");
  HC_Delete_Segment("/w/...");
  EXPECT_EQ(HC_QShow_Existence("/w", "self"), 0);
  EXPECT_TRUE(TakeReports().empty());
}

}  // namespace
