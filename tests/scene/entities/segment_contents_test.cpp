// Moving a segment's contents, and finding the styles a segment uses.
#include <gtest/gtest.h>

#include "entity_test_fixture.h"
#include "hc/hc.h"
#include "sceneward/scene/attributes/zdb_at_transform.h"
#include "sceneward/scene/entities/zdb_en_segment.h"
#include "sceneward/scene/search/zdb_entity_vec.h"

namespace {

using SegmentContentsTest = EntityTest;

TEST_F(SegmentContentsTest, MoveTakesGeometryAndTransformButLeavesSubsegments) {
  ZDbEnSegment source = MakeSegment("source");
  ZDbEnSegment target = MakeSegment("target");
  const long long line = InsertLine(source);
  InsertLine(source, 1);
  MakeSegment("source/below");
  ::HC_Open_Segment_By_Key(source.GetID());
  ::HC_Translate_Object(3, 4, 5);
  ::HC_Close_Segment();

  target.MoveSegmentContents(source);

  ZDbEntityVec left;
  EXPECT_EQ(source.EntitySearch(left, -2, ".", false), 0);
  EXPECT_TRUE(source.DoesSubSegmentExist("below"));
  EXPECT_EQ(target.EntitySearch(left, -2, ".", false), 2);
  EXPECT_EQ(ZDbEntity(line).GetParent(), target);
  const ZGeoPoint moved = ZDbAtTransform(target).Get().GetTranslation();
  EXPECT_FLOAT_EQ(moved.x, 3);
  EXPECT_FLOAT_EQ(moved.z, 5);
  EXPECT_FLOAT_EQ(ZDbAtTransform(source).Get().GetTranslation().y, 4);
}

TEST_F(SegmentContentsTest, FindsTheStyleEntityOfAStyleSegment) {
  ZDbEnSegment styled = MakeSegment("styled");
  ZDbEnSegment red = MakeSegment("/entity handles/styles/red");
  ZDbEnSegment blue = MakeSegment("/entity handles/styles/blue");
  ZDbEnSegment unused = MakeSegment("/entity handles/styles/unused");
  ::HC_Open_Segment_By_Key(styled.GetID());
  ::HC_Style_Segment_By_Key(red.GetID());
  const long long blueStyle = ::HC_Style_Segment_By_Key(blue.GetID());
  ::HC_Close_Segment();

  EXPECT_EQ(styled.FindStyleSegment(blue), blueStyle);
  EXPECT_TRUE(styled.IsStyledWithSegment(red));
  EXPECT_FALSE(styled.IsStyledWithSegment(unused));
  EXPECT_EQ(styled.FindStyleSegment(ZDbEnSegment()), -1);
}

}  // namespace
