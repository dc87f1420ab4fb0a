// The option-string attributes: their guards and call order, what a user
// reads back from the engine, and the hand-made edit of the list of locked
// attributes.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "attribute_fixture.h"
#include "sceneward/scene/attributes/zdb_at_condition.h"
#include "sceneward/scene/attributes/zdb_at_driver_options.h"
#include "sceneward/scene/attributes/zdb_at_heuristics.h"
#include "sceneward/scene/attributes/zdb_at_rendering_options.h"
#include "sceneward/scene/attributes/zdb_at_selectability.h"
#include "sceneward/scene/attributes/zdb_at_visibility.h"
#include "support/engine_error_log.h"

namespace {

std::string Text(ZString const& s) { return s.GetAsMBCS(); }

class OptionAttributeTest : public AttributeTest {
 protected:
  OptionAttributeTest() : child_(MakeChild("child")) { recorder_.ClearCalls(); }

  ZDbEnSegment child_;
  EngineErrorLog log_;
};

TEST_F(OptionAttributeTest, EmptyOptionTextMakesNoCall) {
  const std::vector<std::function<void(ZString const&)>> setters = {
      [&](ZString const& s) { scene_.RenderingOptions().Set(s); },
      [&](ZString const& s) { scene_.Heuristics().Set(s); },
      [&](ZString const& s) { scene_.Visibility().Set(s); },
      [&](ZString const& s) { scene_.Selectability().Set(s); },
      [&](ZString const& s) { scene_.Condition().SetOne(s); },
      [&](ZString const& s) { scene_.DriverOptions().Set(s); },
  };
  for (auto const& set : setters) set(ZString());
  EXPECT_TRUE(recorder_.Calls().empty());
  // The lock setter has no such guard.
  scene_.RenderingOptions().SetOneAttributeLock(ZString());
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_Set_Rendering_Options"));
}

TEST_F(OptionAttributeTest, LocalReadsTestExistenceFirst) {
  scene_.Visibility().Set("faces=off");
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_Set_Visibility"));
  recorder_.ClearCalls();
  EXPECT_EQ(Text(scene_.Visibility().GetOne("faces")), "off");
  EXPECT_EQ(GraphicsCalls(), Guarded("HC_Show_One_Visibility"));
  recorder_.ClearCalls();
  EXPECT_EQ(Text(child_.Visibility().Get()), "");
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_Show_Existence"));
  recorder_.ClearCalls();
  // A net read needs no existence test.
  EXPECT_EQ(Text(child_.Visibility().GetOneNet("faces")), "off");
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_PShow_One_Net_Visibility"));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(OptionAttributeTest, RemovalsNeedALocalSetting) {
  child_.Visibility().UnSetOne("faces");
  child_.Visibility().UnSet();
  child_.Heuristics().UnSetOne("backplane cull");
  child_.Selectability().UnSet();
  child_.RenderingOptions().UnSetAttributeLock();
  Calls fiveTests;
  for (int i = 0; i < 5; ++i) {
    for (std::string const& call : Bracket("HC_Show_Existence")) fiveTests.push_back(call);
  }
  EXPECT_EQ(GraphicsCalls(), fiveTests);

  scene_.Visibility().Set("faces=off, edges=off");
  scene_.Visibility().UnSetOne("faces");
  EXPECT_EQ(Text(scene_.Visibility().GetOne("faces")), "");
  EXPECT_EQ(Text(scene_.Visibility().GetOne("edges")), "off");
  scene_.Visibility().UnSet();
  EXPECT_FALSE(scene_.Visibility().IsAttributeSet(ZString()));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(OptionAttributeTest, OptionsReadBackLocallyAndInherited) {
  scene_.RenderingOptions().Set("hsra=z-buffer");
  EXPECT_EQ(Text(scene_.RenderingOptions().GetOne("hidden surface removal algorithm")), "z-buffer");
  EXPECT_EQ(Text(child_.RenderingOptions().GetOne("hidden surface removal algorithm")), "");
  EXPECT_EQ(Text(child_.RenderingOptions().GetOneNet("hidden surface removal algorithm")),
            "z-buffer");
  scene_.DriverOptions().Set("debug=3");
  EXPECT_EQ(Text(scene_.DriverOptions().GetOne("debug")), "3");
  scene_.Heuristics().Set("backplane cull");
  scene_.Heuristics().UnSetOne("backplane cull");
  EXPECT_EQ(Text(scene_.Heuristics().Get()), "");
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(OptionAttributeTest, SelectabilityRestoresWhatWasSaved) {
  const ZString none = child_.Selectability().SaveToString();
  EXPECT_EQ(Text(none), "");
  child_.Selectability().Set("faces=v");
  const ZString saved = child_.Selectability().SaveToString();
  child_.Selectability().Set("faces=off, lines=v");
  child_.Selectability().RestoreFromString(saved);
  EXPECT_EQ(Text(child_.Selectability().Get()), Text(saved));
  child_.Selectability().RestoreFromString(none);
  EXPECT_FALSE(child_.Selectability().IsAttributeSet(ZString()));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(OptionAttributeTest, ConditionRefusesAnEmptyNameAfterTheExistenceTest) {
  scene_.Condition().SetOne("day, summer");
  recorder_.ClearCalls();
  scene_.Condition().UnSetOne(ZString());
  EXPECT_EQ(GraphicsCalls(), Bracket("HC_Show_Existence"));
  if (!log_.Reports().empty() && log_.Reports()[0].routine == "HC_Show_Existence") {
    GTEST_SKIP() << "the engine does not take \"condition\" as an existence word yet";
  }
  scene_.Condition().UnSetOne("DAY");
  ZString shown;
  ::HC_Open_Segment_By_Key(scene_.GetID());
  recorder_.HC_Show_Conditions(shown);
  ::HC_Close_Segment();
  EXPECT_EQ(Text(shown), "summer");
  EXPECT_TRUE(log_.Reports().empty());
}

// Answers a scripted list of locks, which the engine (knowing only real
// attribute names and keeping each once) could not hold, and keeps what is
// written back instead of passing it on.
class ScriptedLocksManager : public RecordingManager {
 public:
  explicit ScriptedLocksManager(std::string locks) : locks_(std::move(locks)) {}

  int HC_Show_Existence(char const* filter) override {
    Record("HC_Show_Existence");
    return std::string(filter) == "rendering options='attribute lock'" ? 1 : 0;
  }
  void HC_Show_One_Rendering_Option(char const* name, ZString& value) override {
    Record("HC_Show_One_Rendering_Option");
    if (std::string(name) == "attribute lock") value = locks_.c_str();
  }
  void HC_Set_Rendering_Options(char const* list) override {
    Record("HC_Set_Rendering_Options");
    written_ = list;
  }
  void HC_UnSet_One_Rendering_Option(char const*) override {
    Record("HC_UnSet_One_Rendering_Option");
  }

  std::string written_;

 private:
  std::string locks_;
};

// The list of locks as the engine keeps it.
class AttributeLockTest : public OptionAttributeTest {
 protected:
  std::string Locks() const { return Text(scene_.RenderingOptions().GetOne("attribute lock")); }

  // Runs UnSetOneAttributeLock(name) on the scripted `locks`; returns what
  // was written back, or "unset" if the option was only removed.
  std::string EditedLocks(std::string const& locks, std::string const& name) {
    auto* scripted = new ScriptedLocksManager(locks);
    entry_.SetManager(scripted);  // replaces, and frees, the fixture's recorder
    scene_.RenderingOptions().UnSetOneAttributeLock(name.c_str());
    const bool unset = scripted->CountOf("HC_UnSet_One_Rendering_Option") == 1;
    if (scripted->written_.empty()) return unset ? "unset" : "unchanged";
    return unset ? scripted->written_ : "written without unset";
  }
};

TEST_F(AttributeLockTest, SingleLockIsRemovedIgnoringCase) {
  scene_.RenderingOptions().Set("attribute lock=color");
  scene_.RenderingOptions().UnSetOneAttributeLock("Visibility");
  EXPECT_EQ(Locks(), "color");
  recorder_.ClearCalls();
  scene_.RenderingOptions().UnSetOneAttributeLock("COLOR");
  EXPECT_EQ(GraphicsCalls(),
            (Calls{"HC_Open_Segment_By_Key", "HC_Show_Existence", "HC_Show_One_Rendering_Option",
                   "HC_UnSet_One_Rendering_Option", "HC_Close_Segment"}));
  EXPECT_FALSE(scene_.RenderingOptions().IsAttributeSet("rendering options='attribute lock'"));
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(AttributeLockTest, ListKeepsTheOtherLocksInOrder) {
  scene_.RenderingOptions().SetOneAttributeLock("color");
  scene_.RenderingOptions().SetOneAttributeLock("visibility");
  scene_.RenderingOptions().SetOneAttributeLock("selectability");
  scene_.RenderingOptions().UnSetOneAttributeLock("visibility");
  EXPECT_EQ(Locks(), "color,selectability");
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(AttributeLockTest, NoLockStillUnsetsTheOption) {
  scene_.RenderingOptions().Set("hsra=z-buffer");
  recorder_.ClearCalls();
  scene_.RenderingOptions().UnSetOneAttributeLock("color");
  EXPECT_EQ(GraphicsCalls(), (Calls{"HC_Open_Segment_By_Key", "HC_Show_Existence",
                                    "HC_UnSet_One_Rendering_Option", "HC_Close_Segment"}));
  EXPECT_EQ(Text(scene_.RenderingOptions().GetOne("hidden surface removal algorithm")), "z-buffer");
  EXPECT_TRUE(log_.Reports().empty());
}

TEST_F(AttributeLockTest, EveryOccurrenceGoesAndTheRestIsWrittenBack) {
  EXPECT_EQ(EditedLocks("a,b,a", "a"), "attribute lock=(b)");
  EXPECT_EQ(EditedLocks("a,a", "A"), "attribute lock=()");
  EXPECT_EQ(EditedLocks("a, b,c", "b"), "attribute lock=(a, b,c)");
  EXPECT_EQ(EditedLocks("a,b,", "b"), "attribute lock=(a)");
  EXPECT_EQ(EditedLocks("A", "a"), "unset");
  EXPECT_EQ(EditedLocks("a b", "a"), "unchanged");
}

}  // namespace
