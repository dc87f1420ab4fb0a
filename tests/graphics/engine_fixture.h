#pragma once
// A clean engine for each test, with every report captured instead of
// printed, and a snapshot of the tree for checking that a call changed
// nothing.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hc/hc.h"

namespace engine_test {

struct Report {
  int category;
  int specific;
  int severity;
  std::string message;
  std::string routine;
};

// Reports received since the last TakeReports(), from any thread.
std::vector<Report> TakeReports();

// The whole tree as text: every segment's path, local attributes and
// geometry, in stored order.
std::string TreeSnapshot();
// As TreeSnapshot, without the keys, to compare trees built apart.
std::string TreeShape();

class EngineTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
};

}  // namespace engine_test
