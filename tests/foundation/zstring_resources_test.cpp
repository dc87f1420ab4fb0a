// ZString: loading numbered string resources.
#include <gtest/gtest.h>

#include "platform/string_resources.h"
#include "sceneward/foundation/zstring.h"

namespace {

class ZStringResourcesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    platform::RegisterStringTable(module(), {{1, u"Open"}, {2, WideString(2000, u'x')}});
  }
  void TearDown() override { platform::UnregisterStringTable(module()); }
  void* module() { return &handle_; }

 private:
  int handle_ = 0;
};

TEST_F(ZStringResourcesTest, LoadsInTheFormOfTheCall) {
  ZString s;
  EXPECT_TRUE(s.LoadString8(1, module()));
  EXPECT_EQ(s, "Open");
  EXPECT_FALSE(s.IsUnicode());
  EXPECT_TRUE(s.LoadString16(1, module()));
  EXPECT_TRUE(s.IsUnicode());
  EXPECT_TRUE(s.LoadStringW(1, module()));
  EXPECT_EQ(s, u"Open");
}

TEST_F(ZStringResourcesTest, AMissingResourceGivesAnEmptyStringOfTheCallsForm) {
  ZString s("old");
  EXPECT_FALSE(s.LoadString16(99, module()));
  EXPECT_TRUE(s.IsEmpty());
  EXPECT_TRUE(s.IsUnicode());
  EXPECT_FALSE(s.LoadString8(1, nullptr));
  EXPECT_TRUE(s.IsEmpty());
  EXPECT_FALSE(s.IsUnicode());
}

TEST_F(ZStringResourcesTest, LongResourcesAreCutToTheLoadBuffer) {
  ZString s;
  ASSERT_TRUE(s.LoadString8(2, module()));
  EXPECT_EQ(s.GetLength(), 1023);
  ASSERT_TRUE(s.LoadString16(2, module()));
  EXPECT_EQ(s.GetLength(), 1023);
}

}  // namespace
