// ZDbAtTransform and ZDbAtTextureTransform: guards and brackets through the
// recording manager, and matrices composed by the engine.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "attribute_fixture.h"
#include "key_path_recorder.h"
#include "sceneward/scene/attributes/zdb_at_texture_transform.h"
#include "sceneward/scene/attributes/zdb_at_transform.h"
#include "support/engine_error_log.h"

namespace {

void ExpectNear(ZGeoPoint const& expected, ZGeoPoint const& actual) {
  EXPECT_NEAR(expected.x, actual.x, 1e-4f);
  EXPECT_NEAR(expected.y, actual.y, 1e-4f);
  EXPECT_NEAR(expected.z, actual.z, 1e-4f);
}

class TransformTest : public AttributeTest {
 protected:
  TransformTest() : child_(MakeChild("child")) { recorder_.ClearCalls(); }

  ZDbEnSegment child_;
  EngineErrorLog log_;
};

TEST_F(TransformTest, InvalidSegmentMakesNoCallAndReadsTheIdentity) {
  const ZDbEnSegment none;
  const ZGeoMatrix shift = ZGeoMatrix().Translate(ZGeoPoint(1, 2, 3));
  ZDbAtTransform model = none.Transform();
  model.Set(shift);
  model.Rotate(90, 0, 0);
  model.Scale(2, 2, 2);
  model.Translate(ZGeoPoint(1, 0, 0));
  model.UnSet();
  ZDbAtTextureTransform texture = none.TextureTransform();
  texture.Set(shift);
  texture.Append(shift);
  texture.Rotate(90, 0, 0);
  texture.Scale(2, 2, 2);
  texture.Translate(ZGeoPoint(1, 0, 0));
  texture.UnSet();
  for (ZGeoMatrix const& m :
       {model.Get(), model.GetNet({scene_}), texture.Get(), texture.GetNet()}) {
    EXPECT_TRUE(m.IsIdentity());
  }
  EXPECT_TRUE(recorder_.Calls().empty());
}

TEST_F(TransformTest, WithoutALocalMatrixOnlyTheExistenceTestIsMade) {
  EXPECT_TRUE(child_.Transform().Get().IsIdentity());
  child_.Transform().UnSet();
  EXPECT_TRUE(child_.TextureTransform().Get().IsIdentity());
  child_.TextureTransform().UnSet();
  EXPECT_EQ(recorder_.CountOf("HC_Show_Existence"), 4);
  EXPECT_EQ(GraphicsCalls().size(), 12u);  // four brackets of three calls

  child_.Transform().Translate(ZGeoPoint(1, 0, 0));
  recorder_.ClearCalls();
  child_.Transform().UnSet();
  EXPECT_EQ(GraphicsCalls(), Guarded("HC_UnSet_Modelling_Matrix"));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(TransformTest, MovesAccumulateInTheEngine) {
  ZDbAtTransform model = scene_.Transform();
  model.Rotate(0, 0, 90);
  model.Translate(ZGeoPoint(1, 0, 0));
  Calls twoBrackets = Bracket("HC_Rotate_Object");
  for (std::string const& call : Bracket("HC_Translate_Object")) twoBrackets.push_back(call);
  EXPECT_EQ(GraphicsCalls(), twoBrackets);
  // Turned a quarter about Z first, then shifted along X.
  ExpectNear(ZGeoPoint(1, 1, 0), model.Get().TransformPoint(ZGeoPoint(1, 0, 0)));
  model.Scale(2, 3, 1);
  ExpectNear(ZGeoPoint(2, 3, 0), model.Get().TransformPoint(ZGeoPoint(1, 0, 0)));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(TransformTest, MatrixCopiedFromOneSegmentToAnother) {
  ZGeoMatrix turned(0.5f, ZGeoPoint(1, 2, 3));
  turned.SetTranslation(ZGeoPoint(4, -5, 6));
  child_.Transform().Set(turned);
  const ZDbEnSegment other = MakeChild("other");
  other.Transform().Set(child_.Transform().Get());
  EXPECT_TRUE(other.Transform().Get().Equals(turned));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(TransformTest, NetMatrixAppliesTheChildBeforeItsOwners) {
  scene_.Transform().Translate(ZGeoPoint(10, 0, 0));
  child_.Transform().Scale(2, 2, 2);
  recorder_.ClearCalls();
  const ZGeoMatrix net = child_.Transform().GetNet({});
  EXPECT_EQ(GraphicsCalls(), Calls{"HC_PShow_Net_Modelling_Matrix"});  // no segment opened
  ExpectNear(ZGeoPoint(12, 0, 0), net.TransformPoint(ZGeoPoint(1, 0, 0)));

  const long long keys[] = {child_.GetID()};
  EXPECT_TRUE(ZDbAtTransform::GetAlongPath(1, keys).Equals(net));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(TransformTest, NetMatrixAlongAPathCrossesAnInclude) {
  const ZDbEnSegment library = MakeChild("library");
  const ZDbEnSegment viewer = MakeChild("viewer");
  ::HC_Open_Segment_By_Key(viewer.GetID());
  ::HC_Include_Segment_By_Key(library.GetID());
  ::HC_Close_Segment();
  library.Transform().Translate(ZGeoPoint(1, 0, 0));
  viewer.Transform().Rotate(0, 0, 90);

  const ZGeoMatrix throughViewer = library.Transform().GetNet({viewer});
  ExpectNear(ZGeoPoint(0, 1, 0), throughViewer.TransformPoint(ZGeoPoint(0, 0, 0)));
  const ZGeoMatrix owned = library.Transform().GetNet({});
  ExpectNear(ZGeoPoint(1, 0, 0), owned.TransformPoint(ZGeoPoint(0, 0, 0)));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(TransformTest, NetMatrixWithAnEmptyPathAsksForTheOwnKeyAlone) {
  auto* paths = new KeyPathRecorder;
  entry_.SetManager(paths);  // replaces, and frees, the fixture's recorder
  child_.Transform().GetNet({});
  const std::vector<std::vector<long long>> expected = {{child_.GetID()}};
  EXPECT_EQ(paths->paths_, expected);
}

TEST_F(TransformTest, OffAxisRotationNeedsNoSegment) {
  const ZGeoMatrix quarter = ZDbAtTransform::ComputeOffaxisRotation(ZGeoPoint(0, 0, 2), 90);
  EXPECT_EQ(GraphicsCalls(), Calls{"HC_Compute_Offaxis_Rotation"});
  ExpectNear(ZGeoPoint(0, 1, 0), quarter.TransformPoint(ZGeoPoint(1, 0, 0)));
}

TEST_F(TransformTest, TextureMatrixAppendsAndIsInheritedBelow) {
  ZDbAtTextureTransform texture = scene_.TextureTransform();
  texture.Translate(ZGeoPoint(0.5f, 0, 0));
  texture.Append(ZGeoMatrix().Scale(2));
  ExpectNear(ZGeoPoint(3, 0, 0), texture.Get().TransformPoint(ZGeoPoint(1, 0, 0)));
  child_.TextureTransform().Rotate(0, 0, 90);
  recorder_.ClearCalls();
  const ZGeoMatrix net = child_.TextureTransform().GetNet();
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_PShow_Net_Texture_Matrix"));
  // The child's quarter turn first, then the owner's shift and scale.
  ExpectNear(ZGeoPoint(1, 2, 0), net.TransformPoint(ZGeoPoint(1, 0, 0)));
  EXPECT_TRUE(log_.Reports().empty());
}

}  // namespace
