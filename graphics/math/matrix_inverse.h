#pragma once
// Adjugate, determinant and inverse of a 4x4 matrix, in double precision.
#include <optional>

#include "math/matrix.h"

namespace graphics {

double Determinant(const Matrix& m);

// The classical adjoint: the transpose of the cofactor matrix, so that
// m * Adjugate(m) = Determinant(m) * identity. Defined for every matrix.
Matrix Adjugate(const Matrix& m);

// The inverse, or nothing when `m` is singular: a determinant that is zero,
// not finite, or below 1e-12 times the fourth power of the largest element's
// magnitude (so that scale alone never decides).
std::optional<Matrix> Inverse(const Matrix& m);

}  // namespace graphics
