#include "geometry/mesh.h"

#include <array>

namespace graphics {

void Mesh::ForEachFace(const std::function<void(std::span<const int>)>& visit) const {
  for (int r = 0; r + 1 < rows_; ++r) {
    for (int c = 0; c + 1 < columns_; ++c) {
      const int a = r * columns_ + c;
      const int b = a + 1;
      const int d = a + columns_;
      const int e = d + 1;
      const std::array<int, 3> first{a, b, e};
      const std::array<int, 3> second{a, e, d};
      visit(first);
      visit(second);
    }
  }
}

void Mesh::EditBlock(int row, int column, int row_count, int column_count, std::span<const Point> block) {
  std::vector<Point>& points = mutable_points();
  for (int r = 0; r < row_count; ++r) {
    for (int c = 0; c < column_count; ++c) {
      points[static_cast<size_t>((row + r) * columns_ + column + c)] = block[static_cast<size_t>(r * column_count + c)];
    }
  }
  MarkChanged();
}

}  // namespace graphics
