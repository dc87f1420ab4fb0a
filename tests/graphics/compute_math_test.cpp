// Matrix and vector arithmetic of the C interface, checked against a
// double-precision reference on random matrices, with outputs that alias
// their inputs.
#include <array>
#include <random>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

using Matrix = std::array<float, 16>;
using Reference = std::array<double, 16>;

struct Triple {
  float x, y, z;
};

constexpr Matrix kIdentity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

Reference Multiply(const Matrix& a, const Matrix& b) {
  Reference out{};
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c)
      for (int k = 0; k < 4; ++k) out[4 * r + c] += double(a[4 * r + k]) * b[4 * k + c];
  return out;
}

void ExpectNear(const Reference& expected, const Reference& actual, double tolerance) {
  for (int i = 0; i < 16; ++i) EXPECT_NEAR(expected[i], actual[i], tolerance) << "element " << i;
}

Reference Exact(const Matrix& m) {
  Reference r{};
  for (int i = 0; i < 16; ++i) r[i] = m[i];
  return r;
}

// A random, well-conditioned affine transform.
Matrix RandomAffine(std::mt19937& rng) {
  std::uniform_real_distribution<float> element(-2, 2);
  Matrix m = kIdentity;
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 3; ++c) m[4 * r + c] = element(rng) + (r == c ? 3 : 0);
  return m;
}

class ComputeMatrix : public EngineTest {};

TEST_F(ComputeMatrix, ProductAppliesTheLeftMatrixFirstAndMayOverwriteEitherInput) {
  std::mt19937 rng(7);
  for (int trial = 0; trial < 50; ++trial) {
    const Matrix a = RandomAffine(rng), b = RandomAffine(rng);
    Matrix left = a, right = b;
    HC_Compute_Matrix_Product(left.data(), b.data(), left.data());
    ExpectNear(Multiply(a, b), Exact(left), 1e-4);
    HC_Compute_Matrix_Product(a.data(), right.data(), right.data());
    EXPECT_EQ(left, right);
  }
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(ComputeMatrix, InverseUndoesTheMatrixOrLeavesASingularOneAlone) {
  std::mt19937 rng(11);
  for (int trial = 0; trial < 50; ++trial) {
    Matrix m = RandomAffine(rng);
    const Matrix original = m;
    ASSERT_TRUE(HC_Compute_Matrix_Inverse(m.data(), m.data()));
    ExpectNear(Exact(kIdentity), Multiply(original, m), 1e-4);
  }
  const Matrix flat = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 5, 6, 7, 1};  // squashes Z
  Matrix out = kIdentity;
  EXPECT_FALSE(HC_Compute_Matrix_Inverse(flat.data(), out.data()));
  EXPECT_EQ(out, kIdentity);
  // Small but regular: scale alone must not make a matrix singular.
  const Matrix tiny = {1e-5f, 0, 0, 0, 0, 1e-5f, 0, 0, 0, 0, 1e-5f, 0, 0, 0, 0, 1e-5f};
  EXPECT_TRUE(HC_Compute_Matrix_Inverse(tiny.data(), out.data()));
  EXPECT_NEAR(out[0], 1e5, 1);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(ComputeMatrix, AdjointIsDefinedEvenForSingularMatrices) {
  // Rank 3: the adjoint is not zero, yet m * adj(m) = det(m) * I = 0.
  const Matrix flat = {1, 2, 0, 0, 3, 4, 0, 0, 0, 0, 0, 0, 5, 6, 7, 1};
  Matrix adjoint{};
  HC_Compute_Matrix_Adjoint(flat.data(), adjoint.data());
  ExpectNear(Reference{}, Multiply(flat, adjoint), 1e-4);
  EXPECT_NE(adjoint, Matrix{});
  Matrix diagonal = {2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 4, 0, 0, 0, 0, 1};
  HC_Compute_Matrix_Adjoint(diagonal.data(), diagonal.data());
  EXPECT_EQ(diagonal, (Matrix{12, 0, 0, 0, 0, 8, 0, 0, 0, 0, 6, 0, 0, 0, 0, 24}));
}

TEST_F(ComputeMatrix, TransformedPointsDivideByTheHomogeneousCoordinate) {
  // Column 3 = (0, 0, 1, 1): w' = z + 1.
  const Matrix perspective = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 1, 0, 0, 0, 1};
  Triple points[3] = {{2, 4, 1}, {2, 4, 0}, {2, 4, -1}};
  HC_Compute_Transformed_Points(3, points, perspective.data(), points);
  EXPECT_FLOAT_EQ(points[0].x, 1);
  EXPECT_FLOAT_EQ(points[0].z, 0.5f);
  EXPECT_FLOAT_EQ(points[1].x, 2);
  EXPECT_FLOAT_EQ(points[2].x, 2);  // w' = 0 leaves the undivided values
  EXPECT_FLOAT_EQ(points[2].z, -1);

  std::mt19937 rng(3);
  std::uniform_real_distribution<float> coordinate(-100, 100);
  const Matrix m = RandomAffine(rng);
  for (int trial = 0; trial < 50; ++trial) {
    const Triple p{coordinate(rng), coordinate(rng), coordinate(rng)};
    Triple image{};
    HC_Compute_Transformed_Points(1, &p, m.data(), &image);
    const double in[4] = {p.x, p.y, p.z, 1};
    double expected[3] = {};
    for (int c = 0; c < 3; ++c)
      for (int k = 0; k < 4; ++k) expected[c] += in[k] * m[4 * k + c];
    EXPECT_NEAR(image.x, expected[0], 1e-3);
    EXPECT_NEAR(image.y, expected[1], 1e-3);
    EXPECT_NEAR(image.z, expected[2], 1e-3);
  }
}

TEST_F(ComputeMatrix, MissingInputsAreReportedAndNothingIsWritten) {
  Matrix out = kIdentity;
  HC_Compute_Matrix_Product(nullptr, kIdentity.data(), out.data());
  EXPECT_FALSE(HC_Compute_Matrix_Inverse(nullptr, out.data()));
  Triple p{1, 2, 3};
  HC_Compute_Transformed_Points(1, &p, nullptr, &p);
  EXPECT_EQ(out, kIdentity);
  EXPECT_FLOAT_EQ(p.x, 1);
  const auto reports = TakeReports();
  ASSERT_EQ(reports.size(), 3u);
  EXPECT_EQ(reports[2].routine, "HC_Compute_Transformed_Points");
  // A count of zero needs no arrays, and null outputs are skipped.
  HC_Compute_Transformed_Points(0, nullptr, nullptr, nullptr);
  HC_Compute_Matrix_Product(kIdentity.data(), kIdentity.data(), nullptr);
  EXPECT_TRUE(TakeReports().empty());
}

class ComputeVector : public EngineTest {};

TEST_F(ComputeVector, ProductsLengthsAndDirections) {
  const Triple x{1, 0, 0};
  Triple v{0, 1, 0};
  EXPECT_TRUE(HC_Compute_Cross_Product(&x, &v, &v));
  EXPECT_FLOAT_EQ(v.z, 1);
  EXPECT_FALSE(HC_Compute_Cross_Product(&x, &x, &v));  // parallel: zero, still written
  EXPECT_EQ(v.z, 0);
  const Triple a{2, 3, 6};
  EXPECT_DOUBLE_EQ(HC_Compute_Vector_Length(&a), 7);
  Triple unit = a;
  EXPECT_TRUE(HC_Compute_Normalized_Vector(&unit, &unit));
  EXPECT_FLOAT_EQ(unit.z, 6.0f / 7);
  const Triple zero{0, 0, 0};
  EXPECT_FALSE(HC_Compute_Normalized_Vector(&zero, &unit));
  EXPECT_FLOAT_EQ(unit.z, 6.0f / 7);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(ComputeVector, OffaxisRotationTakesDegreesAndRefusesAZeroAxis) {
  Matrix m{};
  // A third of a turn about the diagonal carries X to Y.
  HC_Compute_Offaxis_Rotation(1, 1, 1, 120, m.data());
  Triple p{1, 0, 0};
  HC_Compute_Transformed_Points(1, &p, m.data(), &p);
  EXPECT_NEAR(p.x, 0, 1e-6);
  EXPECT_NEAR(p.y, 1, 1e-6);
  EXPECT_TRUE(TakeReports().empty());
  Matrix untouched = kIdentity;
  HC_Compute_Offaxis_Rotation(0, 0, 0, 90, untouched.data());
  EXPECT_EQ(untouched, kIdentity);
  EXPECT_EQ(TakeReports().size(), 1u);
}

TEST_F(ComputeVector, PolygonPlaneFollowsTheVertexOrderAndHand) {
  // Counter-clockwise seen from +Z, at height 2, concave.
  const Triple polygon[] = {{0, 0, 2}, {4, 0, 2}, {4, 4, 2}, {2, 1, 2}, {0, 4, 2}};
  float plane[4] = {};
  ASSERT_TRUE(HC_Compute_Polygon_Plane(5, polygon, "right", plane));
  EXPECT_FLOAT_EQ(plane[2], 1);
  EXPECT_FLOAT_EQ(plane[3], -2);
  ASSERT_TRUE(HC_Compute_Polygon_Plane(5, polygon, "Left", plane));
  EXPECT_FLOAT_EQ(plane[2], -1);
  const Triple collinear[] = {{0, 0, 0}, {1, 1, 1}, {2, 2, 2}};
  EXPECT_FALSE(HC_Compute_Polygon_Plane(3, collinear, "right", plane));
  EXPECT_TRUE(TakeReports().empty());
  EXPECT_FALSE(HC_Compute_Polygon_Plane(5, polygon, "sideways", plane));
  EXPECT_EQ(TakeReports().size(), 1u);
}

}  // namespace
