// Matrix arithmetic for callers: products, inverses, adjoints and the
// transformation of point arrays. Pure computation, so no engine lock is
// taken. Every result is computed whole before it is written, which lets an
// output array be the same as an input.
#include <array>
#include <optional>

#include "api/compute_inputs.h"
#include "hc/hc.h"
#include "math/matrix.h"
#include "math/matrix_inverse.h"

using graphics::Matrix;
using graphics::api::InputsPresent;
using graphics::api::ReadPoint;
using graphics::api::WritePointAt;

namespace {

Matrix ReadMatrix(const float* m) {
  std::array<double, 16> elements;
  for (int i = 0; i < 16; ++i) elements[i] = m[i];
  return Matrix(elements);
}

void WriteMatrix(const Matrix& m, float* out) {
  for (int i = 0; i < 16; ++i) out[i] = static_cast<float>(m.elements()[i]);
}

}  // namespace

extern "C" void HC_Compute_Matrix_Product(float const* matrix1, float const* matrix2, float* out_matrix) {
  if (!InputsPresent(__func__, {{matrix1, "first matrix"}, {matrix2, "second matrix"}})) return;
  if (out_matrix == nullptr) return;
  WriteMatrix(ReadMatrix(matrix1).Then(ReadMatrix(matrix2)), out_matrix);
}

extern "C" bool HC_Compute_Matrix_Inverse(float const* matrix, float* out_matrix) {
  if (!InputsPresent(__func__, {{matrix, "matrix"}})) return false;
  const std::optional<Matrix> inverse = graphics::Inverse(ReadMatrix(matrix));
  if (!inverse) return false;
  if (out_matrix != nullptr) WriteMatrix(*inverse, out_matrix);
  return true;
}

extern "C" void HC_Compute_Matrix_Adjoint(float const* matrix, float* out_matrix) {
  if (!InputsPresent(__func__, {{matrix, "matrix"}})) return;
  if (out_matrix == nullptr) return;
  WriteMatrix(graphics::Adjugate(ReadMatrix(matrix)), out_matrix);
}

// Points are taken one at a time, each read whole before its image is
// written, so `out_points` may be `points` itself.
extern "C" void HC_Compute_Transformed_Points(int count, void const* points, float const* matrix,
                                              void* out_points) {
  if (count <= 0) return;
  if (!InputsPresent(__func__, {{points, "points"}, {matrix, "matrix"}})) return;
  if (out_points == nullptr) return;
  const Matrix m = ReadMatrix(matrix);
  for (int i = 0; i < count; ++i) WritePointAt(out_points, m.Transform(ReadPoint(points, i)), i);
}
