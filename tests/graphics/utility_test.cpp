// Token parsing, the library clock, memory use and device facts.
#include <string>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

struct Token {
  bool found;
  std::string text;
};

Token Parse(const char* string, const char* delimiter, int offset) {
  char token[256] = "untouched";
  const bool found = HC_Parse_String(string, delimiter, offset, token);
  return {found, token};
}

class Utilities : public EngineTest {};

TEST_F(Utilities, ParseStringCountsEmptyTokensAndFromTheEnd) {
  EXPECT_EQ(Parse("", "/", 0).text, "");
  EXPECT_TRUE(Parse("", "/", 0).found);
  EXPECT_EQ(Parse(",,hello", ",", 2).text, "hello");
  EXPECT_EQ(Parse("a, b ,c", ",", 1).text, "b");
  EXPECT_EQ(Parse("a/b/c", "/", -1).text, "c");
  EXPECT_EQ(Parse("a/b/c", "/", -3).text, "a");
  const Token past = Parse("a/b", "/", 2);
  EXPECT_FALSE(past.found);
  EXPECT_EQ(past.text, "untouched");
  EXPECT_FALSE(Parse("a/b", "/", -3).found);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(Utilities, TimeRunsForwardAndMemoryCountsAreConsistent) {
  float first = -1, second = -1;
  HC_Show_Time(&first);
  std::string grow(1 << 20, 'x');
  HC_Show_Time(&second);
  EXPECT_GE(first, 0);
  EXPECT_GE(second, first);
  // The counts are the C library heap's; a sanitizer's allocator keeps its
  // own books and leaves them at zero, so only their relation is checked.
  size_t allocated = 1, in_use = 2;
  HC_Show_Memory_Usage(&allocated, &in_use);
  EXPECT_GE(allocated, in_use);
}

TEST_F(Utilities, DeviceInfoAnswersKnownItems) {
  char data[64] = "";
  HC_Show_Device_Info("/driver/null/window0", "pixels", data);
  EXPECT_EQ(std::string(data), "1024, 768");
  HC_Show_Device_Info("/nowhere", "exists", data);
  EXPECT_EQ(std::string(data), "no");
  EXPECT_TRUE(TakeReports().empty());
  HC_Show_Device_Info("/driver/null/window0", "flux capacity", data);
  EXPECT_EQ(std::string(data), "");
  EXPECT_EQ(TakeReports().size(), 1u);
}

}  // namespace
