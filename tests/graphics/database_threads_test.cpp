// The database under several threads at once: searches, bounds, edits and
// deletions, with each thread's search brackets its own.
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

class DatabaseThreads : public EngineTest {};

TEST_F(DatabaseThreads, SearchesEditsAndBoundsInterleaveSafely) {
  constexpr int kThreads = 4;
  constexpr int kRounds = 150;
  std::atomic<int> mismatches{0};
  auto worker = [&](int id) {
    const std::string root = "/t" + std::to_string(id);
    for (int round = 0; round < kRounds; ++round) {
      HC_Open_Segment(root.c_str());
      const long long marker = HC_Insert_Marker(round, id, 0);
      HC_Begin_Contents_Search(".", "markers");
      // Another thread's bracket in between must not disturb this one.
      HC_Begin_Segment_Search("/*");
      HC_End_Segment_Search();
      int count = 0;
      HC_Show_Contents_Count(&count);
      HC_End_Contents_Search();
      if (count != round + 1) ++mismatches;
      float box[6];
      if (!HC_Compute_Circumcuboid(".", &box[0], &box[3]) || box[3] != static_cast<float>(round)) ++mismatches;
      const long long copy = HC_Copy_Geometry(marker, "/scratch");
      HC_Delete_By_Key(copy);
      HC_Close_Segment();
    }
  };
  HC_Create_Segment("/scratch");
  std::vector<std::thread> threads;
  for (int id = 0; id < kThreads; ++id) threads.emplace_back(worker, id);
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(mismatches.load(), 0);
  EXPECT_TRUE(TakeReports().empty());
  EXPECT_EQ(HC_QShow_Existence("/t*", "markers"), kThreads * kRounds);
  EXPECT_EQ(HC_QShow_Existence("/scratch", "everything"), 0);
}

TEST_F(DatabaseThreads, ASearchBeganInOneThreadIsNotVisibleInAnother) {
  HC_Begin_Segment_Search("/*");
  std::thread other([] {
    char path[256];
    EXPECT_FALSE(HC_Find_Segment(path));
  });
  other.join();
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].routine, "HC_Find_Segment");
  int count = 0;
  HC_Show_Segment_Count(&count);
  EXPECT_GT(count, 0);
  HC_End_Segment_Search();
}

}  // namespace
