// Images made by ImageMagick, stored and read back pixel for pixel.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "engine_fixture.h"

namespace {

namespace fs = std::filesystem;
using engine_test::EngineTest;
using engine_test::TakeReports;

// ImageMagick's own built-in picture, 70 x 46 pixels of a rose.
constexpr int kRoseWidth = 70;
constexpr int kRoseHeight = 46;

bool HaveImageMagick() { return std::system("convert -version 2>/dev/null | grep -q ImageMagick") == 0; }

class ImageMagickImages : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    if (!HaveImageMagick()) GTEST_SKIP() << "ImageMagick's convert is not installed";
    directory_ = fs::temp_directory_path() / ("imagemagick_images_test." + std::to_string(getpid()));
    fs::create_directories(directory_);
  }
  void TearDown() override {
    if (!directory_.empty()) fs::remove_all(directory_);
    EngineTest::TearDown();
  }

  // The raw 8-bit pixels `convert` writes for `operations`, top row first,
  // in `layout` ("rgb" or "rgba").
  std::vector<unsigned char> Convert(const std::string& operations, const std::string& layout) {
    const fs::path out = directory_ / ("pixels." + layout);
    const std::string command = "convert " + operations + " -depth 8 " + layout + ":" + out.string();
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
    std::ifstream in(out, std::ios::binary);
    return std::vector<unsigned char>(std::istreambuf_iterator<char>(in), {});
  }

  fs::path directory_;
};

TEST_F(ImageMagickImages, RgbPixelsComeBackAsStored) {
  const std::vector<unsigned char> rose = Convert("rose:", "rgb");
  ASSERT_EQ(rose.size(), size_t{kRoseWidth * kRoseHeight * 3});
  HC_Open_Segment("/pictures");
  const long long key = HC_Insert_Image(1, 2, 3, "rgb", kRoseWidth, kRoseHeight, rose.data());
  HC_Close_Segment();
  char format[64];
  int width = 0, height = 0;
  std::vector<unsigned char> shown(rose.size());
  HC_Show_Image(key, nullptr, nullptr, nullptr, format, &width, &height, shown.data());
  EXPECT_STREQ(format, "rgb");
  EXPECT_EQ(width, kRoseWidth);
  EXPECT_EQ(height, kRoseHeight);
  EXPECT_EQ(shown, rose);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(ImageMagickImages, PartialShowsMatchImageMagicksCrop) {
  // Half-transparent, so the alpha channel carries something of its own.
  const std::string rose = "rose: -alpha set -channel A -fx 'i/w' +channel";
  const std::vector<unsigned char> whole = Convert(rose, "rgba");
  ASSERT_EQ(whole.size(), size_t{kRoseWidth * kRoseHeight * 4});
  const long long key = HC_Insert_Image(0, 0, 0, "rgba", kRoseWidth, kRoseHeight, whole.data());
  struct Rectangle {
    int x, y, width, height;
  };
  for (const Rectangle r :
       {Rectangle{5, 3, 10, 8}, Rectangle{60, 40, 10, 6}, Rectangle{0, 0, kRoseWidth, kRoseHeight}}) {
    const std::string crop = std::to_string(r.width) + "x" + std::to_string(r.height) + "+" + std::to_string(r.x) +
                             "+" + std::to_string(r.y);
    const std::vector<unsigned char> expected = Convert(rose + " -crop " + crop + " +repage", "rgba");
    std::vector<unsigned char> shown(expected.size());
    HC_Show_Partial_Image(key, r.x, r.y, r.width, r.height, shown.data());
    EXPECT_EQ(shown, expected) << crop;
  }
  EXPECT_TRUE(TakeReports().empty());
}

}  // namespace
