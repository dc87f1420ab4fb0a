// Scalar data values and their counts. Counts are not visible; they are
// checked by ending every value exactly when its last owner lets go, which
// the sanitizers turn into leaks or use-after-free reports if a count is
// off.
#include "sceneward/data/zdata_values.h"

#include <gtest/gtest.h>

namespace {

TEST(ZDataValuesTest, TypeIdentifiersSpellTheirNames) {
  EXPECT_EQ(ZDataInteger::ID(), 0x5A44496E);
  EXPECT_EQ(ZDataFloat::ID(), 0x5A44466C);
  EXPECT_EQ(ZDataString::ID(), 0x5A445374);
  ZDataType* value = ZDataCreateFloat(1.5f);
  EXPECT_EQ(value->GetTypeID(), ZDataFloat::ID());
  value->Release();
}

TEST(ZDataValuesTest, OneReleaseEndsAFreshValue) {
  ZDataInteger* value = ZDataCreateInteger(5);
  EXPECT_EQ(value->GetValue(), 5u);
  value->Release();
}

TEST(ZDataValuesTest, EachRetainNeedsARelease) {
  ZDataString* value = ZDataCreateString(ZString("text"));
  value->Retain();
  value->Release();
  EXPECT_EQ(value->GetValue(), "text");
  value->Release();
}

TEST(ZDataValuesTest, CopiesTakeTheValueAndTheCountOfTheirSource) {
  ZDataInteger* source = ZDataCreateInteger(~uint64_t{0});
  source->Retain();
  auto* copy = new ZDataInteger(*source);
  source->SetValue(1);
  EXPECT_EQ(copy->GetValue(), ~uint64_t{0});
  // The copy started at 2, as its source: it survives one release.
  copy->Release();
  EXPECT_EQ(copy->GetValue(), ~uint64_t{0});
  copy->Release();
  source->Release();
  source->Release();
}

TEST(ZDataValuesTest, AssignmentCopiesTheCountToo) {
  ZDataString* target = ZDataCreateString(ZString("old"));
  ZDataString* source = ZDataCreateString(ZString("new"));
  source->Retain();
  *target = *source;
  EXPECT_EQ(target->GetValue(), "new");
  target->Release();
  EXPECT_EQ(target->GetValue(), "new");
  target->Release();
  source->Release();
  source->Release();
}

}  // namespace
