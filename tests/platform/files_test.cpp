// The file system under 16-bit names, the temporary folder, the desktop
// opener and GUIDs.
#include "platform/files.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <set>
#include <string>

#include "platform/guid.h"
#include "support/scoped_locale.h"

namespace {

WideString Wide(const std::string& ascii) { return WideString(ascii.begin(), ascii.end()); }

// Sets an environment variable for the life of the object.
class ScopedEnvironment {
 public:
  ScopedEnvironment(const char* name, const std::string& value) : name_(name) {
    const char* before = std::getenv(name);
    had_ = before != nullptr;
    if (had_) previous_ = before;
    setenv(name, value.c_str(), 1);
  }
  ~ScopedEnvironment() {
    if (had_) {
      setenv(name_, previous_.c_str(), 1);
    } else {
      unsetenv(name_);
    }
  }

 private:
  const char* name_;
  bool had_;
  std::string previous_;
};

class PlatformFilesTest : public ::testing::Test {
 protected:
  PlatformFilesTest() {
    char pattern[] = "/tmp/sw-files-XXXXXX";
    directory_ = mkdtemp(pattern);
  }
  ~PlatformFilesTest() override { std::system(("rm -rf '" + directory_ + "'").c_str()); }

  std::string directory_;
};

TEST_F(PlatformFilesTest, AttributesTellFoldersFromFilesAndMissingPaths) {
  const std::string file = directory_ + "/plain.txt";
  std::ofstream(file) << "x";
  EXPECT_EQ(platform::GetFileAttributes(Wide(file).c_str()), platform::kNormalAttribute);
  EXPECT_EQ(platform::GetFileAttributes(Wide(directory_).c_str()), platform::kDirectoryAttribute);
  EXPECT_EQ(platform::GetFileAttributes(Wide(directory_ + "/missing").c_str()), platform::kInvalidFileAttributes);
}

TEST_F(PlatformFilesTest, DirectoriesAreMadeOneLevelAtATime) {
  EXPECT_FALSE(platform::CreateDirectory(Wide(directory_ + "/a/b").c_str()));
  EXPECT_TRUE(platform::CreateDirectory(Wide(directory_ + "/a").c_str()));
  EXPECT_FALSE(platform::CreateDirectory(Wide(directory_ + "/a").c_str()));
  EXPECT_TRUE(platform::CreateDirectory(Wide(directory_ + "/a/b").c_str()));
}

TEST_F(PlatformFilesTest, DeleteRemovesFilesButNotFolders) {
  const std::string file = directory_ + "/gone.txt";
  std::ofstream(file) << "x";
  EXPECT_TRUE(platform::DeleteFile(Wide(file).c_str()));
  EXPECT_FALSE(platform::DeleteFile(Wide(file).c_str()));
  EXPECT_FALSE(platform::DeleteFile(Wide(directory_).c_str()));
}

TEST_F(PlatformFilesTest, NamesOutsideAsciiReachTheFileSystemInUtf8) {
  ScopedLocale locale("C.UTF-8");
  ASSERT_TRUE(locale.applied());
  const WideString name = Wide(directory_ + "/") + u"gr\u00fc\u00dfe.txt";
  std::FILE* file = platform::OpenFile(name.c_str(), "wb");
  ASSERT_NE(file, nullptr);
  std::fclose(file);
  EXPECT_EQ(access((directory_ + "/gr\xC3\xBC\xC3\x9F" "e.txt").c_str(), F_OK), 0);
  // A unit that no encoding can hold names no file at all.
  const WideString unpaired = Wide(directory_ + "/") + u"\xD800";
  EXPECT_EQ(platform::GetFileAttributes(unpaired.c_str()), platform::kInvalidFileAttributes);
  EXPECT_EQ(platform::OpenFile(unpaired.c_str(), "wb"), nullptr);
}

TEST_F(PlatformFilesTest, TempPathFollowsTmpdirAndEndsInASeparator) {
  ScopedEnvironment tmpdir("TMPDIR", directory_);
  const uint32_t needed = platform::GetTempPath(0, nullptr);
  EXPECT_EQ(needed, directory_.size() + 2);  // the separator and the terminator
  WideString buffer(needed, u'?');
  EXPECT_EQ(platform::GetTempPath(needed, buffer.data()), needed - 1);
  EXPECT_EQ(buffer, Wide(directory_ + "/") + u'\0');
  // A buffer one unit short is left alone.
  WideString shorter(needed - 1, u'?');
  EXPECT_EQ(platform::GetTempPath(needed - 1, shorter.data()), needed);
  EXPECT_EQ(shorter, WideString(needed - 1, u'?'));
}

TEST_F(PlatformFilesTest, EmptyTmpdirMeansTmp) {
  ScopedEnvironment tmpdir("TMPDIR", "");
  WideString buffer(16, u'\0');
  EXPECT_EQ(platform::GetTempPath(16, buffer.data()), 5u);
  EXPECT_EQ(buffer.substr(0, 5), u"/tmp/");
}

TEST_F(PlatformFilesTest, DesktopOpenerGetsThePath) {
  // A stand-in opener, found first through PATH, notes what it was given.
  const std::string opener = directory_ + "/xdg-open";
  const std::string noted = directory_ + "/opened";
  std::ofstream(opener) << "#!/bin/sh\nprintf '%s' \"$1\" > '" << noted << ".part' && mv '" << noted << ".part' '"
                        << noted << "'\n";
  chmod(opener.c_str(), 0755);
  ScopedEnvironment path("PATH", directory_ + ":" + std::getenv("PATH"));
  platform::OpenWithDesktop(Wide(directory_ + "/some file.txt").c_str());
  // The opener isn't waited for; it moves its note into place when done.
  for (int i = 0; i < 500 && access(noted.c_str(), F_OK) != 0; ++i) usleep(10000);
  std::ifstream in(noted);
  std::string seen;
  std::getline(in, seen);
  EXPECT_EQ(seen, directory_ + "/some file.txt");
}

TEST(PlatformGuidTest, GuidsAreRandomVersionFourIdentifiers) {
  std::set<std::string> seen;
  for (int i = 0; i < 64; ++i) {
    platform::Guid guid{};
    ASSERT_TRUE(platform::CreateGuid(guid));
    EXPECT_EQ(guid.Data3 >> 12, 4);
    EXPECT_EQ(guid.Data4[0] >> 6, 2);
    seen.insert(std::string(reinterpret_cast<const char*>(&guid), sizeof guid));
  }
  EXPECT_EQ(seen.size(), 64u);
}

}  // namespace
