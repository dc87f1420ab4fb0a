// One database shared by all threads, one open stack per thread.
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

std::string CurrentPath() {
  char path[4096] = "";
  HC_Show_Segment(HC_Open_Segment("."), path);
  HC_Close_Segment();
  return path;
}

class Threads : public EngineTest {};

TEST_F(Threads, EachThreadHasItsOwnOpenSegments) {
  std::atomic<int> mismatches{0};
  auto worker = [&](std::string name) {
    for (int round = 0; round < 200; ++round) {
      HC_Open_Segment(("/" + name).c_str());
      HC_Open_Segment(std::to_string(round).c_str());
      HC_Insert_Line(0, 0, 0, round, 0, 0);
      HC_Set_User_Options(("owner = " + name).c_str());
      char value[64] = "";
      HC_Show_One_User_Option("owner", value);
      if (value != name || CurrentPath() != "/" + name + "/" + std::to_string(round)) ++mismatches;
      HC_Close_Segment();
      HC_Close_Segment();
    }
  };
  std::thread first(worker, "first");
  std::thread second(worker, "second");
  first.join();
  second.join();
  EXPECT_EQ(mismatches.load(), 0);
  EXPECT_TRUE(TakeReports().empty());

  // Both threads' work landed in the one database.
  char path[4096];
  HC_Show_Segment(HC_Create_Segment("/first/199"), path);
  EXPECT_STREQ(path, "/first/199");
  HC_Show_Segment(HC_Create_Segment("/second/199"), path);
  EXPECT_STREQ(path, "/second/199");
}

TEST_F(Threads, NothingOpenHereWhileAnotherThreadHasSegmentsOpen) {
  std::atomic<bool> opened{false};
  std::atomic<bool> checked{false};
  std::thread other([&] {
    HC_Open_Segment("/held by other");
    opened = true;
    while (!checked) std::this_thread::yield();
    HC_Close_Segment();
  });
  while (!opened) std::this_thread::yield();
  HC_Close_Segment();  // this thread has nothing open
  const auto reports = TakeReports();
  EXPECT_EQ(reports.size(), 1u);
  // The other thread's open segment cannot be deleted from here.
  HC_Delete_Segment("/held by other");
  EXPECT_EQ(TakeReports().size(), 1u);
  checked = true;
  other.join();
  HC_Delete_Segment("/held by other");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Threads, AThreadEndingWithSegmentsOpenReleasesThem) {
  std::thread([] { HC_Open_Segment("/left open"); }).join();
  HC_Delete_Segment("/left open");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Threads, AResetElsewhereEmptiesThisThreadsStack) {
  std::atomic<bool> opened{false};
  std::atomic<bool> reset{false};
  std::atomic<bool> close_reported{false};
  std::thread other([&] {
    HC_Open_Segment("/before reset");
    opened = true;
    while (!reset) std::this_thread::yield();
    TakeReports();
    HC_Close_Segment();  // its frame went with the old tree
    close_reported = !TakeReports().empty();
  });
  while (!opened) std::this_thread::yield();
  HC_Reset_System();
  reset = true;
  other.join();
  EXPECT_TRUE(close_reported);
}

}  // namespace
