// Renaming, moving, copying, flushing and reordering parts of the tree;
// aliases and written-out paths.
#include <string>

#include "engine_fixture.h"
#include "errors/report.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;
using engine_test::TreeSnapshot;

std::string PathOf(long long key) {
  char path[512];
  HC_Show_Segment(key, path);
  return path;
}

using SegmentEdits = EngineTest;

TEST_F(SegmentEdits, RenameMovesAndKeepsKeysAndReferences) {
  const long long c = HC_Create_Segment("/a/b/c");
  HC_Open_Segment("/user");
  const long long include = HC_Include_Segment("/a/b/c");
  HC_Close_Segment();
  HC_Rename_Segment("/a/b/c", "/d/*");
  EXPECT_EQ(PathOf(c), "/d/c");
  HC_Rename_Segment("/d/c", "/d/'New Name'");
  EXPECT_EQ(PathOf(c), "/d/new name");
  char target[256];
  EXPECT_EQ(HC_Show_Include_Segment(include, target), c);
  HC_Rename_Segment("/d/*", "/e/*");  // wildcard matches move together
  EXPECT_EQ(PathOf(c), "/e/new name");
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(SegmentEdits, RenameRefusesClashesAndMovesBelowItself) {
  HC_Create_Segment("/p/x");
  HC_Create_Segment("/p/y");
  const std::string before = TreeSnapshot();
  HC_Rename_Segment("/p/x", "/p/y");
  HC_Rename_Segment("/p", "/p/x/inside");
  HC_Rename_Segment("/p/missing", "/p/z");
  EXPECT_EQ(TakeReports().size(), 3u);
  EXPECT_EQ(TreeSnapshot(), before);
  EXPECT_EQ(PathOf(HC_Create_Segment("/p/x")), "/p/x");
}

TEST_F(SegmentEdits, CopySegmentDuplicatesContentsIntoAnEmptyDestination) {
  HC_Open_Segment("/source");
  HC_Insert_Line(0, 0, 0, 1, 1, 1);
  HC_Set_User_Options("kind=pump");
  HC_Create_Segment("child");
  HC_Style_Segment("/style library");
  HC_Close_Segment();
  const long long full = HC_Show_Owner_By_Key(HC_Create_Segment("/full/thing"), nullptr);
  const long long copy = HC_Copy_Segment("/source", "/copies/*");
  EXPECT_EQ(PathOf(copy), "/copies/source");
  EXPECT_EQ(HC_QShow_Existence("/copies/source", "everything"),
            HC_QShow_Existence("/source", "everything"));
  EXPECT_EQ(HC_QShow_Existence("/copies/source/child", "self"), 1);
  EXPECT_TRUE(TakeReports().empty());
  EXPECT_EQ(HC_Copy_Segment("/source", "/full"), full);  // not empty: nothing copied
  EXPECT_EQ(HC_QShow_Existence("/full", "geometry"), 0);
  EXPECT_EQ(HC_Copy_Segment("/source", "/source/child/deeper"), -1);
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 2u);
  EXPECT_EQ(reports[0].category, graphics::kCategoryName);

  // A destination named by a step, such as the open segment ".", is that
  // segment itself; a rename cannot go there.
  const long long open = HC_Open_Segment("/into open");
  EXPECT_EQ(HC_Copy_Segment("/source", "."), open);
  HC_Close_Segment();
  EXPECT_EQ(HC_QShow_Existence("/into open", "geometry"), 1);
  HC_Rename_Segment("/source", "/into open/..");
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(SegmentEdits, CopyAndMoveGeometryByKey) {
  HC_Open_Segment("/from");
  const long long line = HC_Insert_Line(1, 2, 3, 4, 5, 6);
  const long long copy = HC_Copy_Geometry(line, "/to");
  HC_Close_Segment();
  EXPECT_EQ(copy, -1);  // "/to" does not exist
  TakeReports();
  HC_Create_Segment("/to");
  const long long copied = HC_Copy_Geometry(line, "/to");
  float xb = 0;
  HC_Show_Line(copied, nullptr, nullptr, nullptr, nullptr, nullptr, &xb);
  EXPECT_EQ(xb, 6.0f);
  HC_Move_By_Key(line, "/to");
  char owner[64];
  EXPECT_EQ(HC_Show_Owner_By_Key(line, owner), HC_Create_Segment("/to"));
  HC_Move_Key_By_Key(HC_Create_Segment("/from"), HC_Create_Segment("/to"));
  EXPECT_EQ(HC_QShow_Existence("/to/from", "self"), 1);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(SegmentEdits, FlushRemovesTheListedKindsOnly) {
  HC_Open_Segment("/f");
  HC_Insert_Marker(0, 0, 0);
  HC_Insert_Text(0, 0, 0, "keep me");
  HC_Set_User_Options("a=b");
  HC_Create_Segment("sub");
  HC_Close_Segment();
  HC_Flush_Contents("/f", "geometry, no text");
  EXPECT_EQ(HC_QShow_Existence("/f", "everything"), 3);
  HC_Flush_Geometry("/f");
  EXPECT_EQ(HC_QShow_Existence("/f", "geometry"), 0);
  HC_Flush_Contents("/f", "");
  EXPECT_EQ(HC_QShow_Existence("/f", "everything"), 0);
  EXPECT_EQ(HC_QShow_Existence("/f", "self"), 1);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(SegmentEdits, FlushKeepsOpenSubsegmentsAndSaysSo) {
  HC_Create_Segment("/f/gone");
  HC_Open_Segment("/f/open");
  HC_Flush_Contents("/f", "segments");
  HC_Close_Segment();
  EXPECT_EQ(HC_QShow_Existence("/f/*", "self"), 1);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(SegmentEdits, FlushOfAttributeOptionsRemovesThoseOptionsOnly) {
  HC_Open_Segment("/f");
  HC_Set_Rendering_Options("attribute lock = (color, visibility), lighting");
  HC_Set_Color("faces = red, edges = blue");
  HC_Set_User_Options("a=1, b=2");
  HC_Set_Heuristics("hidden surfaces");
  HC_Close_Segment();
  HC_Flush_Contents("/f", "rendering options = attribute lock, color = faces, user options = a, heuristics, "
                          "no heuristics");
  EXPECT_TRUE(TakeReports().empty());
  EXPECT_EQ(HC_QShow_Existence("/f", "rendering options = attribute lock"), 0);
  EXPECT_EQ(HC_QShow_Existence("/f", "rendering options = lighting"), 1);
  EXPECT_EQ(HC_QShow_Existence("/f", "heuristics"), 1);
  char text[256];
  HC_Open_Segment("/f");
  HC_Show_Color(text);
  EXPECT_STREQ(text, "edges=blue");
  HC_Show_User_Options(text);
  EXPECT_STREQ(text, "b=2");
  HC_Close_Segment();
  HC_Flush_Contents("/f", "rendering options = lighting, color = edges = diffuse");
  EXPECT_EQ(HC_QShow_Existence("/f", "rendering options, color"), 0);  // nothing left of either
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(SegmentEdits, FlushWithAnUnknownOptionChangesNothing) {
  HC_Open_Segment("/f");
  HC_Insert_Marker(0, 0, 0);
  HC_Set_Heuristics("hidden surfaces");
  HC_Close_Segment();
  const std::string before = TreeSnapshot();
  for (const char* filter : {"geometry, heuristics = sparkle", "geometry, color = nowhere",
                             "geometry, modelling matrix = anything"}) {
    HC_Flush_Contents("/f", filter);
    const auto reports = TakeReports();
    ASSERT_EQ(reports.size(), 1u) << filter;
    EXPECT_EQ(reports[0].specific, 2301) << filter;
    EXPECT_EQ(TreeSnapshot(), before) << filter;
  }
}

TEST_F(SegmentEdits, BringToFrontReordersSearchResults) {
  HC_Open_Segment("/order");
  const long long first = HC_Insert_Marker(0, 0, 0);
  const long long second = HC_Insert_Marker(1, 1, 1);
  HC_Close_Segment();
  HC_Bring_To_Front_By_Key(first);
  HC_Begin_Contents_Search("/order", "markers");
  char type[32];
  long long key = 0;
  ASSERT_TRUE(HC_Find_Contents(type, &key));
  HC_End_Contents_Search();
  EXPECT_EQ(key, second);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(SegmentEdits, AliasesExpandAtThePathStart) {
  HC_Define_Alias("?Parts", "/include library/parts");
  const long long bolt = HC_Create_Segment("?parts/bolt");
  EXPECT_EQ(PathOf(bolt), "/include library/parts/bolt");
  char text[256];
  HC_Show_Alias("?PARTS", text);
  EXPECT_STREQ(text, "/include library/parts");
  HC_Show_Pathname_Expansion("?parts/nut/../Washer", text);
  EXPECT_STREQ(text, "/include library/parts/washer");
  HC_Open_Segment_By_Key(bolt);
  HC_Show_Pathname_Expansion(".", text);
  EXPECT_STREQ(text, "/include library/parts/bolt");
  HC_Show_Pathname_Expansion("*/x, ^", text);
  EXPECT_STREQ(text, "/include library/parts/bolt/*/x,/include library/parts");
  HC_Close_Segment();
  HC_UnDefine_Alias("?parts");
  EXPECT_TRUE(TakeReports().empty());
  HC_UnDefine_Alias("?picture");
  HC_Show_Alias("?parts", text);
  EXPECT_STREQ(text, "");
  EXPECT_EQ(TakeReports().size(), 2u);
}

}  // namespace

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

using Renumbering = EngineTest;

TEST_F(Renumbering, AProgramKeyReplacesTheLibraryKeyUntilRestored) {
  HC_Open_Segment("/numbered");
  const long long marker = HC_Insert_Marker(1, 2, 3);
  const long long other = HC_Insert_Marker(4, 5, 6);
  HC_Close_Segment();
  EXPECT_EQ(HC_Renumber_Key(marker, 42, "G"), 42);
  char status[16];
  HC_Show_Key_Status(42, status);
  EXPECT_STREQ(status, "global");
  HC_Show_Key_Status(marker, status);
  EXPECT_STREQ(status, "invalid");
  float x = 0;
  HC_Show_Marker(42, &x, nullptr, nullptr);
  EXPECT_EQ(x, 1.0f);
  EXPECT_EQ(HC_Renumber_Key(42, -1, "global"), marker);
  HC_Show_Key_Status(marker, status);
  EXPECT_STREQ(status, "valid");
  EXPECT_EQ(HC_Renumber_Key(other, 7, "global "), 7);
  EXPECT_TRUE(TakeReports().empty());
  EXPECT_EQ(HC_Renumber_Key(marker, 7, "global"), marker);  // 7 is taken
  EXPECT_EQ(HC_Renumber_Key(marker, 8, "sideways"), marker);
  EXPECT_EQ(HC_Renumber_Key(marker, -5, "global"), marker);
  EXPECT_EQ(HC_Renumber_Key(HC_Create_Segment("/"), 3, "local"), HC_Create_Segment("/"));  // the root has no owner
  EXPECT_EQ(TakeReports().size(), 4u);
  HC_Delete_By_Key(7);
  HC_Show_Key_Status(7, status);
  EXPECT_STREQ(status, "invalid");
}

float MarkerX(long long key) {
  float x = 0;
  HC_Show_Marker(key, &x, nullptr, nullptr);
  return x;
}

TEST_F(Renumbering, LocalKeysResolveAmongTheCurrentSegmentsItems) {
  HC_Open_Segment("/a");
  const long long in_a = HC_Insert_Marker(1, 0, 0);
  EXPECT_EQ(HC_Renumber_Key(in_a, 5, "local"), 5);
  const long long child = HC_Create_Segment("child");
  EXPECT_EQ(HC_Renumber_Key(child, 9, "L"), 9);
  HC_Close_Segment();
  HC_Open_Segment("/b");
  const long long in_b = HC_Insert_Marker(2, 0, 0);
  EXPECT_EQ(HC_Renumber_Key(in_b, 5, "local"), 5);  // another segment's 5
  EXPECT_EQ(MarkerX(5), 2.0f);
  HC_Close_Segment();
  const long long global = HC_Insert_Marker(3, 0, 0);
  EXPECT_TRUE(TakeReports().empty());

  char status[16];
  HC_Show_Key_Status(5, status);  // nothing open: no local 5 in sight
  EXPECT_STREQ(status, "invalid");
  EXPECT_EQ(HC_Renumber_Key(global, 5, "global"), 5);
  EXPECT_EQ(MarkerX(5), 3.0f);
  HC_Open_Segment("/a");
  EXPECT_EQ(MarkerX(5), 1.0f);  // the local key hides the global one
  HC_Open_Segment_By_Key(9);
  char path[64];
  HC_Show_Pathname_Expansion(".", path);
  EXPECT_STREQ(path, "/a/child");
  HC_Close_Segment();
  HC_Delete_By_Key(5);
  HC_Show_Key_Status(5, status);
  EXPECT_STREQ(status, "global");
  HC_Close_Segment();
  EXPECT_TRUE(TakeReports().empty());

  HC_Open_Segment("/b");
  HC_Renumber_Key(HC_Insert_Marker(0, 0, 0), 9, "local");
  HC_Move_By_Key(5, "/a");
  EXPECT_EQ(MarkerX(5), 3.0f);  // /b's 5 went to /a: the global one shows through
  HC_Move_By_Key(9, "/a");      // /a has a 9 already
  EXPECT_EQ(MarkerX(9), 0.0f);
  HC_Close_Segment();
  HC_Open_Segment("/a");
  EXPECT_EQ(MarkerX(5), 2.0f);
  HC_Close_Segment();
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_EQ(reports[0].specific, 2401);
}

}  // namespace
