#pragma once
// A scratch folder for archive tests, and the outside tools that make and
// check archives: Info-ZIP's zip and unzip, and Python's zipfile.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "sceneward/foundation/zfile.h"

class ArchiveFilesTest : public ::testing::Test {
 protected:
  ArchiveFilesTest() {
    char pattern[] = "/tmp/sw-archive-XXXXXX";
    directory_ = mkdtemp(pattern);
  }
  ~ArchiveFilesTest() override { std::system(("rm -rf '" + directory_ + "'").c_str()); }

  std::string Path(const std::string& name) const { return directory_ + "/" + name; }
  ZFile File(const std::string& name) const { return ZFile(ZString(Path(name).c_str())); }

  void WriteBytes(const std::string& name, const std::string& bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
  }
  std::string ReadBytes(const std::string& name) const {
    std::ifstream in(Path(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }

  // Runs `command` in the scratch folder, quietly; its exit status.
  int Run(const std::string& command) const {
    return std::system(("cd '" + directory_ + "' && " + command + " >/dev/null 2>&1").c_str());
  }
  static bool HaveTool(const char* tool) {
    return std::system((std::string("command -v ") + tool + " >/dev/null 2>&1").c_str()) == 0;
  }

  std::string directory_;
};

// Skips a test that needs an outside tool which isn't installed.
#define SW_REQUIRE_TOOL(tool) \
  if (!HaveTool(tool)) GTEST_SKIP() << tool << " is not installed (scripts/install-deps installs it)"

inline std::vector<char> Bytes(const std::string& text) { return std::vector<char>(text.begin(), text.end()); }
inline std::string Text(const std::vector<char>& bytes) { return std::string(bytes.begin(), bytes.end()); }
