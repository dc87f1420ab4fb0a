// Includes, styles and texts: the links read back with their conditions,
// styles removed from a segment, and text round trips in narrow and wide
// form.
#include <gtest/gtest.h>

#include "entity_test_fixture.h"
#include "primitive_test_support.h"
#include "sceneward/scene/entities/zdb_en_include.h"
#include "sceneward/scene/entities/zdb_en_style.h"
#include "sceneward/scene/entities/zdb_en_text.h"

namespace {

class IncludeStyleTextTest : public EntityTest {
 protected:
  ZDbEnSegment library_ = MakeSegment("library");
};

TEST_F(IncludeStyleTextTest, LinksNameTheirTargetAndCondition) {
  const ZDbEnInclude plain = scene_.IncludeSegment(library_, "");
  const ZDbEnInclude conditional = scene_.IncludeSegment(library_, "detailed");
  const ZDbEnStyle style = scene_.StyleSegment(library_, "draft");
  EXPECT_EQ(plain.GetIncludedSegment(), library_);
  EXPECT_EQ(plain.GetCondition(), "");
  EXPECT_EQ(conditional.GetIncludedSegment(), library_);
  EXPECT_EQ(conditional.GetCondition(), "detailed");
  EXPECT_EQ(style.GetStyleSegment(), library_);
  EXPECT_EQ(style.GetCondition(), "draft");

  recorder_.ClearCalls();
  EXPECT_FALSE(ZDbEnInclude().GetIncludedSegment().IsValid());
  EXPECT_FALSE(ZDbEnStyle().GetStyleSegment().IsValid());
  EXPECT_EQ(ZDbEnStyle().GetCondition(), "");
  EXPECT_EQ(recorder_.Calls(), Calls{});
}

TEST_F(IncludeStyleTextTest, RemoveStylesDeletesOnlyTheSegmentsOwnStyles) {
  scene_.StyleSegment(library_, "");
  scene_.StyleSegment(MakeSegment("other library"), "");
  scene_.IncludeSegment(library_, "");
  const ZDbEnSegment child = scene_.GetSubSegment("child");
  child.StyleSegment(library_, "");

  recorder_.ClearCalls();
  ZDbEnStyle::RemoveStylesFromSegment(scene_);
  EXPECT_EQ(recorder_.CountOf("HC_Delete_By_Key"), 2);
  EXPECT_EQ(CountContents(scene_, "style"), 0);
  EXPECT_EQ(CountContents(scene_, "include"), 1);
  EXPECT_EQ(CountContents(child, "style"), 1);

  recorder_.ClearCalls();
  ZDbEnStyle::RemoveStylesFromSegment(ZDbEnSegment());
  EXPECT_EQ(recorder_.Calls(), Calls{});
}

TEST_F(IncludeStyleTextTest, TextComesBackWithItsPosition) {
  const ZDbEnText narrow = scene_.InsertText("Hello", ZGeoPoint(1, 2, 3));
  EXPECT_EQ(narrow.GetText(), "Hello");
  EXPECT_TRUE(SamePoint(narrow.GetPosition(), ZGeoPoint(1, 2, 3)));

  const ZString greek(u"\u03b1\u03b2\u03b3 = 3");
  const ZDbEnText wide = scene_.InsertText(greek, ZGeoPoint(0, -1, 0));
  EXPECT_EQ(wide.GetText(), greek);
  EXPECT_TRUE(SamePoint(wide.GetPosition(), ZGeoPoint(0, -1, 0)));
}

TEST_F(IncludeStyleTextTest, InvalidTextHandleGivesEmptyTextWithoutAnyCall) {
  recorder_.ClearCalls();
  EXPECT_EQ(ZDbEnText().GetText(), "");
  EXPECT_TRUE(SamePoint(ZDbEnText().GetPosition(), ZGeoPoint()));
  EXPECT_EQ(recorder_.Calls(), Calls{});
}

}  // namespace
