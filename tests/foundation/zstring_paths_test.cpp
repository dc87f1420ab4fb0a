// ZString: the parts of file paths.
#include <gtest/gtest.h>

#include "sceneward/foundation/zstring.h"

namespace {

struct PathCase {
  const char* path;
  const char* directory;
  const char* name;
  const char* stem;
  const char* extension;
};

constexpr PathCase kPaths[] = {
    {"dir/sub/file.txt", "dir/sub/", "file.txt", "file", "txt"},
    {"file.tar.gz", "", "file.tar.gz", "file.tar", "gz"},
    {"plain", "", "plain", "plain", ""},
    {".profile", "", ".profile", ".profile", ""},
    {"dir/.profile", "dir/", ".profile", ".profile", ""},
    {"a.b/c", "a.b/", "c", "c", ""},
    {"dir/a.", "dir/", "a.", "a", ""},
    {"dir/", "dir/", "", "", ""},
    {"", "", "", "", ""},
};

TEST(ZStringPathTest, SplitsPathsIntoTheirParts) {
  for (const PathCase& c : kPaths) {
    for (const ZString& path : {ZString(c.path), ZString(ZString(c.path).GetAsWChar_T())}) {
      SCOPED_TRACE(c.path);
      EXPECT_EQ(path.GetFilePath('/'), c.directory);
      EXPECT_EQ(path.GetFileName('/'), c.name);
      EXPECT_EQ(path.GetFileNameNoExtension('/'), c.stem);
      EXPECT_EQ(path.GetExtension('/'), c.extension);
    }
  }
}

TEST(ZStringPathTest, RemoveExtensionCutsTheDotToo) {
  ZString s("dir/a.b.c");
  s.RemoveExtension('/');
  EXPECT_EQ(s, "dir/a.b");
  s = "a.";
  s.RemoveExtension('/');
  EXPECT_EQ(s, "a");
  s = "dir.x/.profile";
  s.RemoveExtension('/');
  EXPECT_EQ(s, "dir.x/.profile");
}

TEST(ZStringPathTest, TheSeparatorIsTheCallersChoice) {
  const ZString s(u"C:\\models\\part.\u00E9xt");
  EXPECT_EQ(s.GetFileName('\\'), u"part.\u00E9xt");
  EXPECT_EQ(s.GetExtension('\\'), u"\u00E9xt");
  EXPECT_EQ(s.GetFileName('/'), s);
}

}  // namespace
