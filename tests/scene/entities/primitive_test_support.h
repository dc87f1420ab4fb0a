#pragma once
// What the tests of geometry handles share: reading a segment's contents
// straight from the engine, and comparing points with a readable failure.
#include <gtest/gtest.h>

#include "hc/hc.h"
#include "sceneward/geometry/zgeo_point.h"
#include "sceneward/scene/entities/zdb_en_segment.h"

// How many objects of the engine's comma-separated `types` lie directly in
// `segment`, counted by direct engine calls (nothing is recorded).
inline int CountContents(ZDbEnSegment const& segment, char const* types) {
  ::HC_Open_Segment_By_Key(segment.GetID());
  ::HC_Begin_Contents_Search(".", types);
  int count = 0;
  ::HC_Show_Contents_Count(&count);
  ::HC_End_Contents_Search();
  ::HC_Close_Segment();
  return count;
}

// Equal within the library's point tolerance.
inline ::testing::AssertionResult SamePoint(ZGeoPoint const& actual, ZGeoPoint const& expected) {
  if (actual.Equals(expected)) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << "(" << actual.x << ", " << actual.y << ", " << actual.z << ") is not (" << expected.x
         << ", " << expected.y << ", " << expected.z << ")";
}
