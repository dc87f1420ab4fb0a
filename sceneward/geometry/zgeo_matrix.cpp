#include "sceneward/geometry/zgeo_matrix.h"

#include <cmath>
#include <cstring>

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace {

constexpr float kIdentity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

bool InRange(int index) { return static_cast<unsigned>(index) <= 3u; }

// Neither below nor above: NaN matches anything, on purpose.
bool SameElements(float const* a, float const* b) {
  for (int i = 0; i < 16; ++i) {
    if (a[i] < b[i] || a[i] > b[i]) return false;
  }
  return true;
}

ZGeoMatrix TranslationBy(ZGeoPoint const& p) {
  ZGeoMatrix m;
  m.SetTranslation(p);
  return m;
}

}  // namespace

ZGeoMatrix::ZGeoMatrix() { SetToIdentity(); }

ZGeoMatrix::ZGeoMatrix(float const* elements) { std::memcpy(m_, elements, sizeof m_); }

ZGeoMatrix::ZGeoMatrix(float angle, ZGeoPoint const& axis) { SetToRotationMatrix(angle, axis); }

float ZGeoMatrix::GetAt(int row, int col) const {
  return (InRange(row) && InRange(col)) ? m_[row * 4 + col] : 0.0f;
}

void ZGeoMatrix::SetAt(int row, int col, float v) {
  if (InRange(row) && InRange(col)) m_[row * 4 + col] = v;
}

void ZGeoMatrix::SetRow(int row, ZGeoPoint const& p) {
  m_[row * 4] = p.x;
  m_[row * 4 + 1] = p.y;
  m_[row * 4 + 2] = p.z;
}

void ZGeoMatrix::SetToIdentity() { std::memcpy(m_, kIdentity, sizeof m_); }

void ZGeoMatrix::SetToRotationMatrix(float angle, ZGeoPoint const& axis) {
  SetToIdentity();
  const ZGeoPoint n = axis.Direction();
  const float x = n.x, y = n.y, z = n.z;
  const float c = std::cos(angle), s = std::sin(angle), t = 1 - c;
  SetRow(0, ZGeoPoint(t * x * x + c, t * x * y + s * z, t * x * z - s * y));
  SetRow(1, ZGeoPoint(t * x * y - s * z, t * y * y + c, t * y * z + s * x));
  SetRow(2, ZGeoPoint(t * x * z + s * y, t * y * z - s * x, t * z * z + c));
}

void ZGeoMatrix::SetToOffAxisRotation(float angle, ZGeoPoint const& axis, ZGeoPoint const& point) {
  SetToIdentity();
  Append(TranslationBy(-point));
  Append(ZGeoMatrix(angle, axis));
  Append(TranslationBy(point));
}

void ZGeoMatrix::SetToScaleMatrix(float s) {
  SetToIdentity();
  m_[0] = m_[5] = m_[10] = s;
}

void ZGeoMatrix::Append(ZGeoMatrix const& m) { CurrentManager()->HC_Compute_Matrix_Product(m_, m.m_, m_); }

ZGeoMatrix ZGeoMatrix::GetInverse() const {
  ZGeoMatrix result;
  CurrentManager()->HC_Compute_Matrix_Inverse(m_, result.m_);
  return result;
}

ZGeoMatrix ZGeoMatrix::GetAdjoint() const {
  ZGeoMatrix result;
  CurrentManager()->HC_Compute_Matrix_Adjoint(m_, result.m_);
  return result;
}

ZGeoMatrix ZGeoMatrix::Product(ZGeoMatrix const& m) const {
  ZGeoMatrix result;
  CurrentManager()->HC_Compute_Matrix_Product(m_, m.m_, result.m_);
  return result;
}

ZGeoMatrix ZGeoMatrix::Translate(ZGeoPoint const& p) const {
  ZGeoMatrix result = *this;
  result.SetTranslation(GetTranslation() + p);
  return result;
}

ZGeoMatrix ZGeoMatrix::Scale(float s) const {
  ZGeoMatrix scale;
  scale.SetToScaleMatrix(s);
  return Product(scale);
}

bool ZGeoMatrix::IsIdentity() const { return SameElements(m_, kIdentity); }

bool ZGeoMatrix::Equals(ZGeoMatrix const& m) const { return SameElements(m_, m.m_); }

float ZGeoMatrix::GetScale() const { return Row(0).Length(); }

void ZGeoMatrix::Normalize() {
  for (int row = 0; row < 3; ++row) SetRow(row, Row(row).Direction());
}

ZGeoPoint ZGeoMatrix::TransformPoint(ZGeoPoint const& p) const {
  ZGeoPoint result = p;
  CurrentManager()->HC_Compute_Transformed_Points(1, &p, m_, &result);
  return result;
}

ZGeoPoint ZGeoMatrix::TransformDirection(ZGeoPoint const& d) const {
  return (TransformPoint(d) - TransformPoint(ZGeoPoint())).Direction();
}

float ZGeoMatrix::TransformDistance(float d) const { return TransformDirection(ZGeoPoint(d, 0, 0)).Length(); }
