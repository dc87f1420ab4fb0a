#pragma once
// ZColor, the library's colour value: four integer channels from 0 to 255
// and a validity flag. An invalid colour is how "no colour" travels through
// the attribute code; its channels are 0 and its float form is four NaNs.
#include <string>

// Packed 32-bit layouts, each named by its byte order from the least
// significant byte.
enum ZColorDataFormat {
  // red, green, blue, 0. Unpacking ignores byte 3 and makes alpha 255.
  ColorRefFormat = 0,
  // blue, green, red, alpha.
  Win32BitFormat = 1,
  // red, green, blue, alpha.
  OpenGLFormat = 2,
};

class ZColor {
 public:
  // The colour that stands for "no colour": invalid, all channels 0.
  static const ZColor InvalidColor;

  // Transparent black, valid. Unlike the three-channel forms, alpha is 0.
  ZColor();
  // SetColor(r, g, b, 255).
  ZColor(int r, int g, int b);
  // SetColor(r, g, b, a).
  ZColor(int r, int g, int b, int a);
  // SetColorProp(r, g, b, 1.0).
  ZColor(float r, float g, float b);
  // SetColorProp(r, g, b, a).
  ZColor(float r, float g, float b, float a);
  // A valid colour unpacked from `packed`. An unknown format gives
  // transparent black.
  ZColor(unsigned int packed, ZColorDataFormat format);

  // All five members compared, the validity flag included.
  bool operator==(const ZColor& other) const;
  bool operator!=(const ZColor& other) const;
  bool Equals(const ZColor& other) const;

  int GetRed() const;
  int GetGreen() const;
  int GetBlue() const;
  int GetAlpha() const;

  // Each stores its argument clamped to 0 to 255 and leaves the validity
  // flag alone, so an invalid colour stays invalid.
  void SetRed(int value);
  void SetGreen(int value);
  void SetBlue(int value);
  void SetAlpha(int value);

  // The channel as a proportion: channel times 0.003921569.
  float GetRedProp() const;
  float GetGreenProp() const;
  float GetBlueProp() const;
  float GetAlphaProp() const;

  // The proportion times 255, truncated towards zero (0.999 gives 254) and
  // clamped to 0 to 255; a NaN gives 0. The validity flag is left alone.
  void SetRedProp(float value);
  void SetGreenProp(float value);
  void SetBlueProp(float value);
  void SetAlphaProp(float value);

  // SetColor(r, g, b, 255).
  void SetColor(int r, int g, int b);
  // Valid unless all four arguments are -1; each channel is stored clamped
  // to 0 to 255, so the invalid colour made this way has channels of 0.
  void SetColor(int r, int g, int b, int a);
  // SetColorProp(r, g, b, 1.0).
  void SetColorProp(float r, float g, float b);
  // Invalid if one of r, g, b is NaN. A NaN alpha of a valid colour is taken
  // as 1.0. Each value is then stored as by SetRedProp, so the channels of
  // an invalid colour are 0 and its alpha comes from `a` if `a` is a number.
  void SetColorProp(float r, float g, float b, float a);

  // The colour packed in `format`; an unknown format gives 0. The validity
  // flag plays no part.
  unsigned int GetAsPackedInt(ZColorDataFormat format) const;
  // Unpacks `packed` in `format`; an unknown format changes nothing. The
  // validity flag is not touched.
  void SetFromPackedInt(unsigned int packed, ZColorDataFormat format);

  unsigned long GetAsColorRef() const;
  void SetFromColorRef(unsigned long packed);
  unsigned int GetAsWin32BitFormat() const;
  void SetFromWin32BitFormat(unsigned int packed);
  unsigned int GetAsOpenGLFormat() const;
  void SetFromOpenGLFormat(unsigned int packed);

  // Writes red, green, blue and alpha as proportions to out[0..3], or four
  // NaNs if the colour is invalid; returns `out`.
  float* GetAsFloatArray(float* out) const;
  // The grey level 0.299 red + 0.587 green + 0.114 blue, truncated.
  int GetBWVal() const;
  // Red, green and blue times `f`, truncated and clamped, with alpha 255:
  // the source's alpha is dropped.
  ZColor Scale(float f) const;
  // 255 minus each of red, green and blue, with alpha 255: the source's
  // alpha is dropped.
  ZColor GetInverse() const;

  bool IsValid() const;

  // The four channels as {"R": r, "G": g, "B": b, "A": a}; an invalid colour
  // prints its channels like any other.
  std::string getAsJSON() const;

 private:
  int red;
  int green;
  int blue;
  int alpha;
  bool valid;
};
