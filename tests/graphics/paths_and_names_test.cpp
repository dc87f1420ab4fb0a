// Path grammar, name folding and the display form of segment paths.
#include <string>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

std::string PathOf(long long key) {
  char path[4096] = "untouched";
  HC_Show_Segment(key, path);
  return path;
}

class PathsAndNames : public EngineTest {};

TEST_F(PathsAndNames, PredefinedSegmentsExistFromTheStart) {
  for (const char* path : {"/", "/include library", "/style library", "/driver/null/window0"}) {
    EXPECT_EQ(PathOf(HC_Create_Segment(path)), path);
  }
  EXPECT_EQ(HC_Create_Segment("?Picture"), HC_Create_Segment("/driver/null/window0"));
  EXPECT_EQ(HC_Create_Segment("?Include Library"), HC_Create_Segment("/include library"));
  EXPECT_EQ(HC_Create_Segment("?style library/sub"), HC_Create_Segment("/style library/sub"));
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(PathsAndNames, NamesFoldCaseAndBlanksAroundComponents) {
  const long long key = HC_Create_Segment("/Model/ Part One /Bolt");
  EXPECT_EQ(PathOf(key), "/model/part one/bolt");
  EXPECT_EQ(HC_Create_Segment("/MODEL/part one/BOLT"), key);
  // Inner blanks are part of the name.
  EXPECT_NE(HC_Create_Segment("/model/part  one/bolt"), key);
}

TEST_F(PathsAndNames, QuotedNamesHoldAnyCharacterAndComeBackQuoted) {
  const long long key = HC_Create_Segment("/a/'Slash/And,Comma'");
  EXPECT_EQ(PathOf(key), "/a/'slash/and,comma'");
  EXPECT_EQ(HC_Create_Segment(PathOf(key).c_str()), key);

  const long long apostrophe = HC_Create_Segment("/a/\"it's\"");
  EXPECT_EQ(PathOf(apostrophe), "/a/'it''s'");
  EXPECT_EQ(HC_Create_Segment(PathOf(apostrophe).c_str()), apostrophe);

  // A quoted name of dots is a name, not "." or "..".
  const long long dots = HC_Create_Segment("/a/'..'");
  EXPECT_EQ(PathOf(dots), "/a/'..'");
  EXPECT_EQ(HC_Create_Segment(PathOf(dots).c_str()), dots);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(PathsAndNames, RelativePathsStartAtTheCurrentSegment) {
  const long long a = HC_Open_Segment("/a");
  const long long b = HC_Create_Segment("b");
  EXPECT_EQ(PathOf(b), "/a/b");
  EXPECT_EQ(HC_Create_Segment("./b"), b);
  EXPECT_EQ(HC_Create_Segment("."), a);
  EXPECT_EQ(HC_Create_Segment("b/.."), a);
  EXPECT_EQ(HC_Create_Segment("b/^/b"), b);
  EXPECT_EQ(PathOf(HC_Create_Segment("../sibling")), "/sibling");
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(PathsAndNames, BlankNamesMakeAnonymousSegmentsReachableByKeyReference) {
  HC_Open_Segment("/parent");
  const long long first = HC_Open_Segment("");
  HC_Close_Segment();
  const long long second = HC_Open_Segment("   ");
  HC_Close_Segment();
  HC_Close_Segment();
  EXPECT_NE(first, second);

  const std::string path = PathOf(first);
  ASSERT_EQ(path.size(), std::string("/parent/@").size() + 16);
  EXPECT_EQ(path.substr(0, 9), "/parent/@");
  EXPECT_EQ(path.substr(9).find_first_not_of("0123456789ABCDEF"), std::string::npos);
  EXPECT_EQ(HC_Create_Segment(path.c_str()), first);
  EXPECT_EQ(PathOf(HC_Create_Segment((path + "/child").c_str())), path + "/child");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(PathsAndNames, MissingAncestorsAreCreatedInOrder) {
  const long long leaf = HC_Create_Segment("/x/y/z");
  char owner[4096];
  const long long y = HC_Show_Owner_By_Key(leaf, owner);
  EXPECT_STREQ(owner, "/x/y");
  EXPECT_EQ(HC_Show_Owner_By_Key(y, owner), HC_Create_Segment("/x"));
  EXPECT_STREQ(owner, "/x");
}

TEST_F(PathsAndNames, PathsThatGoBackUpCreateWhatTheyPassThrough) {
  const long long q = HC_Create_Segment("/p/new/../q");
  EXPECT_EQ(PathOf(q), "/p/q");
  char owner[4096];
  EXPECT_EQ(HC_Show_Owner("/p/new", owner), HC_Create_Segment("/p"));
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(PathsAndNames, OwnerOfTheRootIsEmptyWithKeyZero) {
  char owner[4096] = "untouched";
  EXPECT_EQ(HC_Show_Owner("/", owner), 0);
  EXPECT_STREQ(owner, "");
  EXPECT_EQ(HC_Show_Owner_By_Key(HC_Create_Segment("/"), owner), 0);
  EXPECT_TRUE(TakeReports().empty());
}

}  // namespace
