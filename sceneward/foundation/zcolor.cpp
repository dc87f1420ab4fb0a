#include "sceneward/foundation/zcolor.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

namespace {

// 1/255 as the float that every proportion is computed with.
constexpr float kChannelToProportion = 0.003921569f;

int ClampChannel(int value) { return std::clamp(value, 0, 255); }

// Truncates towards zero the way the processor's conversion does for a NaN:
// to the lowest integer, which then clamps to a channel of 0. Finite values
// beyond the integer range saturate instead of being undefined.
int TruncateToInt(double value) {
  if (std::isnan(value)) return INT_MIN;
  if (value <= static_cast<double>(INT_MIN)) return INT_MIN;
  if (value >= static_cast<double>(INT_MAX)) return INT_MAX;
  return static_cast<int>(value);
}

int ChannelFromProportion(float proportion) {
  return ClampChannel(TruncateToInt(proportion * 255.0));
}

unsigned int Byte(unsigned int packed, int index) { return (packed >> (8 * index)) & 0xFFu; }

unsigned int Pack(int byte0, int byte1, int byte2, int byte3) {
  return static_cast<unsigned int>(byte0) | static_cast<unsigned int>(byte1) << 8 |
         static_cast<unsigned int>(byte2) << 16 | static_cast<unsigned int>(byte3) << 24;
}

ZColor MakeInvalidColor() {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  return ZColor(nan, nan, nan, nan);
}

}  // namespace

const ZColor ZColor::InvalidColor = MakeInvalidColor();

ZColor::ZColor() { SetColor(0, 0, 0, 0); }
ZColor::ZColor(int r, int g, int b) { SetColor(r, g, b, 255); }
ZColor::ZColor(int r, int g, int b, int a) { SetColor(r, g, b, a); }
ZColor::ZColor(float r, float g, float b) { SetColorProp(r, g, b, 1.0f); }
ZColor::ZColor(float r, float g, float b, float a) { SetColorProp(r, g, b, a); }

ZColor::ZColor(unsigned int packed, ZColorDataFormat format)
    : red(0), green(0), blue(0), alpha(0), valid(true) {
  SetFromPackedInt(packed, format);
}

bool ZColor::operator==(const ZColor& other) const {
  return red == other.red && green == other.green && blue == other.blue && alpha == other.alpha &&
         valid == other.valid;
}
bool ZColor::operator!=(const ZColor& other) const { return !(*this == other); }
bool ZColor::Equals(const ZColor& other) const { return *this == other; }

int ZColor::GetRed() const { return red; }
int ZColor::GetGreen() const { return green; }
int ZColor::GetBlue() const { return blue; }
int ZColor::GetAlpha() const { return alpha; }

void ZColor::SetRed(int value) { red = ClampChannel(value); }
void ZColor::SetGreen(int value) { green = ClampChannel(value); }
void ZColor::SetBlue(int value) { blue = ClampChannel(value); }
void ZColor::SetAlpha(int value) { alpha = ClampChannel(value); }

float ZColor::GetRedProp() const { return red * kChannelToProportion; }
float ZColor::GetGreenProp() const { return green * kChannelToProportion; }
float ZColor::GetBlueProp() const { return blue * kChannelToProportion; }
float ZColor::GetAlphaProp() const { return alpha * kChannelToProportion; }

void ZColor::SetRedProp(float value) { red = ChannelFromProportion(value); }
void ZColor::SetGreenProp(float value) { green = ChannelFromProportion(value); }
void ZColor::SetBlueProp(float value) { blue = ChannelFromProportion(value); }
void ZColor::SetAlphaProp(float value) { alpha = ChannelFromProportion(value); }

void ZColor::SetColor(int r, int g, int b) { SetColor(r, g, b, 255); }

void ZColor::SetColor(int r, int g, int b, int a) {
  valid = !(r == -1 && g == -1 && b == -1 && a == -1);
  SetRed(r);
  SetGreen(g);
  SetBlue(b);
  SetAlpha(a);
}

void ZColor::SetColorProp(float r, float g, float b) { SetColorProp(r, g, b, 1.0f); }

void ZColor::SetColorProp(float r, float g, float b, float a) {
  valid = !(std::isnan(r) || std::isnan(g) || std::isnan(b));
  if (valid && std::isnan(a)) a = 1.0f;
  SetRedProp(r);
  SetGreenProp(g);
  SetBlueProp(b);
  SetAlphaProp(a);
}

unsigned int ZColor::GetAsPackedInt(ZColorDataFormat format) const {
  switch (format) {
    case ColorRefFormat:
      return Pack(red, green, blue, 0);
    case Win32BitFormat:
      return Pack(blue, green, red, alpha);
    case OpenGLFormat:
      return Pack(red, green, blue, alpha);
  }
  return 0;
}

void ZColor::SetFromPackedInt(unsigned int packed, ZColorDataFormat format) {
  switch (format) {
    case ColorRefFormat:
      red = Byte(packed, 0);
      green = Byte(packed, 1);
      blue = Byte(packed, 2);
      alpha = 255;
      return;
    case Win32BitFormat:
      blue = Byte(packed, 0);
      green = Byte(packed, 1);
      red = Byte(packed, 2);
      alpha = Byte(packed, 3);
      return;
    case OpenGLFormat:
      red = Byte(packed, 0);
      green = Byte(packed, 1);
      blue = Byte(packed, 2);
      alpha = Byte(packed, 3);
      return;
  }
}

unsigned long ZColor::GetAsColorRef() const { return GetAsPackedInt(ColorRefFormat); }
void ZColor::SetFromColorRef(unsigned long packed) {
  SetFromPackedInt(static_cast<unsigned int>(packed), ColorRefFormat);
}
unsigned int ZColor::GetAsWin32BitFormat() const { return GetAsPackedInt(Win32BitFormat); }
void ZColor::SetFromWin32BitFormat(unsigned int packed) {
  SetFromPackedInt(packed, Win32BitFormat);
}
unsigned int ZColor::GetAsOpenGLFormat() const { return GetAsPackedInt(OpenGLFormat); }
void ZColor::SetFromOpenGLFormat(unsigned int packed) { SetFromPackedInt(packed, OpenGLFormat); }

float* ZColor::GetAsFloatArray(float* out) const {
  if (!valid) {
    std::fill_n(out, 4, std::numeric_limits<float>::quiet_NaN());
    return out;
  }
  out[0] = GetRedProp();
  out[1] = GetGreenProp();
  out[2] = GetBlueProp();
  out[3] = GetAlphaProp();
  return out;
}

int ZColor::GetBWVal() const {
  const float grey = 0.587f * static_cast<float>(green) + 0.299f * static_cast<float>(red) +
                     0.114f * static_cast<float>(blue);
  return static_cast<int>(grey);
}

ZColor ZColor::Scale(float f) const {
  auto scaled = [f](int channel) { return TruncateToInt(static_cast<float>(channel) * f); };
  return ZColor(scaled(red), scaled(green), scaled(blue), 255);
}

ZColor ZColor::GetInverse() const { return ZColor(255 - red, 255 - green, 255 - blue, 255); }

bool ZColor::IsValid() const { return valid; }

std::string ZColor::getAsJSON() const {
  return "{\"R\": " + std::to_string(red) + ", \"G\": " + std::to_string(green) +
         ", \"B\": " + std::to_string(blue) + ", \"A\": " + std::to_string(alpha) + "}";
}
