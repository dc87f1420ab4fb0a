#pragma once
// An image: pixels drawn in screen space about a position. The format text
// is kept exactly as given; the layout word in it fixes the bytes per pixel.
// Rows are stored top row first.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "errors/error.h"
#include "geometry/geometry.h"
#include "math/point.h"

namespace graphics {

// What a format string says.
struct ImageFormat {
  int bytes_per_pixel = 0;
  // The "name" option's value without quotes, "" without one.
  std::string name;
  bool local = false;
};

// Reads a format: one layout word ("rgb", "rgba", "argb", "mapped 8",
// "mapped 16", "grayscale") and options ("name = ...", "[no] local",
// "texture options = (...)", "[no] down-sample", "size = ...", "discard").
// Unknown words, a missing or second layout word: an error.
Result<ImageFormat> ParseImageFormat(std::string_view format);

class Image final : public CopyableGeometry<Image> {
 public:
  // `pixels` holds width * height * bytes_per_pixel bytes.
  Image(const Point& position, std::string format, ImageFormat parsed, int width, int height,
        std::vector<uint8_t> pixels)
      : CopyableGeometry(GeometryType::kImage),
        position_(position),
        format_(std::move(format)),
        parsed_(std::move(parsed)),
        width_(width),
        height_(height),
        pixels_(std::move(pixels)) {}

  const Point& position() const { return position_; }
  const std::string& format() const { return format_; }
  const ImageFormat& parsed_format() const { return parsed_; }
  int width() const { return width_; }
  int height() const { return height_; }
  const std::vector<uint8_t>& pixels() const { return pixels_; }

  void MoveTo(const Point& position);
  // Copies the rectangle at (x, y) of `width` x `height` pixels to or from
  // `data`, rows back to back. The caller has checked it lies inside.
  void ReadRectangle(int x, int y, int width, int height, void* data) const;
  void WriteRectangle(int x, int y, int width, int height, const void* data);
  // Replaces the format's options; the layout must stay.
  void SetFormat(std::string format, ImageFormat parsed);

  // The position only: the pixels' extent depends on the window.
  Bounds ComputeBounds() const override;

 private:
  Point position_;
  std::string format_;
  ImageFormat parsed_;
  int width_;
  int height_;
  std::vector<uint8_t> pixels_;
};

}  // namespace graphics
