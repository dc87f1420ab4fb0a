// The vector's ownership of its elements, and the positions where it takes
// a value.
#include "sceneward/data/zdata_vector.h"

#include <gtest/gtest.h>

#include "sceneward/data/zdata_values.h"

namespace {

// As for the dictionary, every value owned here is released exactly once.
class ZDataVectorTest : public ::testing::Test {
 protected:
  ~ZDataVectorTest() override { vector_->Release(); }

  uint64_t IntegerAt(int index) const { return static_cast<ZDataInteger*>(vector_->Get(index))->GetValue(); }

  ZDataVector* vector_ = ZDataCreateVector();
};

TEST_F(ZDataVectorTest, GetOutsideTheElementsIsNull) {
  vector_->PushBack(ZDataCreateInteger(1), true);
  EXPECT_EQ(vector_->Get(-1), nullptr);
  EXPECT_EQ(vector_->Get(1), nullptr);
  EXPECT_NE(vector_->Get(0), nullptr);
  EXPECT_EQ(vector_->GetTypeID(), 0x5A445663);
}

TEST_F(ZDataVectorTest, InsertOnlyGoesBeforeExistingElements) {
  ZDataInteger* value = ZDataCreateInteger(5);
  vector_->Insert(0, value, false);
  EXPECT_EQ(vector_->Get(0), nullptr);
  vector_->PushBack(ZDataCreateInteger(1), true);
  vector_->Insert(1, value, false);  // the end: refused
  EXPECT_EQ(vector_->Get(1), nullptr);
  vector_->Insert(0, value, false);
  EXPECT_EQ(IntegerAt(0), 5u);
  EXPECT_EQ(IntegerAt(1), 1u);
  // The vector holds its own reference, so the caller's may go.
  value->Release();
  EXPECT_EQ(IntegerAt(0), 5u);
}

TEST_F(ZDataVectorTest, RefusedAdoptedValueStaysTheCallers) {
  ZDataInteger* value = ZDataCreateInteger(5);
  vector_->Insert(0, value, true);
  value->Release();
}

TEST_F(ZDataVectorTest, PopBackAndEraseReleaseAndCloseTheGap) {
  vector_->PopBack();
  for (uint64_t i = 0; i < 4; ++i) vector_->PushBack(ZDataCreateInteger(i), true);
  vector_->Erase(1);
  EXPECT_EQ(IntegerAt(1), 2u);
  vector_->Erase(3);  // past the end: nothing
  vector_->Erase(-1);
  vector_->PopBack();
  EXPECT_EQ(vector_->Get(2), nullptr);
  EXPECT_EQ(IntegerAt(1), 2u);
  vector_->Clear();
  EXPECT_EQ(vector_->Get(0), nullptr);
}

TEST_F(ZDataVectorTest, NullValuesAreIgnored) {
  vector_->PushBack(nullptr, true);
  EXPECT_EQ(vector_->Get(0), nullptr);
}

TEST_F(ZDataVectorTest, CopiesShareElementsWithoutRetainingThem) {
  ZDataFloat* shared = ZDataCreateFloat(0.5f);
  vector_->PushBack(shared, true);
  auto* copy = new ZDataVector(*vector_);
  EXPECT_EQ(copy->Get(0), shared);
  shared->Retain();
  copy->Release();
  EXPECT_EQ(shared->GetValue(), 0.5f);
}

}  // namespace
