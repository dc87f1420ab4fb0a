#pragma once
// A 4x4 transform in the interface's layout: row order, row vectors
// (p' = p * M), translation in elements 12 to 14. Kept in double precision so
// a matrix set through the double-precision call reads back exactly.
#include <array>

#include "math/point.h"

namespace graphics {

class Matrix {
 public:
  // The identity.
  Matrix();
  explicit Matrix(const std::array<double, 16>& elements) : m_(elements) {}

  const std::array<double, 16>& elements() const { return m_; }

  // Whether the matrix is one the engine accepts as a modelling transform:
  // finite elements, no perspective column (elements 3, 7, 11 zero) and a
  // non-zero element 15.
  bool IsAffineTransform() const;

  // This transform, then `next`.
  Matrix Then(const Matrix& next) const;
  Point Transform(const Point& p) const;

  bool operator==(const Matrix&) const = default;

 private:
  std::array<double, 16> m_;
};

}  // namespace graphics
