// Contents and segment searches as scopes, and the owning entity list they
// fill.
#include <gtest/gtest.h>

#include <memory>

#include "../entities/entity_test_fixture.h"
#include "hc/hc.h"
#include "sceneward/scene/search/zdb_entity_search.h"
#include "sceneward/scene/search/zdb_entity_vec.h"
#include "sceneward/scene/search/zdb_segment_search.h"

namespace {

using EntitySearchTest = EntityTest;

TEST_F(EntitySearchTest, EntityVecGuardsItsIndexAndKeepsStorageOnClear) {
  for (int i = 0; i < 3; ++i) InsertLine(scene_, static_cast<float>(i));
  ZDbEntityVec lines;
  lines.Clear();
  EXPECT_EQ(lines.Count(), 0);

  ASSERT_EQ(scene_.EntitySearch(lines, kEntityLine, ".", true), 3);
  EXPECT_EQ(lines.Capacity(), 3);  // reserved exactly
  EXPECT_EQ(lines.GetAt(-1), nullptr);
  EXPECT_EQ(lines.GetAt(3), nullptr);
  ASSERT_NE(lines.GetAt(2), nullptr);
  EXPECT_EQ(lines.GetAt(2)->GetType(), kEntityLine);

  // Appending grows by half, or to what is needed.
  ASSERT_EQ(scene_.EntitySearch(lines, "line", ".", true), 3);
  EXPECT_EQ(lines.Count(), 6);
  EXPECT_EQ(lines.Capacity(), 6);
  EXPECT_EQ(lines.GetAt(0)->GetID(), lines.GetAt(3)->GetID());

  lines.Clear();
  EXPECT_EQ(lines.Count(), 0);
  EXPECT_EQ(lines.Capacity(), 6);
  EXPECT_EQ(scene_.EntitySearch(lines, kEntityLine, ".", true), 3);
  EXPECT_EQ(lines.Count(), 3);
}

TEST_F(EntitySearchTest, EntitiesComeBackAsTheirMostDerivedClass) {
  InsertLine(scene_);
  MakeSegment("child");
  ZDbEntityVec found;
  ASSERT_EQ(scene_.EntitySearch(found, -1, ".", true), 2);
  int segments = 0;
  for (int i = 0; i < found.Count(); ++i) {
    if (dynamic_cast<ZDbEnSegment*>(found.GetAt(i)) != nullptr) ++segments;
  }
  EXPECT_EQ(segments, 1);
  EXPECT_EQ(scene_.EntitySearch(found, -2, ".", false), 1);
  EXPECT_EQ(scene_.EntitySearch(found, kEntitySegment, ".", false), 1);
}

TEST_F(EntitySearchTest, EmptySearchEndsInAPlainInvalidEntity) {
  ZDbEntitySearch search(scene_, -2, ".", false);
  EXPECT_EQ(search.Count(), 0);
  EXPECT_EQ(search.FindNextID(), -1);
  long long id = 7;
  ZString word("stale");
  search.RetrieveNext(id, word);
  EXPECT_EQ(id, -1);
  EXPECT_TRUE(word.IsEmpty());
  std::unique_ptr<ZDbEntity> past(search.FindNext());
  ASSERT_NE(past, nullptr);
  EXPECT_FALSE(past->IsValid());
}

TEST_F(EntitySearchTest, RetainingSearchOwnsWhatItFinds) {
  const long long line = InsertLine(scene_);
  ZDbEntitySearch search(scene_, "line", ".", true);
  ASSERT_EQ(search.Count(), 1);
  ZDbEntity* found = search.FindNext();
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->GetID(), line);
  EXPECT_EQ(found->GetTypeNames(), "line");
  EXPECT_FALSE(search.FindNext()->IsValid());
}

TEST_F(EntitySearchTest, ContentsSearchOutlivesItsBracket) {
  InsertLine(scene_);
  recorder_.ClearCalls();
  {
    ZDbEntitySearch search(scene_, "line", ".", false);
    EXPECT_EQ(GraphicsCalls(), (Calls{"HC_Open_Segment_By_Key", "HC_Begin_Contents_Search",
                                      "HC_Close_Segment"}));
    EXPECT_NE(search.FindNextID(), -1);
    recorder_.ClearCalls();
  }
  EXPECT_EQ(GraphicsCalls(), (Calls{"HC_End_Contents_Search"}));
}

// Without a valid start the search runs on the open segment.
TEST_F(EntitySearchTest, InvalidStartSearchesTheOpenSegment) {
  const long long line = InsertLine(scene_);
  ::HC_Open_Segment_By_Key(scene_.GetID());
  recorder_.ClearCalls();
  {
    ZDbEntitySearch search(ZDbEntity(), kEntityLine, ".", false);
    EXPECT_EQ(search.FindNextID(), line);
  }
  {
    ZDbSegmentSearch segments(ZDbEnSegment(), "*");
    EXPECT_EQ(segments.Count(), 0);
  }
  ::HC_Close_Segment();
  EXPECT_EQ(GraphicsCalls(),
            (Calls{"HC_Begin_Contents_Search", "HC_Find_Contents", "HC_End_Contents_Search",
                   "HC_Begin_Segment_Search", "HC_Show_Segment_Count", "HC_End_Segment_Search"}));
}

TEST_F(EntitySearchTest, SegmentSearchEndsInAnInvalidSegment) {
  ZDbEnSegment child = MakeSegment("child");
  recorder_.ClearCalls();
  {
    ZDbSegmentSearch search(scene_, "*");
    EXPECT_EQ(GraphicsCalls(), (Calls{"HC_Open_Segment_By_Key", "HC_Begin_Segment_Search",
                                      "HC_Close_Segment"}));
    ASSERT_EQ(search.Count(), 1);
    EXPECT_EQ(search.FindNext(), child);
    recorder_.ClearCalls();
    EXPECT_FALSE(search.FindNext().IsValid());
    EXPECT_EQ(GraphicsCalls(), (Calls{"HC_Find_Segment"}));
    recorder_.ClearCalls();
  }
  EXPECT_EQ(GraphicsCalls(), (Calls{"HC_End_Segment_Search"}));
}

}  // namespace
