// The colour attribute: plain sets and shows, and the net diffuse colour and
// transparency that an entity shows, read through the engine down the tree,
// through a style and along an include path. What the engine never answers
// (the sentinel and the "ignore color" spellings) is scripted.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "attribute_fixture.h"
#include "sceneward/foundation/zcolor.h"
#include "sceneward/scene/attributes/zdb_at_color.h"
#include "support/engine_error_log.h"

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
const ZColor kFallback(10, 20, 30, 40);

std::string Text(ZString const& s) { return s.GetAsMBCS(); }

class ColorAttributeTest : public AttributeTest {
 protected:
  EngineErrorLog log_;
};

TEST_F(ColorAttributeTest, NetColourReachesTwoLevelsDown) {
  const ZDbEnSegment grandchild = MakeChild("a/b");
  scene_.Color().Set("faces=red");
  recorder_.ClearCalls();
  EXPECT_EQ(grandchild.Color().GetOneNetByValue("faces", true, false, kFallback),
            ZColor(255, 0, 0));
  // Without the walk, a colourless entity gives the fallback unasked.
  recorder_.ClearCalls();
  EXPECT_EQ(grandchild.Color().GetOneNetByValue("faces", false, kFallback), kFallback);
  EXPECT_EQ(recorder_.CountOf("HC_PShow_Net_Explicit_Color"), 0);
  // Its own colour cut off from its owners.
  grandchild.Color().Set("edges=blue");
  EXPECT_EQ(grandchild.Color().GetOneNetByValue("edges", false, kFallback), ZColor(0, 0, 255));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(ColorAttributeTest, NetColourComesThroughAStyle) {
  const ZDbEnSegment style = MakeChild("styles/green faces");
  const ZDbEnSegment styled = MakeChild("owner/styled");
  style.Color().Set("faces=green");
  ::HC_Open_Segment_By_Key(styled.GetID());
  ::HC_Style_Segment_By_Key(style.GetID());
  ::HC_Close_Segment();
  // Nothing of its own: without the walk the style is not even asked.
  EXPECT_EQ(styled.Color().GetOneNetByValue("faces", false, false, kFallback), kFallback);
  MakeChild("owner").Color().Set("faces=red");
  EXPECT_EQ(styled.Color().GetOneNetByValue("faces", true, false, kFallback), ZColor(0, 255, 0));
  // A colour of its own for edges; the style still gives the faces, also
  // with the owners cut off.
  styled.Color().Set("edges=blue");
  EXPECT_EQ(styled.Color().GetOneNetByValue("faces", false, false, kFallback), ZColor(0, 255, 0));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(ColorAttributeTest, NetColourAlongAnIncludePath) {
  const ZDbEnSegment part = MakeSegment("/include library/attribute handles part");
  const ZDbEnSegment includer = MakeChild("includer");
  part.Color().Set("lines=red");
  includer.Color().Set("faces=(r=0 g=0.5 b=1)");
  ::HC_Open_Segment_By_Key(includer.GetID());
  ::HC_Include_Segment_By_Key(part.GetID());
  ::HC_Close_Segment();
  recorder_.ClearCalls();
  // The scene segment has no colour of its own and drops out of the path.
  const std::vector<ZDbEntity> path{part, includer, scene_};
  EXPECT_EQ(part.Color().GetOneNetByValue("faces", path, false, kFallback), ZColor(0, 127, 255));
  EXPECT_EQ(recorder_.CountOf("HC_PShow_Net_Explicit_Color"), 3);
  // Outside the path the part only inherits the library's default.
  EXPECT_EQ(part.Color().GetOneNetByValue("faces", true, false, kFallback), ZColor(0, 0, 0));
  EXPECT_EQ(part.Color().GetOneNetByValue("faces", std::vector<ZDbEntity>{}, false, kFallback),
            kFallback);
  EXPECT_EQ(
      part.Color().GetOneNetByValue("faces", std::vector<ZDbEntity>{scene_}, false, kFallback),
      kFallback);
  ::HC_Delete_By_Key(part.GetID());
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(ColorAttributeTest, AlphaComesFromTheTransmission) {
  const ZDbEnSegment glass = MakeChild("glass");
  glass.Color().Set("faces=(diffuse=white, transmission=(r=0.25 g=0.25 b=0.25))");
  EXPECT_EQ(glass.Color().GetOneNetByValue("faces", false, true, kFallback),
            ZColor(255, 255, 255, 191));
  // Without alpha the fallback's alpha is not kept either.
  EXPECT_EQ(glass.Color().GetOneNetByValue("faces", false, false, kFallback),
            ZColor(255, 255, 255));
  const ZDbEnSegment opaque = MakeChild("opaque");
  opaque.Color().Set("faces=white");
  EXPECT_EQ(opaque.Color().GetOneNetByValue("faces", false, true, kFallback),
            ZColor(255, 255, 255));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(ColorAttributeTest, LocalReadsByValueAreOpaque) {
  const ZDbEnSegment plain = MakeChild("plain");
  recorder_.ClearCalls();
  EXPECT_EQ(plain.Color().GetOneByValue("faces"), ZColor(0, 0, 0));
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_Show_Existence"));
  ZString names("untouched");
  ZColor color = kFallback;
  plain.Color().GetByValue(names, color);
  EXPECT_EQ(Text(names), "untouched");
  EXPECT_EQ(color, kFallback);

  // The colour's alpha is not passed on, nor its validity.
  plain.Color().SetOne("faces", ZColor(255, 0, 0, 10));
  EXPECT_EQ(plain.Color().GetOneByValue("faces"), ZColor(255, 0, 0));
  plain.Color().SetOne("edges", ZColor::InvalidColor);
  EXPECT_EQ(plain.Color().GetOneByValue("edges"), ZColor(0, 0, 0));
  plain.Color().UnSet();
  plain.Color().SetOne("faces", ZColor(0, 51, 255));
  plain.Color().GetByValue(names, color);
  EXPECT_EQ(Text(names), "faces");
  EXPECT_EQ(color, ZColor(0, 51, 255));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(ColorAttributeTest, TextFormsSetShowAndRemove) {
  const ZDbEnSegment plain = MakeChild("plain");
  plain.Color().Set(ZString());
  EXPECT_FALSE(plain.Color().IsAttributeSet(ZString()));
  plain.Color().SetOne("faces", "red");
  plain.Color().SetOne("edges", "blue");
  EXPECT_EQ(Text(plain.Color().GetOne("faces")), "red");
  plain.Color().UnSetOne("faces");
  EXPECT_EQ(Text(plain.Color().GetOne("faces")), "");
  EXPECT_EQ(Text(plain.Color().Get()), "edges=blue");
  EXPECT_TRUE(log_.Reports().empty());
  // Only the key guards the text form: an empty name still reaches the engine.
  recorder_.ClearCalls();
  plain.Color().SetOne(ZString(), ZString());
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_Set_Color"));
}

// Answers every explicit colour query with a scripted channel.
class ScriptedChannelManager : public RecordingManager {
 public:
  bool HC_PShow_Net_Explicit_Color(int, long long const*, char const*, char const* channel,
                                   float* rgb, char*, char* options) override {
    Record("HC_PShow_Net_Explicit_Color");
    Channel const& answer = std::string(channel) == "transmission" ? transmission : diffuse;
    if (answer.writes) std::copy_n(answer.rgb, 3, rgb);
    std::copy_n(answer.options.c_str(), answer.options.size() + 1, options);
    return true;
  }

  struct Channel {
    bool writes = true;
    float rgb[3] = {0, 0, 0};
    std::string options;
  };
  Channel diffuse;
  Channel transmission;
};

class ScriptedColorTest : public ColorAttributeTest {
 protected:
  ScriptedColorTest() : scripted_(new ScriptedChannelManager) {
    scene_.Color().Set("faces=red");
    entry_.SetManager(scripted_);  // replaces, and frees, the fixture's recorder
  }

  bool Find(ZDbAtColor::Type type, ZDbAtColor::ColorInfo& info) const {
    return scene_.Color().FindSpecific("faces", type, info);
  }
  void ScriptDiffuse(float r, float g, float b, std::string const& options = "") {
    scripted_->diffuse.rgb[0] = r;
    scripted_->diffuse.rgb[1] = g;
    scripted_->diffuse.rgb[2] = b;
    scripted_->diffuse.options = options;
  }

  ScriptedChannelManager* scripted_;
};

TEST_F(ScriptedColorTest, IgnoreColorInAnyCaseMakesTheChannelAbsent) {
  ZDbAtColor::ColorInfo info{{7, 7, 7, 7}};
  ScriptDiffuse(1, 0, 0, "FIndex,Ignore Color");
  EXPECT_FALSE(Find(ZDbAtColor::kDiffuseColor, info));
  ScriptDiffuse(1, 0, 0, "ignore color");
  EXPECT_FALSE(Find(ZDbAtColor::kDiffuseColor, info));
  EXPECT_EQ(info.f[0], 7);
  ScriptDiffuse(1, 0, 0, "FIndex");
  EXPECT_TRUE(Find(ZDbAtColor::kDiffuseColor, info));
  EXPECT_EQ(info.f[0], 1);
  EXPECT_TRUE(std::isnan(info.f[3]));
}

TEST_F(ScriptedColorTest, MinusOneSentinelDependsOnGreen) {
  ZDbAtColor::ColorInfo info{};
  ScriptDiffuse(-1, 0.5f, -1);
  EXPECT_FALSE(Find(ZDbAtColor::kDiffuseColor, info));
  ScriptDiffuse(-1, 1, -1);
  EXPECT_TRUE(Find(ZDbAtColor::kDiffuseColor, info));
  ScriptDiffuse(-1, kNaN, -1);
  EXPECT_TRUE(Find(ZDbAtColor::kDiffuseColor, info));
  ScriptDiffuse(kNaN, 0, -1);
  EXPECT_FALSE(Find(ZDbAtColor::kDiffuseColor, info));
  EXPECT_FALSE(Find(static_cast<ZDbAtColor::Type>(3), info));
}

TEST_F(ScriptedColorTest, UnansweredQueryGivesTheInvalidColour) {
  scripted_->diffuse.writes = false;
  const ZColor net = scene_.Color().GetOneNetByValue("faces", false, kFallback);
  EXPECT_FALSE(net.IsValid());
  EXPECT_EQ(net, ZColor::InvalidColor);
}

TEST_F(ScriptedColorTest, AbsentDiffuseKeepsTheFallbackWithTheTransmissionAlpha) {
  ScriptDiffuse(0, 0, 0, "ignore color");
  scripted_->transmission.rgb[0] = 0.25f;
  EXPECT_EQ(scene_.Color().GetOneNetByValue("faces", false, true, kFallback),
            ZColor(10, 20, 30, 191));
  scripted_->transmission.options = "ignore color";
  EXPECT_EQ(scene_.Color().GetOneNetByValue("faces", false, true, kFallback), kFallback);
  EXPECT_EQ(scripted_->CountOf("HC_PShow_Net_Explicit_Color"), 4);
}

}  // namespace
