// Text measurement with the system fonts: extents grow with size, length and
// spacing; outlines come as shell data with holes.
#include <cstdint>
#include <string>
#include <vector>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

struct Extent {
  float x = -1, y = -1;
};

Extent Measure(const char* text) {
  Extent e;
  EXPECT_TRUE(HC_Compute_Text_Extent(".", text, &e.x, &e.y));
  return e;
}

class TextExtent : public EngineTest {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    segment_ = HC_Open_Segment("/label");
  }
  void TearDown() override {
    HC_Close_Segment();
    EngineTest::TearDown();
  }
  long long segment_ = -1;
};

TEST_F(TextExtent, GrowsWithLengthSizeAndSpacing) {
  const Extent short_text = Measure("Hi");
  const Extent long_text = Measure("Hi there, a longer line");
  EXPECT_GT(short_text.x, 0);
  EXPECT_GT(long_text.x, 2 * short_text.x);
  EXPECT_FLOAT_EQ(long_text.y, short_text.y);

  HC_Set_Text_Font("size=0.06 sru");
  const Extent bigger = Measure("Hi");
  EXPECT_NEAR(bigger.x, 2 * short_text.x, 1e-5);
  EXPECT_NEAR(bigger.y, 2 * short_text.y, 1e-5);

  HC_Set_Text_Spacing(2);
  EXPECT_GT(Measure("Hi").x, bigger.x);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(TextExtent, LinesStackAndTheLongestSetsTheWidth) {
  const Extent one = Measure("wide line");
  const Extent two = Measure("wide line\nx");
  EXPECT_FLOAT_EQ(two.x, one.x);
  EXPECT_NEAR(two.y, 2 * one.y, 1e-5);
}

TEST_F(TextExtent, ASmallerWindowMakesTheSameTextALargerFraction) {
  const Extent whole = Measure("abc");
  HC_Set_Window(-0.5, 0.5, -0.5, 0.5);
  const Extent half = Measure("abc");
  EXPECT_NEAR(half.x, 2 * whole.x, 1e-5);
  EXPECT_NEAR(half.y, 2 * whole.y, 1e-5);
}

TEST_F(TextExtent, MonospacedFacesGiveEveryCharacterTheSameWidth) {
  HC_Set_Text_Font("name=typewriter");
  EXPECT_FLOAT_EQ(Measure("iiii").x, Measure("WWWW").x);
  HC_Set_Text_Font("name=sans serif");
  EXPECT_LT(Measure("iiii").x, Measure("WWWW").x);
}

TEST_F(TextExtent, EveryFormAgreesOnTheSameText) {
  const Extent plain = Measure("Key");
  Extent by_path, encoded, by_key;
  EXPECT_TRUE(HC_Compute_Text_Extent_By_Path(1, &segment_, "Key", &by_path.x, &by_path.y));
  const std::u16string wide = u"Key";
  EXPECT_TRUE(HC_Compute_Text_Extent_Enc_Path(1, &segment_, "unicode", wide.c_str(), &encoded.x, &encoded.y));
  const long long text = HC_Insert_Text(0, 0, 0, "Key");
  EXPECT_TRUE(HC_Compute_Text_Extent_By_Key(text, &by_key.x, &by_key.y));
  for (const Extent& e : {by_path, encoded, by_key}) {
    EXPECT_FLOAT_EQ(e.x, plain.x);
    EXPECT_FLOAT_EQ(e.y, plain.y);
  }
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(TextExtent, EncodedTextIsMeasuredInItsOwnCharacters) {
  // U+03A9 OMEGA, in each encoding; '?' stands where Latin-1 lacks it.
  const char utf8[] = "\xce\xa9\xce\xa9";
  const std::u16string utf16 = u"\u03a9\u03a9";
  const std::u32string utf32 = U"\u03a9\u03a9";
  Extent from_utf8, from_utf16, from_utf32, one, e_acute;
  EXPECT_TRUE(HC_Compute_Text_Extent_With_Enc(".", "UTF8", utf8, &from_utf8.x, &from_utf8.y));
  EXPECT_TRUE(HC_Compute_Text_Extent_With_Enc(".", "utf16", utf16.c_str(), &from_utf16.x, &from_utf16.y));
  EXPECT_TRUE(HC_Compute_Text_Extent_Enc_Path(1, &segment_, "utf32", utf32.c_str(), &from_utf32.x, &from_utf32.y));
  EXPECT_TRUE(HC_Compute_Text_Extent_With_Enc(".", "utf8", "\xce\xa9", &one.x, &one.y));
  EXPECT_FLOAT_EQ(from_utf16.x, from_utf8.x);
  EXPECT_FLOAT_EQ(from_utf32.x, from_utf8.x);
  EXPECT_FLOAT_EQ(from_utf8.x, 2 * one.x);
  EXPECT_NE(one.x, Measure("?").x);
  // A Latin-1 character is the same whichever way it comes.
  EXPECT_TRUE(HC_Compute_Text_Extent_With_Enc(".", "utf8", "\xc3\xa9", &e_acute.x, &e_acute.y));
  EXPECT_FLOAT_EQ(e_acute.x, Measure("\xe9").x);
  // A stored text item keeps its encoding too.
  const long long text = HC_Insert_Text_With_Encoding(0, 0, 0, "utf8", utf8);
  Extent by_key;
  EXPECT_TRUE(HC_Compute_Text_Extent_By_Key(text, &by_key.x, &by_key.y));
  EXPECT_FLOAT_EQ(by_key.x, from_utf8.x);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(TextExtent, FailuresAnswerFalseAndLeaveTheOutputs) {
  Extent e;
  EXPECT_FALSE(HC_Compute_Text_Extent("/no/such/segment", "x", &e.x, &e.y));
  EXPECT_FALSE(HC_Compute_Text_Extent_With_Enc(".", "klingon", "x", &e.x, &e.y));
  EXPECT_FALSE(HC_Compute_Text_Extent(".", nullptr, &e.x, &e.y));
  EXPECT_EQ(e.x, -1.0f);
  EXPECT_EQ(TakeReports().size(), 3u);
}

TEST_F(TextExtent, OutlinesGiveOuterContoursAndHoles) {
  int points = 0, faces = 0;
  HC_Compute_Text_Outline_Size(".", "o", &points, &faces);
  ASSERT_GT(points, 0);
  std::vector<float> xyz(3 * static_cast<size_t>(points));
  std::vector<int> face_list(static_cast<size_t>(faces));
  int written_points = 0, written_faces = 0;
  HC_Compute_Text_Outline(".", "o", &written_points, xyz.data(), &written_faces, face_list.data());
  EXPECT_EQ(written_points, points);
  EXPECT_EQ(written_faces, faces);
  // An "o" is one outer contour and one hole.
  int outer = 0, holes = 0;
  for (size_t i = 0; i < face_list.size(); i += static_cast<size_t>(std::abs(face_list[i])) + 1) {
    (face_list[i] > 0 ? outer : holes) += 1;
  }
  EXPECT_EQ(outer, 1);
  EXPECT_EQ(holes, 1);
  for (size_t i = 0; i < xyz.size(); i += 3) {
    EXPECT_LT(xyz[i + 1], 1.0f);  // unit-height glyphs
    EXPECT_EQ(xyz[i + 2], 0.0f);
  }
}

}  // namespace
