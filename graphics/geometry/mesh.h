#pragma once
// A mesh: rows x columns points, row after row. Its faces are the quads
// between neighbouring points, each split in two triangles.
#include <span>
#include <vector>

#include "geometry/surface.h"

namespace graphics {

class Mesh final : public Surface {
 public:
  // `points` holds rows * columns points; both are at least 1.
  Mesh(int rows, int columns, std::vector<Point> points)
      : Surface(GeometryType::kMesh, std::move(points)), rows_(rows), columns_(columns) {}
  Mesh(const Mesh&) = default;

  std::unique_ptr<Geometry> Clone() const override { return std::make_unique<Mesh>(*this); }

  int rows() const { return rows_; }
  int columns() const { return columns_; }

  int FaceCount() const override { return 2 * (rows_ - 1) * (columns_ - 1); }
  void ForEachFace(const std::function<void(std::span<const int>)>& visit) const override;

  // Replaces the block of row_count x column_count points at (row, column)
  // by `block`, row after row. The caller has checked the block lies inside.
  void EditBlock(int row, int column, int row_count, int column_count, std::span<const Point> block);

 private:
  int rows_;
  int columns_;
};

}  // namespace graphics
