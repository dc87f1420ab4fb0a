// ZColor: construction and validity, clamping and truncation, the packed
// layouts, the proportion and NaN forms that the attribute code relies on,
// and the JSON text.
#include "sceneward/foundation/zcolor.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

void ExpectChannels(ZColor const& c, int r, int g, int b, int a) {
  EXPECT_EQ(c.GetRed(), r);
  EXPECT_EQ(c.GetGreen(), g);
  EXPECT_EQ(c.GetBlue(), b);
  EXPECT_EQ(c.GetAlpha(), a);
}

TEST(ZColorConstruction, DefaultIsTransparentWhileThreeChannelsAreOpaque) {
  const ZColor transparent;
  const ZColor opaque(0, 0, 0);
  EXPECT_TRUE(transparent.IsValid());
  EXPECT_TRUE(opaque.IsValid());
  EXPECT_EQ(transparent.GetAlpha(), 0);
  EXPECT_EQ(opaque.GetAlpha(), 255);
  EXPECT_NE(transparent, opaque);
  EXPECT_FALSE(transparent.Equals(opaque));
  ExpectChannels(ZColor(300, -5, 10), 255, 0, 10, 255);
}

TEST(ZColorConstruction, AllMinusOneIsTheInvalidColour) {
  const ZColor minusOnes(-1, -1, -1, -1);
  EXPECT_FALSE(minusOnes.IsValid());
  ExpectChannels(minusOnes, 0, 0, 0, 0);
  EXPECT_EQ(minusOnes, ZColor::InvalidColor);
  EXPECT_FALSE(ZColor::InvalidColor.IsValid());
  // Only all four make it invalid; the three-channel form has alpha 255.
  EXPECT_TRUE(ZColor(-1, -1, -1).IsValid());
  EXPECT_TRUE(ZColor(-1, -1, -1, 7).IsValid());
}

TEST(ZColorConstruction, ProportionsWithNaN) {
  // The channels that were numbers keep their values.
  EXPECT_FALSE(ZColor(1.0f, 0.0f, kNaN).IsValid());
  ExpectChannels(ZColor(1.0f, 0.0f, kNaN), 255, 0, 0, 255);
  const ZColor greyNoAlpha(0.5f, 0.5f, 0.5f, kNaN);
  EXPECT_TRUE(greyNoAlpha.IsValid());
  ExpectChannels(greyNoAlpha, 127, 127, 127, 255);
  // An invalid colour keeps an alpha that was a number.
  const ZColor invalidHalfAlpha(kNaN, 0.0f, 0.0f, 0.5f);
  EXPECT_FALSE(invalidHalfAlpha.IsValid());
  EXPECT_EQ(invalidHalfAlpha.GetAlpha(), 127);
  ExpectChannels(ZColor(2.0f, -1.0f, 0.25f), 255, 0, 63, 255);
}

TEST(ZColorChannels, SettersClampTruncateAndKeepValidity) {
  ZColor invalid = ZColor::InvalidColor;
  invalid.SetRed(10);
  EXPECT_FALSE(invalid.IsValid());
  EXPECT_EQ(invalid.GetRed(), 10);

  ZColor c(0, 0, 0);
  c.SetRedProp(0.999f);
  c.SetGreenProp(1e30f);
  c.SetBlueProp(kNaN);
  c.SetAlphaProp(-0.5f);
  ExpectChannels(c, 254, 255, 0, 0);
  c.SetGreen(-3);
  c.SetBlue(1000);
  ExpectChannels(c, 254, 0, 255, 0);
  EXPECT_FLOAT_EQ(ZColor(255, 51, 0).GetRedProp(), 1.0f);
  EXPECT_FLOAT_EQ(ZColor(255, 51, 0).GetGreenProp(), 0.2f);
}

TEST(ZColorPacking, LayoutsOfOneTwoThreeFour) {
  const ZColor c(1, 2, 3, 4);
  EXPECT_EQ(c.GetAsPackedInt(ColorRefFormat), 0x030201u);
  EXPECT_EQ(c.GetAsPackedInt(Win32BitFormat), 0x04010203u);
  EXPECT_EQ(c.GetAsPackedInt(OpenGLFormat), 0x04030201u);
  EXPECT_EQ(c.GetAsColorRef(), 0x030201ul);
  EXPECT_EQ(c.GetAsWin32BitFormat(), 0x04010203u);
  EXPECT_EQ(c.GetAsOpenGLFormat(), 0x04030201u);
  EXPECT_EQ(c.GetAsPackedInt(static_cast<ZColorDataFormat>(3)), 0u);
}

TEST(ZColorPacking, UnpackingRoundTripsAndLeavesValidityAlone) {
  ZColor c = ZColor::InvalidColor;
  c.SetFromPackedInt(0x04030201u, ColorRefFormat);
  ExpectChannels(c, 1, 2, 3, 255);
  EXPECT_FALSE(c.IsValid());
  c.SetFromWin32BitFormat(0x80C0FF10u);
  ExpectChannels(c, 0xC0, 0xFF, 0x10, 0x80);
  c.SetFromOpenGLFormat(0x80C0FF10u);
  ExpectChannels(c, 0x10, 0xFF, 0xC0, 0x80);
  c.SetFromPackedInt(0x01020304u, static_cast<ZColorDataFormat>(7));
  ExpectChannels(c, 0x10, 0xFF, 0xC0, 0x80);

  const ZColor unpacked(0x04030201u, Win32BitFormat);
  EXPECT_TRUE(unpacked.IsValid());
  EXPECT_EQ(unpacked.GetAsWin32BitFormat(), 0x04030201u);
  EXPECT_EQ(ZColor(0x04030201u, static_cast<ZColorDataFormat>(5)), ZColor());
}

TEST(ZColorDerived, FloatArrayIsNaNForTheInvalidColour) {
  float out[4];
  EXPECT_EQ(ZColor::InvalidColor.GetAsFloatArray(out), out);
  for (float f : out) EXPECT_EQ(std::bit_cast<std::uint32_t>(f), 0x7FC00000u);
  ZColor(255, 0, 51, 255).GetAsFloatArray(out);
  EXPECT_FLOAT_EQ(out[0], 1.0f);
  EXPECT_FLOAT_EQ(out[1], 0.0f);
  EXPECT_FLOAT_EQ(out[2], 0.2f);
  EXPECT_FLOAT_EQ(out[3], 1.0f);
}

TEST(ZColorDerived, GreyScaleAndInverseDropAlpha) {
  EXPECT_EQ(ZColor(255, 255, 255).GetBWVal(), 255);
  EXPECT_EQ(ZColor(100, 0, 0).GetBWVal(), 29);
  EXPECT_EQ(ZColor(0, 0, 255).GetBWVal(), 29);
  ExpectChannels(ZColor(10, 20, 30, 0).GetInverse(), 245, 235, 225, 255);
  ExpectChannels(ZColor(100, 200, 3, 9).Scale(1.5f), 150, 255, 4, 255);
  ExpectChannels(ZColor(100, 200, 3).Scale(-1.0f), 0, 0, 0, 255);
}

TEST(ZColorText, JsonKeepsChannelsOfAnyColour) {
  EXPECT_EQ(ZColor(255, 0, 0).getAsJSON(), R"({"R": 255, "G": 0, "B": 0, "A": 255})");
  EXPECT_EQ(ZColor::InvalidColor.getAsJSON(), R"({"R": 0, "G": 0, "B": 0, "A": 0})");
}

}  // namespace
