// graphics/README.md carries the list of implemented functions; it must match
// the engine, or scripts/update-graphics-readme has not been run.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "graphics/api/function_status.h"

namespace {

std::string ReadFile(std::filesystem::path const& path) {
  std::ifstream in(path);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

TEST(GraphicsReadme, FunctionStatusSectionMatchesTheEngine) {
  // The build passes absolute source paths, so the README is found from here.
  std::filesystem::path const readme =
      std::filesystem::path(__FILE__).parent_path() / "../../graphics/README.md";
  std::string const text = ReadFile(readme);
  std::string const begin = "<!-- function-status:begin -->\n";
  std::string const end = "<!-- function-status:end -->";
  std::size_t const from = text.find(begin);
  std::size_t const to = text.find(end);
  ASSERT_NE(from, std::string::npos) << readme;
  ASSERT_NE(to, std::string::npos) << readme;
  ASSERT_LT(from, to);

  std::string const section = text.substr(from + begin.size(), to - from - begin.size());
  EXPECT_EQ(section, graphics::FunctionStatusMarkdown())
      << "run scripts/update-graphics-readme";
}

}  // namespace
