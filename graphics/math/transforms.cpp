#include "math/transforms.h"

#include <cmath>
#include <numbers>

namespace graphics {

namespace {

double Radians(double degrees) { return degrees * std::numbers::pi / 180; }

// Exact values at multiples of 90 degrees, so quarter turns compose without
// rounding noise.
void CosSin(double degrees, double& c, double& s) {
  const double turns = std::fmod(degrees, 360.0);
  if (turns == 0) {
    c = 1, s = 0;
  } else if (std::abs(turns) == 180) {
    c = -1, s = 0;
  } else if (turns == 90 || turns == -270) {
    c = 0, s = 1;
  } else if (turns == -90 || turns == 270) {
    c = 0, s = -1;
  } else {
    c = std::cos(Radians(degrees));
    s = std::sin(Radians(degrees));
  }
}

}  // namespace

Matrix RotationMatrix(double x_degrees, double y_degrees, double z_degrees) {
  double c = 0, s = 0;
  CosSin(x_degrees, c, s);
  const Matrix about_x({1, 0, 0, 0, 0, c, s, 0, 0, -s, c, 0, 0, 0, 0, 1});
  CosSin(y_degrees, c, s);
  const Matrix about_y({c, 0, -s, 0, 0, 1, 0, 0, s, 0, c, 0, 0, 0, 0, 1});
  CosSin(z_degrees, c, s);
  const Matrix about_z({c, s, 0, 0, -s, c, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1});
  return about_x.Then(about_y).Then(about_z);
}

std::optional<Matrix> OffaxisRotationMatrix(double x, double y, double z, double degrees) {
  const double length = std::sqrt(x * x + y * y + z * z);
  if (!std::isfinite(length) || length == 0 || !std::isfinite(degrees)) return std::nullopt;
  x /= length, y /= length, z /= length;
  double c = 0, s = 0;
  CosSin(degrees, c, s);
  const double t = 1 - c;
  // Rodrigues' rotation for column vectors, transposed for row vectors.
  return Matrix({t * x * x + c,     t * x * y + s * z, t * x * z - s * y, 0,
                 t * x * y - s * z, t * y * y + c,     t * y * z + s * x, 0,
                 t * x * z + s * y, t * y * z - s * x, t * z * z + c,     0,
                 0,                 0,                 0,                 1});
}

Matrix TranslationMatrix(double x, double y, double z) {
  return Matrix({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, x, y, z, 1});
}

Matrix ScaleMatrix(double x, double y, double z) {
  return Matrix({x, 0, 0, 0, 0, y, 0, 0, 0, 0, z, 0, 0, 0, 0, 1});
}

}  // namespace graphics
