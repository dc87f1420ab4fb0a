#include "math/matrix_inverse.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace graphics {
namespace {

// The 3x3 minor of `m` without row `skip_row` and column `skip_col`.
double Minor(const std::array<double, 16>& m, int skip_row, int skip_col) {
  double a[9];
  int n = 0;
  for (int r = 0; r < 4; ++r) {
    if (r == skip_row) continue;
    for (int c = 0; c < 4; ++c) {
      if (c != skip_col) a[n++] = m[4 * r + c];
    }
  }
  return a[0] * (a[4] * a[8] - a[5] * a[7]) - a[1] * (a[3] * a[8] - a[5] * a[6]) +
         a[2] * (a[3] * a[7] - a[4] * a[6]);
}

double Cofactor(const std::array<double, 16>& m, int row, int col) {
  const double minor = Minor(m, row, col);
  return ((row + col) % 2 == 0) ? minor : -minor;
}

}  // namespace

double Determinant(const Matrix& m) {
  double det = 0;
  for (int c = 0; c < 4; ++c) det += m.elements()[c] * Cofactor(m.elements(), 0, c);
  return det;
}

Matrix Adjugate(const Matrix& m) {
  std::array<double, 16> adj{};
  for (int r = 0; r < 4; ++r) {
    for (int c = 0; c < 4; ++c) adj[4 * c + r] = Cofactor(m.elements(), r, c);
  }
  return Matrix(adj);
}

std::optional<Matrix> Inverse(const Matrix& m) {
  const double det = Determinant(m);
  double largest = 0;
  for (double e : m.elements()) largest = std::max(largest, std::fabs(e));
  const double scale = largest * largest * largest * largest;
  if (det == 0 || !std::isfinite(det) || std::fabs(det) < 1e-12 * scale) return std::nullopt;
  std::array<double, 16> inverse = Adjugate(m).elements();
  for (double& e : inverse) e /= det;
  return Matrix(inverse);
}

}  // namespace graphics
