#include "math/matrix.h"

#include <cmath>

namespace graphics {

Matrix::Matrix() : m_{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1} {}

bool Matrix::IsAffineTransform() const {
  for (double e : m_) {
    if (!std::isfinite(e)) return false;
  }
  return m_[3] == 0 && m_[7] == 0 && m_[11] == 0 && m_[15] != 0;
}

Matrix Matrix::Then(const Matrix& next) const {
  std::array<double, 16> product{};
  for (int r = 0; r < 4; ++r) {
    for (int c = 0; c < 4; ++c) {
      double sum = 0;
      for (int k = 0; k < 4; ++k) sum += m_[4 * r + k] * next.m_[4 * k + c];
      product[4 * r + c] = sum;
    }
  }
  return Matrix(product);
}

Point Matrix::Transform(const Point& p) const {
  const double x = p.x, y = p.y, z = p.z;
  const double w = x * m_[3] + y * m_[7] + z * m_[11] + m_[15];
  const double scale = (w == 0) ? 1 : 1 / w;
  return Point{static_cast<float>((x * m_[0] + y * m_[4] + z * m_[8] + m_[12]) * scale),
               static_cast<float>((x * m_[1] + y * m_[5] + z * m_[9] + m_[13]) * scale),
               static_cast<float>((x * m_[2] + y * m_[6] + z * m_[10] + m_[14]) * scale)};
}

}  // namespace graphics
