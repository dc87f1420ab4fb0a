#pragma once
// The elementary transforms of the interface, as matrices for row vectors
// (p' = p * M). Angles are in degrees; a positive angle turns counter-
// clockwise seen from the positive end of its axis looking at the origin.
#include <optional>

#include "math/matrix.h"
#include "math/point.h"

namespace graphics {

// About X by `x_degrees`, then Y, then Z.
Matrix RotationMatrix(double x_degrees, double y_degrees, double z_degrees);
// About the axis through the origin along `axis` (any non-zero length);
// nothing for a zero or non-finite axis.
std::optional<Matrix> OffaxisRotationMatrix(double x, double y, double z, double degrees);
Matrix TranslationMatrix(double x, double y, double z);
Matrix ScaleMatrix(double x, double y, double z);

}  // namespace graphics
