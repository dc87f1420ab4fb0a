// ZGeoMatrix: element access, rotations checked against a double-precision
// reference, and the operations that the graphics library computes through
// the calling thread's manager.
#include "sceneward/geometry/zgeo_matrix.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/geometry/zgeo_hole.h"
#include "sceneward/geometry/zgeo_plane.h"
#include "sceneward/geometry/zgeo_polyline.h"
#include "sceneward/geometry/zgeo_sphere.h"
#include "support/recording_host_test.h"

namespace {

using Calls = std::vector<std::string>;

constexpr float kQuarterTurn = std::numbers::pi_v<float> / 2;

void ExpectNear(ZGeoPoint const& expected, ZGeoPoint const& actual, float tolerance) {
  EXPECT_NEAR(expected.x, actual.x, tolerance);
  EXPECT_NEAR(expected.y, actual.y, tolerance);
  EXPECT_NEAR(expected.z, actual.z, tolerance);
}

// Rotation of `p` by `angle` about the unit `axis` in double precision, in
// the vector form: p cos + (axis x p) sin + axis (axis . p)(1 - cos).
ZGeoPoint RotatedReference(ZGeoPoint const& p, double angle, ZGeoPoint const& axis) {
  const double len = std::sqrt(double(axis.x) * axis.x + double(axis.y) * axis.y + double(axis.z) * axis.z);
  const double kx = axis.x / len, ky = axis.y / len, kz = axis.z / len;
  const double c = std::cos(angle), s = std::sin(angle), dot = kx * p.x + ky * p.y + kz * p.z;
  const double cx = ky * p.z - kz * p.y, cy = kz * p.x - kx * p.z, cz = kx * p.y - ky * p.x;
  return ZGeoPoint(float(p.x * c + cx * s + kx * dot * (1 - c)), float(p.y * c + cy * s + ky * dot * (1 - c)),
                   float(p.z * c + cz * s + kz * dot * (1 - c)));
}

TEST(ZGeoMatrixElements, OutOfRangeIndicesAndExactComparisons) {
  ZGeoMatrix m;
  EXPECT_EQ(m.GetAt(4, 0), 0.0f);
  EXPECT_EQ(m.GetAt(-1, 0), 0.0f);
  m.SetAt(0, 4, 7);
  m.SetAt(-1, 0, 7);
  EXPECT_TRUE(m.IsIdentity());
  m.SetAt(1, 1, std::nextafter(1.0f, 2.0f));
  EXPECT_FALSE(m.IsIdentity());
  // NaN is neither below nor above 1, so it passes for equal.
  m.SetAt(1, 1, std::numeric_limits<float>::quiet_NaN());
  EXPECT_TRUE(m.Equals(ZGeoMatrix()));
}

TEST(ZGeoMatrixElements, RowsHoldTheAxesAndTheTranslation) {
  ZGeoMatrix m = ZGeoMatrix().Translate(ZGeoPoint(1, 2, 3));
  EXPECT_EQ(m.GetAt(3, 1), 2);
  m.SetXDirection(ZGeoPoint(3, 0, 4));
  EXPECT_EQ(m.GetAt(0, 0), 3);  // stored raw
  EXPECT_TRUE(m.GetXDirection().Equals(ZGeoPoint(0.6f, 0, 0.8f), 4));
  EXPECT_FLOAT_EQ(m.GetScale(), 5);
  m.SetAt(0, 3, 0.5f);
  m.Normalize();
  EXPECT_FLOAT_EQ(m.GetAt(0, 0), 0.6f);
  EXPECT_EQ(m.GetAt(0, 3), 0.5f);
  EXPECT_TRUE(m.GetTranslation().Equals(ZGeoPoint(1, 2, 3), 0));
}

class ZGeoMatrixThroughManager : public RecordingHostTest {};

TEST_F(ZGeoMatrixThroughManager, RotationFollowsTheRightHandRuleAndMatchesTheReference) {
  const ZGeoMatrix quarter(kQuarterTurn, ZGeoPoint(0, 0, 5));
  ExpectNear(ZGeoPoint(0, 1, 0), quarter.TransformPoint(ZGeoPoint(1, 0, 0)), 1e-6f);

  std::mt19937 rng(5);
  std::uniform_real_distribution<float> coordinate(-10, 10);
  std::uniform_real_distribution<float> angle(-7, 7);
  for (int trial = 0; trial < 100; ++trial) {
    const ZGeoPoint axis(coordinate(rng), coordinate(rng), coordinate(rng));
    const ZGeoPoint p(coordinate(rng), coordinate(rng), coordinate(rng));
    const float a = angle(rng);
    ExpectNear(RotatedReference(p, a, axis), ZGeoMatrix(a, axis).TransformPoint(p), 1e-4f);
  }
}

TEST_F(ZGeoMatrixThroughManager, OffAxisRotationTurnsAboutTheGivenPoint) {
  ZGeoMatrix m;
  const ZGeoPoint pivot(2, 3, 4);
  m.SetToOffAxisRotation(kQuarterTurn, ZGeoPoint(0, 0, 1), pivot);
  ExpectNear(pivot, m.TransformPoint(pivot), 1e-5f);
  ExpectNear(ZGeoPoint(2, 4, 9), m.TransformPoint(ZGeoPoint(3, 3, 9)), 1e-5f);
}

TEST_F(ZGeoMatrixThroughManager, ProductsApplyTheLeftMatrixFirst) {
  ZGeoMatrix shift = ZGeoMatrix().Translate(ZGeoPoint(1, 0, 0));
  const ZGeoMatrix turn(kQuarterTurn, ZGeoPoint(0, 0, 1));
  // Shift, then turn: (0, 0, 0) goes to (1, 0, 0), then to (0, 1, 0).
  ExpectNear(ZGeoPoint(0, 1, 0), shift.Product(turn).TransformPoint(ZGeoPoint()), 1e-6f);
  ExpectNear(ZGeoPoint(1, 0, 0), turn.Product(shift).TransformPoint(ZGeoPoint()), 1e-6f);
  recorder_.ClearCalls();
  shift.Append(turn);
  EXPECT_EQ(recorder_.Calls(), Calls{"HC_Compute_Matrix_Product"});
  ExpectNear(ZGeoPoint(0, 1, 0), shift.TransformPoint(ZGeoPoint()), 1e-6f);
  // Scale acts after the matrix: the shift is scaled too.
  ExpectNear(ZGeoPoint(6, 0, 0), ZGeoMatrix().Translate(ZGeoPoint(1, 0, 0)).Scale(3).TransformPoint(ZGeoPoint(1, 0, 0)),
             1e-5f);
}

TEST_F(ZGeoMatrixThroughManager, InverseUndoesRandomTransforms) {
  std::mt19937 rng(9);
  std::uniform_real_distribution<float> coordinate(-10, 10);
  for (int trial = 0; trial < 50; ++trial) {
    ZGeoMatrix m(coordinate(rng), ZGeoPoint(coordinate(rng), coordinate(rng), coordinate(rng)));
    m = m.Scale(1 + std::fabs(coordinate(rng))).Translate(ZGeoPoint(coordinate(rng), coordinate(rng), 0));
    const ZGeoMatrix inverse = m.GetInverse();
    const ZGeoPoint p(coordinate(rng), coordinate(rng), coordinate(rng));
    ExpectNear(p, inverse.TransformPoint(m.TransformPoint(p)), 1e-3f);
    const ZGeoMatrix identity = m.Product(inverse);
    for (int i = 0; i < 16; ++i) EXPECT_NEAR(identity.GetAt(i / 4, i % 4), i % 5 == 0 ? 1 : 0, 1e-4f) << i;
  }
}

TEST_F(ZGeoMatrixThroughManager, SingularInverseComesBackAsTheIdentity) {
  ZGeoMatrix flat;
  flat.SetToScaleMatrix(0);
  EXPECT_TRUE(flat.GetInverse().IsIdentity());
  // The adjoint of a uniform scale by 2 is a scale by 4 with 8 in the corner.
  ZGeoMatrix twice;
  twice.SetToScaleMatrix(2);
  const ZGeoMatrix adjoint = twice.GetAdjoint();
  EXPECT_EQ(adjoint.GetAt(0, 0), 4);
  EXPECT_EQ(adjoint.GetAt(3, 3), 8);
}

TEST_F(ZGeoMatrixThroughManager, TransformedDirectionsAndDistancesAreUnitLength) {
  ZGeoMatrix m;
  m.SetToScaleMatrix(2);
  m = m.Translate(ZGeoPoint(5, 5, 5));
  EXPECT_FLOAT_EQ(m.GetScale(), 2);
  EXPECT_FLOAT_EQ(m.TransformDistance(3), 1);
  EXPECT_EQ(m.TransformDistance(0), 0);
  recorder_.ClearCalls();
  ExpectNear(ZGeoPoint(0, 1, 0), m.TransformDirection(ZGeoPoint(0, 4, 0)), 1e-6f);
  EXPECT_EQ(recorder_.Calls(), (Calls{"HC_Compute_Transformed_Points", "HC_Compute_Transformed_Points"}));
}

TEST_F(ZGeoMatrixThroughManager, ShapesFollowTheirDefiningPoints) {
  ZGeoMatrix m(kQuarterTurn, ZGeoPoint(0, 0, 1));
  m = m.Scale(3).Translate(ZGeoPoint(10, 0, 0));
  const ZGeoCircle circle = m.TransformCircle(ZGeoCircle(ZGeoPoint(1, 0, 0), 2));
  ExpectNear(ZGeoPoint(10, 3, 0), circle.GetCenter(), 1e-5f);
  EXPECT_NEAR(circle.GetDiameter(), 6, 1e-5f);
  // Distances come back as unit lengths, whatever the scale.
  EXPECT_FLOAT_EQ(m.TransformSphere(ZGeoSphere(ZGeoPoint(), 5)).GetRadius(), 1);
  EXPECT_FLOAT_EQ(m.TransformHole(ZGeoHole(ZGeoPoint(), ZGeoPoint(0, 0, 1), 5)).GetDiameter(), 2);
  EXPECT_EQ(m.TransformPolyline(ZGeoPolyline()).GetNumberOfPoints(), 0u);

  // Normals go as directions, so a non-uniform scale tilts them.
  ZGeoMatrix stretch;
  stretch.SetXDirection(ZGeoPoint(2, 0, 0));
  const ZGeoPlane plane = stretch.TransformPlane(ZGeoPlane(ZGeoPoint(1, 0, 0), ZGeoPoint(1, 1, 0)));
  ExpectNear(ZGeoPoint(2, 0, 0), plane.GetOrigin(), 0);
  ExpectNear(ZGeoPoint(2, 1, 0).Direction(), plane.GetNormalVec(), 1e-6f);
}

}  // namespace
