// Paths with file operations, and temporary files that clean up after
// themselves.
#include "sceneward/foundation/zfile.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <regex>
#include <string>

#include "sceneward/foundation/ztemp_file.h"

namespace {

class ZFileTest : public ::testing::Test {
 protected:
  ZFileTest() {
    char pattern[] = "/tmp/sw-zfile-XXXXXX";
    directory_ = mkdtemp(pattern);
  }
  ~ZFileTest() override { std::system(("rm -rf '" + directory_ + "'").c_str()); }

  std::string Touch(const std::string& name) {
    const std::string path = directory_ + "/" + name;
    std::ofstream(path) << "content";
    return path;
  }

  std::string directory_;
};

TEST_F(ZFileTest, FoldersExistOnlyAsFolders) {
  const ZFile folder{ZString(directory_.c_str())};
  EXPECT_TRUE(folder.IsFolder());
  EXPECT_FALSE(folder.Exists());
  const ZFile plain{ZString(Touch("a.txt").c_str())};
  EXPECT_TRUE(plain.Exists());
  EXPECT_FALSE(plain.IsFolder());
  const ZFile missing{ZString((directory_ + "/none").c_str())};
  EXPECT_FALSE(missing.Exists());
  EXPECT_FALSE(missing.IsFolder());
}

TEST_F(ZFileTest, CreateAsDirectoryMakesOneLevel) {
  EXPECT_FALSE(ZFile(ZString((directory_ + "/x/y").c_str())).CreateAsDirectory());
  const ZFile level{ZString((directory_ + "/x").c_str())};
  EXPECT_TRUE(level.CreateAsDirectory());
  EXPECT_TRUE(level.IsFolder());
  EXPECT_FALSE(level.CreateAsDirectory());
}

TEST_F(ZFileTest, DeleteRemovesAFileOnce) {
  const ZFile plain{ZString(Touch("b.txt").c_str())};
  EXPECT_TRUE(plain.Delete());
  EXPECT_FALSE(plain.Exists());
  EXPECT_FALSE(plain.Delete());
  EXPECT_FALSE(ZFile(ZString(directory_.c_str())).Delete());
}

TEST_F(ZFileTest, ExtensionsBelongToTheFileNameOnly) {
  EXPECT_EQ(ZFile(ZString("/data/model.kvf")).GetExtension(), "kvf");
  EXPECT_EQ(ZFile(ZString("/data.old/model")).GetExtension(), "");
  EXPECT_EQ(ZFile(ZString("/data/.hidden")).GetExtension(), "");
}

TEST_F(ZFileTest, CopiesAndConversionsCarryThePath) {
  ZFile original{ZString("/some/where.txt")};
  ZFile copy = original;
  original.SetPathAndFile(ZString("/else.txt"));
  EXPECT_EQ(copy.GetPathAndFile(), "/some/where.txt");
  EXPECT_EQ(static_cast<ZString>(original), "/else.txt");
}

class ZTempFileTest : public ZFileTest {
 protected:
  // Temporary files go to the test's own folder.
  ZTempFileTest() : previous_(std::getenv("TMPDIR") ? std::getenv("TMPDIR") : "") {
    setenv("TMPDIR", directory_.c_str(), 1);
  }
  ~ZTempFileTest() override {
    if (previous_.empty()) {
      unsetenv("TMPDIR");
    } else {
      setenv("TMPDIR", previous_.c_str(), 1);
    }
  }

  std::string previous_;
};

const char* kGuid = "[0-9A-F]{8}-[0-9A-F]{4}-[0-9a-f]{4}-[0-9A-F]{4}-[0-9A-F]{12}";

TEST_F(ZTempFileTest, NamesCarryTheExtensionBeforeAndAfterTheGuid) {
  const std::string withExtension = ZTempFile::GetTempFileNameW(ZString("dat")).GetAsMBCS();
  EXPECT_TRUE(std::regex_match(withExtension, std::regex(directory_ + "/dat" + kGuid + "\\.tmp\\.dat")))
      << withExtension;
  const std::string dotted = ZTempFile::GetTempFileNameW(ZString("..dat")).GetAsMBCS();
  EXPECT_TRUE(std::regex_match(dotted, std::regex(directory_ + "/dat" + kGuid + "\\.tmp\\.dat"))) << dotted;
  const std::string bare = ZTempFile::GetTempFileNameW(ZString("")).GetAsMBCS();
  EXPECT_TRUE(std::regex_match(bare, std::regex(directory_ + "/" + kGuid + "\\.tmp"))) << bare;
  EXPECT_NE(withExtension, ZTempFile::GetTempFileNameW(ZString("dat")).GetAsMBCS());
}

TEST_F(ZTempFileTest, TempPathEndsInTheSeparator) {
  EXPECT_EQ(ZTempFile::GetTempPathW(), (directory_ + "/").c_str());
}

TEST_F(ZTempFileTest, FileGoesWithItsObjectUnlessDetached) {
  std::string kept;
  std::string removed;
  {
    ZTempFile temporary(ZString("txt"));
    removed = temporary.GetPathAndFile().GetAsMBCS();
    std::ofstream(removed) << "x";
    ZTempFile detached(ZString("txt"));
    kept = detached.GetPathAndFile().GetAsMBCS();
    std::ofstream(kept) << "x";
    detached.Detach();
  }
  EXPECT_NE(access(removed.c_str(), F_OK), 0);
  EXPECT_EQ(access(kept.c_str(), F_OK), 0);
}

TEST_F(ZTempFileTest, CopiesShareTheDutyToDelete) {
  ZTempFile first(ZString("bin"));
  const std::string path = first.GetPathAndFile().GetAsMBCS();
  {
    ZTempFile second = first;
    std::ofstream(path) << "x";
  }
  EXPECT_NE(access(path.c_str(), F_OK), 0);
}

}  // namespace
