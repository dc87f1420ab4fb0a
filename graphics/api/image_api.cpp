// Images: pixels in one of several layouts, shown and edited by rectangle.
#include <memory>
#include <string>
#include <vector>

#include "api/arguments.h"
#include "api/call.h"
#include "api/geometry_arguments.h"
#include "geometry/image.h"
#include "hc/hc.h"

using graphics::Done;
using graphics::Error;
using graphics::GeometryType;
using graphics::Image;
using graphics::Result;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::CheckRange;
using graphics::api::FindGeometryAs;
using graphics::api::InsertIntoCurrent;
using graphics::api::Require;
using graphics::api::Run;
using graphics::api::ToPoint;
using graphics::api::Write;
using graphics::api::WritePoint;
using graphics::api::WriteString;
namespace errc = graphics::errc;

namespace {

Result<Image*> FindImage(Session& session, long long key) {
  return FindGeometryAs<Image>(session, key, {GeometryType::kImage}, "image");
}

// The rectangle must lie inside the image.
Status CheckRectangle(const Image& image, int x, int y, int width, int height) {
  auto columns = CheckRange(x, width, static_cast<size_t>(image.width()), "image columns");
  if (!columns.ok()) return columns;
  return CheckRange(y, height, static_cast<size_t>(image.height()), "image rows");
}

}  // namespace

// Null data leaves every pixel zero, to be filled by HC_Edit_Image.
extern "C" long long HC_Insert_Image(double x, double y, double z, char const* format, int width, int height,
                                     void const* data) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto at = ToPoint(x, y, z, "image position");
    if (!at.ok()) return at.error();
    auto required = Require(format, "image format");
    if (!required.ok()) return required.error();
    auto parsed = graphics::ParseImageFormat(format);
    if (!parsed.ok()) return parsed.error();
    if (width < 1 || height < 1) return Error(errc::kOutOfRange, "an image needs a positive width and height");
    const size_t size = static_cast<size_t>(width) * static_cast<size_t>(height) *
                        static_cast<size_t>(parsed.value().bytes_per_pixel);
    std::vector<uint8_t> pixels(size);
    if (data != nullptr) pixels.assign(static_cast<const uint8_t*>(data), static_cast<const uint8_t*>(data) + size);
    return InsertIntoCurrent(session, std::make_unique<Image>(at.value(), format, std::move(parsed.value()), width,
                                                              height, std::move(pixels)));
  });
}

extern "C" void HC_Show_Image_Size(long long key, float* x, float* y, float* z, char* format, int* width,
                                   int* height) {
  HC_Show_Image(key, x, y, z, format, width, height, nullptr);
}

// The format comes back exactly as it was given.
extern "C" void HC_Show_Image(long long key, float* x, float* y, float* z, char* format, int* width, int* height,
                              void* data) {
  Run(Access::kRead, "HC_Show_Image", [&](Session& session) -> Status {
    auto found = FindImage(session, key);
    if (!found.ok()) return found.error();
    const Image& image = *found.value();
    WritePoint(x, y, z, image.position());
    WriteString(format, image.format());
    Write(width, image.width());
    Write(height, image.height());
    if (data != nullptr) image.ReadRectangle(0, 0, image.width(), image.height(), data);
    return Done{};
  });
}

extern "C" void HC_Show_Partial_Image(long long key, int x, int y, int width, int height, void* data) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindImage(session, key);
    if (!found.ok()) return found.error();
    auto inside = CheckRectangle(*found.value(), x, y, width, height);
    if (!inside.ok()) return inside;
    if (data != nullptr) found.value()->ReadRectangle(x, y, width, height, data);
    return Done{};
  });
}

extern "C" void HC_Edit_Image(long long key, int x, int y, int width, int height, void const* data) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto found = FindImage(session, key);
    if (!found.ok()) return found.error();
    auto inside = CheckRectangle(*found.value(), x, y, width, height);
    if (!inside.ok()) return inside;
    auto required = Require(data, "pixel data");
    if (!required.ok()) return required;
    found.value()->WriteRectangle(x, y, width, height, data);
    return Done{};
  });
}

// The new options replace the old; the pixel layout cannot change.
extern "C" void HC_Edit_Image_Options(long long key, char const* options) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto found = FindImage(session, key);
    if (!found.ok()) return found.error();
    auto required = Require(options, "image options");
    if (!required.ok()) return required;
    Image& image = *found.value();
    auto parsed = graphics::ParseImageFormat(options);
    if (!parsed.ok()) return parsed.error();
    if (parsed.value().bytes_per_pixel != image.parsed_format().bytes_per_pixel) {
      return Error(errc::kOutOfRange, "the options change the pixel layout of the image");
    }
    image.SetFormat(options, std::move(parsed.value()));
    return Done{};
  });
}

// "" when the image has no name.
extern "C" void HC_Show_Image_Name(long long key, char* name) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto found = FindImage(session, key);
    if (!found.ok()) return found.error();
    WriteString(name, found.value()->parsed_format().name);
    return Done{};
  });
}

extern "C" void HC_Move_Image(long long key, double x, double y, double z) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto at = ToPoint(x, y, z, "image position");
    if (!at.ok()) return at.error();
    auto found = FindImage(session, key);
    if (!found.ok()) return found.error();
    found.value()->MoveTo(at.value());
    return Done{};
  });
}
