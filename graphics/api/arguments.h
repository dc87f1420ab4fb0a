#pragma once
// Checking the arguments of exported functions and writing their outputs.
// Any output pointer may be null; it is then skipped.
#include <string_view>

#include "errors/error.h"
#include "math/point.h"

namespace graphics::api {

// A required input pointer: null is an error naming `what`.
Status Require(const void* pointer, std::string_view what);

// A position from the interface's doubles, stored in single precision; it
// must be finite there.
Result<Point> ToPoint(double x, double y, double z, std::string_view what);

// Writes `text` and a terminator, at most "C string length" characters.
void WriteString(char* out, std::string_view text);
// The length WriteString would give `text`.
int WrittenLength(std::string_view text);

template <typename T>
void Write(T* out, T value) {
  if (out != nullptr) *out = value;
}

void WritePoint(float* x, float* y, float* z, const Point& p);

}  // namespace graphics::api
