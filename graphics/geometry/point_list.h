#pragma once
// Geometry made of a run of points: markers (one point), polylines,
// polygons, and the polyline an ink call extends.
#include <span>
#include <vector>

#include "geometry/geometry.h"
#include "math/point.h"

namespace graphics {

class PointList final : public CopyableGeometry<PointList> {
 public:
  // `disjoint`: a polyline drawn as separate two-point pieces, which the
  // interface writes as a negative count.
  PointList(GeometryType type, std::vector<Point> points, bool disjoint = false)
      : CopyableGeometry(type), points_(std::move(points)), disjoint_(disjoint) {}

  const std::vector<Point>& points() const { return points_; }
  // The count as the interface shows it: negative for disjoint pieces.
  int signed_count() const;

  // Deletes `ndelete` points at `offset`, then inserts `inserted` there. The
  // caller has checked offset + ndelete <= points().size().
  void Edit(size_t offset, size_t ndelete, std::span<const Point> inserted);
  void Append(const Point& point);

  Bounds ComputeBounds() const override;

 private:
  std::vector<Point> points_;
  bool disjoint_;
};

}  // namespace graphics
