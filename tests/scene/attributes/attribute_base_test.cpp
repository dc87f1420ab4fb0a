// The attribute base: the existence test, the walk up the tree, the key
// path of path reads, the guards on an invalid entity, and what a handle
// borrows from its entity.
#include <gtest/gtest.h>

#include <vector>

#include "attribute_fixture.h"
#include "sceneward/scene/attributes/zdb_at_color.h"
#include "sceneward/scene/attributes/zdb_at_condition.h"
#include "sceneward/scene/attributes/zdb_at_driver_options.h"
#include "sceneward/scene/attributes/zdb_at_rendering_options.h"
#include "sceneward/scene/attributes/zdb_at_visibility.h"
#include "support/engine_error_log.h"

namespace {

// Opens up the protected key path of the base.
class KeyPathProbe : public ZDbAttribute {
 public:
  explicit KeyPathProbe(ZDbEnSegment const& segment)
      : ZDbAttribute(kAttributeVisibility, segment, "visibility") {}
  using ZDbAttribute::GetSegmentIDs;
};

using AttributeBaseTest = AttributeTest;

TEST_F(AttributeBaseTest, HandleKnowsItsKindEntityAndName) {
  const ZDbAtVisibility visibility = scene_.Visibility();
  EXPECT_EQ(visibility.GetAttributeType(), kAttributeVisibility);
  EXPECT_EQ(&visibility.GetSegment(), &scene_);
  EXPECT_STREQ(visibility.GetAttributeName().GetAsMBCS(), "visibility");
  EXPECT_EQ(&scene_.Color().GetEntity(), &scene_);
  EXPECT_STREQ(scene_.DriverOptions().GetAttributeName().GetAsMBCS(), "driver options");
}

TEST_F(AttributeBaseTest, InvalidEntityMakesNoGraphicsCall) {
  const ZDbEnSegment invalid;
  EXPECT_FALSE(invalid.Visibility().IsAttributeSet(ZString()));
  EXPECT_FALSE(invalid.Color().IsAttributeSet(true, ZString()));
  EXPECT_STREQ(invalid.Visibility().Get().GetAsMBCS(), "");
  EXPECT_STREQ(invalid.Visibility().GetOneNet("faces").GetAsMBCS(), "");
  EXPECT_STREQ(invalid.RenderingOptions().GetOne("attribute lock").GetAsMBCS(), "");
  EXPECT_STREQ(invalid.Color().Get().GetAsMBCS(), "");
  invalid.Visibility().Set("faces=off");
  invalid.Visibility().UnSet();
  invalid.Condition().UnSetOne("day");
  invalid.RenderingOptions().SetOneAttributeLock("color");
  invalid.RenderingOptions().UnSetOneAttributeLock("color");
  const ZColor fallback(1, 2, 3, 4);
  EXPECT_EQ(invalid.Color().GetOneNetByValue("faces", true, true, fallback), fallback);
  EXPECT_EQ(
      invalid.Color().GetOneNetByValue("faces", std::vector<ZDbEntity>{scene_}, true, fallback),
      fallback);
  EXPECT_TRUE(recorder_.Calls().empty());
}

TEST_F(AttributeBaseTest, ExistenceTestAsksForTheNameOrTheGivenFilter) {
  scene_.RenderingOptions().Set("hsra=z-buffer");
  recorder_.ClearCalls();
  EXPECT_TRUE(scene_.RenderingOptions().IsAttributeSet(ZString()));
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_Show_Existence"));
  // A narrower filter tests one option, not the attribute as a whole.
  EXPECT_FALSE(scene_.RenderingOptions().IsAttributeSet("rendering options='attribute lock'"));
  scene_.RenderingOptions().SetOneAttributeLock("color");
  EXPECT_TRUE(scene_.RenderingOptions().IsAttributeSet("rendering options='attribute lock'"));
  EXPECT_FALSE(scene_.Visibility().IsAttributeSet(ZString()));
}

TEST_F(AttributeBaseTest, WalkFindsAColourAboveAndStopsWhereItIsFound) {
  const ZDbEnSegment parent = MakeChild("parent");
  const ZDbEnSegment child = MakeChild("parent/child");
  parent.Color().Set("faces=red");
  recorder_.ClearCalls();
  EXPECT_FALSE(child.Color().IsAttributeSet(false, ZString()));
  EXPECT_EQ(recorder_.CountOf("HC_Show_Existence"), 1);
  recorder_.ClearCalls();
  EXPECT_TRUE(child.Color().IsAttributeSet(true, ZString()));
  EXPECT_EQ(recorder_.CountOf("HC_Show_Existence"), 2);
  // Every handle kind probes the colour, not its own attribute.
  EXPECT_TRUE(child.Visibility().IsAttributeSet(true, ZString()));
}

TEST_F(AttributeBaseTest, WalkNeverTestsTheIncludeLibraryFromBelow) {
  EngineErrorLog log;
  const ZDbEnSegment library = MakeSegment("/include library");
  const ZDbEnSegment part = MakeSegment("/include library/attribute handles part");
  ZDbAtColor(library).Set("faces=blue");
  EXPECT_FALSE(part.Color().IsAttributeSet(true, ZString()));
  // The library itself is tested once, since the stop comes after a test.
  EXPECT_TRUE(library.Color().IsAttributeSet(true, ZString()));
  ZDbAtColor(library).UnSet();
  ::HC_Delete_By_Key(part.GetID());
  EXPECT_TRUE(log.Reports().empty());
}

TEST_F(AttributeBaseTest, KeyPathPutsTheOwnKeyFirst) {
  const ZDbEnSegment a = MakeChild("a");
  const ZDbEnSegment b = MakeChild("b");
  std::vector<long long> ids{7, 8, 9, 10};
  KeyPathProbe(scene_).GetSegmentIDs(ids, {});
  EXPECT_EQ(ids, std::vector<long long>{scene_.GetID()});
  KeyPathProbe(scene_).GetSegmentIDs(ids, {a, ZDbEnSegment(), b});
  EXPECT_EQ(ids, (std::vector<long long>{scene_.GetID(), a.GetID(), -1, b.GetID()}));
}

TEST_F(AttributeBaseTest, CopiesBorrowTheSameEntityAndSeeItsKey) {
  ZDbEnSegment segment = MakeChild("borrowed");
  segment.Visibility().Set("faces=off");
  const ZDbAtVisibility* original = new ZDbAtVisibility(segment);
  const ZDbAtVisibility copy(*original);
  delete original;
  EXPECT_EQ(&copy.GetEntity(), &segment);
  EXPECT_STREQ(copy.GetOne("faces").GetAsMBCS(), "off");
  segment.Delete();
  recorder_.ClearCalls();
  EXPECT_STREQ(copy.Get().GetAsMBCS(), "");
  EXPECT_TRUE(recorder_.Calls().empty());
}

}  // namespace
