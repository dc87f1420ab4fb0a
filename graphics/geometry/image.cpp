#include "geometry/image.h"

#include <array>
#include <cstring>
#include <utility>

#include "attributes/option_string.h"
#include "strings/quoting.h"
#include "strings/text.h"

namespace graphics {

namespace {

constexpr std::array<std::pair<std::string_view, int>, 6> kLayouts{{
    {"rgb", 3}, {"rgba", 4}, {"argb", 4}, {"mapped 8", 1}, {"mapped 16", 2}, {"grayscale", 1}}};

// Options that take a value, and switches that may be negated.
constexpr std::array<std::string_view, 3> kValued{"name", "texture options", "size"};
constexpr std::array<std::string_view, 3> kSwitches{"local", "down-sample", "discard"};

bool Contains(std::span<const std::string_view> words, std::string_view word) {
  for (std::string_view w : words) {
    if (w == word) return true;
  }
  return false;
}

Error Unknown(std::string_view format, std::string_view why) {
  return Error(errc::kUnknownOption, "image format '" + std::string(format) + "': " + std::string(why));
}

}  // namespace

Result<ImageFormat> ParseImageFormat(std::string_view format) {
  auto items = ParseOptionList(format);
  if (!items.ok()) return items.error();
  ImageFormat parsed;
  for (const OptionItem& item : items.value()) {
    int layout = 0;
    for (const auto& [word, bytes] : kLayouts) layout = word == item.name ? bytes : layout;
    if (layout != 0 && !item.negated && !item.value) {
      if (parsed.bytes_per_pixel != 0) return Unknown(format, "more than one pixel layout");
      parsed.bytes_per_pixel = layout;
    } else if (Contains(kValued, item.name) && item.value && !item.negated) {
      if (item.name == "name") parsed.name = RemoveQuotes(*item.value);
    } else if (Contains(kSwitches, item.name) && !item.value) {
      if (item.name == "local") parsed.local = !item.negated;
    } else {
      return Unknown(format, "unrecognised option '" + item.name + "'");
    }
  }
  if (parsed.bytes_per_pixel == 0) return Unknown(format, "no pixel layout");
  return parsed;
}

void Image::MoveTo(const Point& position) {
  position_ = position;
  MarkChanged();
}

void Image::ReadRectangle(int x, int y, int width, int height, void* data) const {
  const size_t bpp = static_cast<size_t>(parsed_.bytes_per_pixel);
  const size_t row_bytes = static_cast<size_t>(width) * bpp;
  for (int row = 0; row < height; ++row) {
    const size_t from = (static_cast<size_t>(y + row) * static_cast<size_t>(width_) + static_cast<size_t>(x)) * bpp;
    std::memcpy(static_cast<uint8_t*>(data) + static_cast<size_t>(row) * row_bytes, pixels_.data() + from, row_bytes);
  }
}

void Image::WriteRectangle(int x, int y, int width, int height, const void* data) {
  const size_t bpp = static_cast<size_t>(parsed_.bytes_per_pixel);
  const size_t row_bytes = static_cast<size_t>(width) * bpp;
  for (int row = 0; row < height; ++row) {
    const size_t to = (static_cast<size_t>(y + row) * static_cast<size_t>(width_) + static_cast<size_t>(x)) * bpp;
    std::memcpy(pixels_.data() + to, static_cast<const uint8_t*>(data) + static_cast<size_t>(row) * row_bytes, row_bytes);
  }
}

void Image::SetFormat(std::string format, ImageFormat parsed) {
  format_ = std::move(format);
  parsed_ = std::move(parsed);
}

Bounds Image::ComputeBounds() const {
  Bounds bounds;
  bounds.Include(position_);
  return bounds;
}

}  // namespace graphics
