#pragma once
// ZGeoMatrix: a 4x4 single-precision transform stored row by row, element
// (row, column) at row * 4 + column. Points are row vectors, p' = p * M, the
// translation is row 3, and in A * B the transform A acts first.
//
// Products, inverses, adjoints and point transforms are computed by the
// graphics library through the calling thread's manager (CurrentManager()),
// so those operations need a registered manager on the calling thread. The
// rest is local arithmetic.
#include "sceneward/geometry/zgeo_point.h"

class ZGeoCircle;
class ZGeoHole;
class ZGeoLine;
class ZGeoPlane;
class ZGeoPolyline;
class ZGeoSphere;

class ZGeoMatrix {
 public:
  // The identity.
  ZGeoMatrix();
  // The identity overwritten by the 16 floats at `elements`.
  explicit ZGeoMatrix(float const* elements);
  explicit ZGeoMatrix(float* const elements) : ZGeoMatrix(static_cast<float const*>(elements)) {}
  // A rotation; see SetToRotationMatrix.
  ZGeoMatrix(float angle, ZGeoPoint const& axis);

  // The element array itself, for the graphics library.
  operator float*() { return m_; }
  operator float const*() const { return m_; }

  // 0 when either index is outside 0..3.
  float GetAt(int row, int col) const;
  // Does nothing when either index is outside 0..3.
  void SetAt(int row, int col, float v);

  // Row 3, raw.
  ZGeoPoint GetTranslation() const { return Row(3); }
  void SetTranslation(ZGeoPoint const& t) { SetRow(3, t); }
  // Rows 0, 1, 2 normalised; the setters store their vector raw.
  ZGeoPoint GetXDirection() const { return Row(0).Direction(); }
  ZGeoPoint GetYDirection() const { return Row(1).Direction(); }
  ZGeoPoint GetZDirection() const { return Row(2).Direction(); }
  void SetXDirection(ZGeoPoint const& d) { SetRow(0, d); }
  void SetYDirection(ZGeoPoint const& d) { SetRow(1, d); }
  void SetZDirection(ZGeoPoint const& d) { SetRow(2, d); }

  void SetToIdentity();
  // A rotation by `angle` radians about `axis` through the origin, which is
  // normalised first. A positive angle about +Z carries +X towards +Y. A zero
  // axis leaves cos(angle) on the diagonal and nothing else.
  void SetToRotationMatrix(float angle, ZGeoPoint const& axis);
  // The rotation about the line through `point` along `axis`.
  void SetToOffAxisRotation(float angle, ZGeoPoint const& axis, ZGeoPoint const& point);
  // The identity with `s` in (0,0), (1,1), (2,2).
  void SetToScaleMatrix(float s);

  // this = this * m.
  void Append(ZGeoMatrix const& m);
  // The graphics library's inverse. A singular matrix gives whatever the
  // library leaves in an identity matrix.
  ZGeoMatrix GetInverse() const;
  // The classical adjoint (adjugate).
  ZGeoMatrix GetAdjoint() const;
  // this * m.
  ZGeoMatrix Product(ZGeoMatrix const& m) const;
  // A copy with `p` added to the translation.
  ZGeoMatrix Translate(ZGeoPoint const& p) const;
  // A copy followed by a uniform scale by `s`.
  ZGeoMatrix Scale(float s) const;

  // Exact element comparisons; an element equal to neither below nor above
  // the other counts as equal, so NaN elements match anything.
  bool IsIdentity() const;
  bool Equals(ZGeoMatrix const& m) const;
  // The length of row 0: the scale along X only.
  float GetScale() const;
  // Rows 0, 1, 2 made unit length; row 3 and column 3 are kept.
  void Normalize();

  // p * M with the library's homogeneous divide.
  ZGeoPoint TransformPoint(ZGeoPoint const& p) const;
  // The unit direction from the image of the origin to the image of `d`;
  // zero when those images coincide.
  ZGeoPoint TransformDirection(ZGeoPoint const& d) const;
  // The length of TransformDirection((d, 0, 0)): since that direction is a
  // unit vector, this is 1 for any non-zero `d` on an invertible matrix and
  // not a scaled distance. Callers rely on this.
  float TransformDistance(float d) const;
  // The circle through the images of the circle's three defining points.
  ZGeoCircle TransformCircle(ZGeoCircle const& c) const;
  // The axis transformed; the diameter through TransformDistance, and so 2
  // for any non-zero hole.
  ZGeoHole TransformHole(ZGeoHole const& h) const;
  ZGeoLine TransformLine(ZGeoLine const& l) const;
  // The normal is transformed as a direction, with no inverse transpose, so
  // a non-uniform scale tilts it.
  ZGeoPlane TransformPlane(ZGeoPlane const& p) const;
  ZGeoPolyline TransformPolyline(ZGeoPolyline const& p) const;
  // The radius through TransformDistance; see there.
  ZGeoSphere TransformSphere(ZGeoSphere const& s) const;

 private:
  ZGeoPoint Row(int row) const { return ZGeoPoint(m_[row * 4], m_[row * 4 + 1], m_[row * 4 + 2]); }
  void SetRow(int row, ZGeoPoint const& p);

  float m_[16];
};
