// The dictionary's ownership of its values, its typed access, and its
// copies, which share values without counting them.
#include "sceneward/data/zdata_dictionary.h"

#include <gtest/gtest.h>

#include "sceneward/data/zdata_values.h"

namespace {

// Each test releases every value it owns exactly once, so that a wrong
// count shows under the sanitizers as a leak or a use after free.
class ZDataDictionaryTest : public ::testing::Test {
 protected:
  ~ZDataDictionaryTest() override { dictionary_->Release(); }
  ZDataDictionary* dictionary_ = ZDataCreateDictionary();
};

TEST_F(ZDataDictionaryTest, AdoptedValuesAreTheDictionarysToRelease) {
  ZDataType* value = ZDataCreateInteger(3);
  dictionary_->Insert(ZString("a"), value, true);
  EXPECT_EQ(dictionary_->Get(ZString("a")), value);
  EXPECT_EQ(dictionary_->Get(ZString("b")), nullptr);
}

TEST_F(ZDataDictionaryTest, RetainedValuesOutliveTheirEntries) {
  ZDataInteger* value = ZDataCreateInteger(3);
  dictionary_->Insert(ZString("a"), value, false);
  dictionary_->Erase(ZString("a"));
  EXPECT_EQ(value->GetValue(), 3u);
  value->Release();
}

TEST_F(ZDataDictionaryTest, InsertingAValueOverItselfKeepsItAlive) {
  ZDataInteger* value = ZDataCreateInteger(3);
  dictionary_->Insert(ZString("a"), value, false);
  dictionary_->Insert(ZString("a"), value, false);
  value->Release();
  // One reference is left, the dictionary's.
  EXPECT_EQ(value->GetValue(), 3u);
  dictionary_->Erase(ZString("a"));
}

TEST_F(ZDataDictionaryTest, OverwritingReleasesTheOldValue) {
  dictionary_->SetInt(ZString("a"), 1);
  dictionary_->SetString(ZString("a"), ZString("now text"));
  EXPECT_EQ(dictionary_->GetString(ZString("a")), "now text");
  EXPECT_EQ(dictionary_->GetInt(ZString("a")), ~uint64_t{0});
}

TEST_F(ZDataDictionaryTest, NullInsertLeavesTheEntryInPlace) {
  dictionary_->SetFloat(ZString("f"), 2.5f);
  dictionary_->Insert(ZString("f"), nullptr, true);
  dictionary_->Insert(ZString("g"), nullptr, false);
  EXPECT_EQ(dictionary_->GetFloat(ZString("f")), 2.5f);
  EXPECT_EQ(dictionary_->Get(ZString("g")), nullptr);
}

TEST_F(ZDataDictionaryTest, TypedGettersAnswerDefaultsForOtherTypesAndMissingKeys) {
  dictionary_->SetInt(ZString("a"), 1);
  EXPECT_EQ(dictionary_->GetFloat(ZString("a")), -1.0f);
  EXPECT_EQ(dictionary_->GetString(ZString("a")), "");
  EXPECT_EQ(dictionary_->GetInt(ZString("missing")), 0xFFFFFFFFFFFFFFFFu);
  EXPECT_EQ(dictionary_->GetPtr(ZString("missing")), nullptr);
  dictionary_->SetString(ZString("s"), ZString("1"));
  EXPECT_EQ(dictionary_->GetPtr(ZString("s")), nullptr);
}

TEST_F(ZDataDictionaryTest, PointersAreIntegers) {
  int anything = 0;
  dictionary_->SetPtr(ZString("p"), &anything);
  EXPECT_EQ(dictionary_->GetInt(ZString("p")), reinterpret_cast<uint64_t>(&anything));
  EXPECT_EQ(dictionary_->Get(ZString("p"))->GetTypeID(), ZDataInteger::ID());
  dictionary_->SetInt(ZString("q"), reinterpret_cast<uint64_t>(&anything));
  EXPECT_EQ(dictionary_->GetPtr(ZString("q")), &anything);
}

TEST_F(ZDataDictionaryTest, KeysCompareAcrossNarrowAndWideText) {
  dictionary_->SetInt(ZString("key"), 7);
  EXPECT_EQ(dictionary_->GetInt(ZString(u"key")), 7u);
  dictionary_->SetInt(ZString(u"key"), 8);
  EXPECT_EQ(dictionary_->GetInt(ZString("key")), 8u);
}

TEST_F(ZDataDictionaryTest, EraseOfAMissingKeyAndClearOfAnEmptyDictionaryDoNothing) {
  dictionary_->Erase(ZString("none"));
  dictionary_->Clear();
  dictionary_->SetInt(ZString("a"), 1);
  dictionary_->SetInt(ZString("b"), 2);
  dictionary_->Clear();
  EXPECT_EQ(dictionary_->Get(ZString("a")), nullptr);
}

TEST_F(ZDataDictionaryTest, DictionariesNestAndReleaseWhatTheyHold) {
  ZDataDictionary* inner = ZDataCreateDictionary();
  inner->SetString(ZString("deep"), ZString("value"));
  dictionary_->Insert(ZString("inner"), inner, true);
  auto* found = static_cast<ZDataDictionary*>(dictionary_->Get(ZString("inner")));
  EXPECT_EQ(found->GetString(ZString("deep")), "value");
}

TEST_F(ZDataDictionaryTest, CopiesShareValuesWithoutRetainingThem) {
  ZDataInteger* shared = ZDataCreateInteger(9);
  dictionary_->Insert(ZString("v"), shared, true);
  dictionary_->Retain();
  auto* copy = new ZDataDictionary(*dictionary_);
  EXPECT_EQ(copy->Get(ZString("v")), shared);
  // Both will release the value: its second owner retains it by hand.
  shared->Retain();
  // The copy began with its source's count of 2.
  copy->Release();
  EXPECT_EQ(copy->GetInt(ZString("v")), 9u);
  copy->Release();
  EXPECT_EQ(shared->GetValue(), 9u);
  dictionary_->Release();
}

TEST_F(ZDataDictionaryTest, AssignmentDropsTheTargetsEntriesWithoutReleasingThem) {
  ZDataInteger* dropped = ZDataCreateInteger(1);
  ZDataDictionary* target = ZDataCreateDictionary();
  target->Insert(ZString("old"), dropped, false);
  dictionary_->SetInt(ZString("new"), 2);
  *target = *dictionary_;
  EXPECT_EQ(target->Get(ZString("old")), nullptr);
  EXPECT_EQ(target->GetInt(ZString("new")), 2u);
  // The dropped value still holds the reference the target took.
  dropped->Release();
  EXPECT_EQ(dropped->GetValue(), 1u);
  dropped->Release();
  // The shared value needs a second reference for the target's release.
  dictionary_->Get(ZString("new"))->Retain();
  target->Release();
}

TEST_F(ZDataDictionaryTest, SelfAssignmentIsHarmless) {
  dictionary_->SetInt(ZString("a"), 1);
  ZDataDictionary& same = *dictionary_;
  *dictionary_ = same;
  EXPECT_EQ(dictionary_->GetInt(ZString("a")), 1u);
}

}  // namespace
