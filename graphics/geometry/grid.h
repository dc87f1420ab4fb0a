#pragma once
// A grid: "quadrilateral" cells spanned by origin, ref1 and ref2, or
// "radial" wedges about the origin. Counts as given; zero or negative
// counts mean an unbounded or two-sided grid.
#include <string>

#include "geometry/geometry.h"
#include "math/point.h"

namespace graphics {

class Grid final : public CopyableGeometry<Grid> {
 public:
  Grid(std::string type, const Point& origin, const Point& ref1, const Point& ref2, int count1, int count2)
      : CopyableGeometry(GeometryType::kGrid),
        type_(std::move(type)),
        origin_(origin),
        ref1_(ref1),
        ref2_(ref2),
        count1_(count1),
        count2_(count2) {}

  // "quadrilateral" or "radial".
  const std::string& grid_type() const { return type_; }
  const Point& origin() const { return origin_; }
  const Point& ref1() const { return ref1_; }
  const Point& ref2() const { return ref2_; }
  int count1() const { return count1_; }
  int count2() const { return count2_; }

  // The defining points only: an unbounded grid has no finite box, and a
  // bounded one is drawn about them.
  Bounds ComputeBounds() const override;

 private:
  std::string type_;
  Point origin_;
  Point ref1_;
  Point ref2_;
  int count1_;
  int count2_;
};

}  // namespace graphics
