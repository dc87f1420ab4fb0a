#include "api/arguments.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <string>

#include "system/system_settings.h"

namespace graphics::api {

Status Require(const void* pointer, std::string_view what) {
  if (pointer == nullptr) return Error(errc::kNullArgument, "null " + std::string(what));
  return Done{};
}

Result<Point> ToPoint(double x, double y, double z, std::string_view what) {
  const Point p{static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)};
  if (!IsFinite(p)) return Error(errc::kOutOfRange, std::string(what) + " is not a finite single-precision position");
  return p;
}

void WriteString(char* out, std::string_view text) {
  if (out == nullptr) return;
  const size_t length = static_cast<size_t>(WrittenLength(text));
  std::memcpy(out, text.data(), length);
  out[length] = '\0';
}

int WrittenLength(std::string_view text) {
  const size_t cap = std::min<size_t>(system_settings::CStringLength(), INT_MAX);
  return static_cast<int>(std::min(text.size(), cap));
}

void WritePoint(float* x, float* y, float* z, const Point& p) {
  Write(x, p.x);
  Write(y, p.y);
  Write(z, p.z);
}

}  // namespace graphics::api
