// The program's own data: 16-bit options beside 8-bit ones, user indices,
// the user value, net reads through owners, and callback names.
#include <cstdint>
#include <string>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

const unsigned short* Units(const std::u16string& text) {
  return reinterpret_cast<const unsigned short*>(text.c_str());
}

std::u16string FromUnits(const unsigned short* units) { return reinterpret_cast<const char16_t*>(units); }

class UserData : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    owner_ = HC_Open_Segment("/owner");
    child_ = HC_Open_Segment("child");
  }
  void TearDown() override {
    HC_Close_Segment();
    HC_Close_Segment();
    EngineTest::TearDown();
  }
  long long owner_ = -1;
  long long child_ = -1;
};

TEST_F(UserData, UnicodeOptionsKeepEveryUnitAndStayApartFromUserOptions) {
  const std::u16string list = u"Name=\u00e9t\u00e9 \u4e2d, flag";
  HC_Set_Unicode_Options(Units(list));
  unsigned short shown[256] = {};
  HC_Show_Unicode_Options(shown);
  EXPECT_EQ(FromUnits(shown), u"name=\u00e9t\u00e9 \u4e2d,flag");
  HC_Show_One_Unicode_Option(Units(u"NAME"), shown);
  EXPECT_EQ(FromUnits(shown), u"\u00e9t\u00e9 \u4e2d");
  int length = 0;
  HC_Show_One_Uni_Option_Length(Units(u"name"), &length);
  EXPECT_EQ(length, 5);
  char narrow[64] = "untouched";
  HC_Show_One_User_Option("name", narrow);
  EXPECT_EQ(std::string(narrow), "");
  HC_UnSet_One_Unicode_Option(Units(u"name"));
  HC_UnSet_One_Unicode_Option(Units(u"flag"));
  HC_Show_Unicode_Options_Length(&length);
  EXPECT_EQ(length, 0);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(UserData, NetOptionsComeFromTheLowestSetter) {
  HC_Set_User_Options("shared=child");
  HC_Open_Segment_By_Key(owner_);
  HC_Set_User_Options("shared=owner, only=owner");
  HC_Set_Unicode_Options(Units(u"wide=yes"));
  HC_Close_Segment();
  char value[64] = "";
  EXPECT_TRUE(HC_PShow_One_Net_User_Option(0, nullptr, "shared", value));
  EXPECT_EQ(std::string(value), "child");
  EXPECT_TRUE(HC_PShow_One_Net_User_Option(1, &child_, "only", value));
  EXPECT_EQ(std::string(value), "owner");
  int length = 0;
  EXPECT_TRUE(HC_PShow_One_Net_User_Opt_Len(1, &child_, "only", &length));
  EXPECT_EQ(length, 5);
  EXPECT_FALSE(HC_PShow_One_Net_User_Option(1, &child_, "missing", value));
  EXPECT_EQ(std::string(value), "");
  unsigned short wide[16] = {};
  EXPECT_TRUE(HC_PShow_One_Net_Unicode_Opt(1, &child_, Units(u"wide"), wide));
  EXPECT_EQ(FromUnits(wide), u"yes");
  const long long cut[] = {child_, -1};
  EXPECT_FALSE(HC_PShow_One_Net_Uni_Opt_Len(2, cut, Units(u"wide"), &length));
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(UserData, IndicesMergeDownTheTreeInAscendingOrder) {
  int a = 0, b = 0, c = 0;
  HC_Set_User_Index(7, &a);
  HC_Set_User_Index(2, &b);
  HC_Open_Segment_By_Key(owner_);
  HC_Set_User_Index(7, &c);
  HC_Set_User_Index(9, &c);
  HC_Close_Segment();

  int count = 0;
  long indices[8] = {};
  void* values[8] = {};
  HC_Show_User_Indices(&count, indices, values);
  ASSERT_EQ(count, 2);
  EXPECT_EQ(indices[0], 2);
  EXPECT_EQ(values[1], &a);

  HC_PShow_Net_User_Indices(0, nullptr, &count, indices, values);
  ASSERT_EQ(count, 3);
  EXPECT_EQ(indices[2], 9);
  EXPECT_EQ(values[1], &a);  // the child's 7 hides the owner's
  void* one = nullptr;
  EXPECT_TRUE(HC_PShow_One_Net_User_Index(1, &child_, 9, &one));
  EXPECT_EQ(one, &c);
  EXPECT_FALSE(HC_PShow_One_Net_User_Index(1, &child_, 3, &one));

  EXPECT_TRUE(HC_Show_One_User_Index(2, &one));
  EXPECT_EQ(one, &b);
  HC_UnSet_One_User_Index(2);
  HC_UnSet_One_User_Index(2);
  EXPECT_FALSE(HC_Show_One_User_Index(2, &one));
  HC_Show_User_Index_Count(&count);
  EXPECT_EQ(count, 1);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(UserData, TheUserValueIsItsOwnAttribute) {
  intptr_t value = 5;
  HC_Show_User_Value(&value);
  EXPECT_EQ(value, 5);
  EXPECT_EQ(TakeReports().size(), 1u);
  HC_Set_User_Value(42);
  HC_Show_User_Value(&value);
  EXPECT_EQ(value, 42);
  int count = -1;
  HC_Show_User_Index_Count(&count);
  EXPECT_EQ(count, 0);
}

void FirstCallback() {}
void SecondCallback() {}

TEST_F(UserData, CallbackNamesAreDefinedProcessWide) {
  HC_Define_Callback_Name("My Text", FirstCallback);
  HC_Define_Callback_Name("my text", SecondCallback);
  HC_Callback found = nullptr;
  HC_Show_Callback_Name("MY TEXT", &found);
  EXPECT_EQ(found, &SecondCallback);
  HC_UnDefine_Callback_Name("my text");
  HC_UnDefine_Callback_Name("my text");
  HC_Show_Callback_Name("my text", &found);
  HC_Define_Callback_Name("", FirstCallback);
  EXPECT_EQ(found, &SecondCallback);
  EXPECT_EQ(TakeReports().size(), 3u);
}

}  // namespace
