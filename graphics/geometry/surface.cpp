#include "geometry/surface.h"

#include <algorithm>

#include "geometry/vector_ops.h"

namespace graphics {

namespace {

template <typename T>
void Assign(std::vector<T>& values, size_t size, size_t offset, std::span<const typename T::value_type> set) {
  if (values.size() < size) values.resize(size);
  for (size_t i = 0; i < set.size(); ++i) values[offset + i] = set[i];
}

template <typename T>
void Clear(std::vector<std::optional<T>>& values, size_t offset, size_t count) {
  for (size_t i = offset; i < std::min(values.size(), offset + count); ++i) values[i].reset();
  if (std::none_of(values.begin(), values.end(), [](const auto& v) { return v.has_value(); })) values.clear();
}

// Replaces `ndelete` entries of `width` values at `offset` by `inserted`
// default ones; an array never set stays empty.
template <typename T>
void Splice(std::vector<T>& values, size_t width, size_t offset, size_t ndelete, size_t inserted) {
  if (values.empty()) return;
  const auto at = values.begin() + static_cast<std::ptrdiff_t>(offset * width);
  values.erase(at, at + static_cast<std::ptrdiff_t>(ndelete * width));
  values.insert(values.begin() + static_cast<std::ptrdiff_t>(offset * width), inserted * width, T{});
}

}  // namespace

void Surface::SetVertexNormals(size_t offset, std::span<const Point> normals) {
  Assign(vertex_normals_, points_.size(), offset, normals);
}

void Surface::UnSetVertexNormal(size_t offset) {
  if (offset < vertex_normals_.size()) vertex_normals_[offset].reset();
}

std::vector<Point> Surface::NetVertexNormals(size_t offset, size_t count) const {
  std::vector<Vec3> sums(count);
  ForEachFace([&](std::span<const int> face) {
    // Newell's method: the sum is the face normal scaled by twice the area.
    Vec3 normal;
    for (size_t i = 0; i < face.size(); ++i) {
      const Vec3 a = ToVec(points_[static_cast<size_t>(face[i])]);
      const Vec3 b = ToVec(points_[static_cast<size_t>(face[(i + 1) % face.size()])]);
      normal = normal + Vec3{(a.y - b.y) * (a.z + b.z), (a.z - b.z) * (a.x + b.x), (a.x - b.x) * (a.y + b.y)};
    }
    for (int index : face) {
      const size_t vertex = static_cast<size_t>(index);
      if (vertex >= offset && vertex < offset + count) sums[vertex - offset] = sums[vertex - offset] + normal;
    }
  });
  std::vector<Point> normals(count);
  for (size_t i = 0; i < count; ++i) {
    const size_t vertex = offset + i;
    if (vertex < vertex_normals_.size() && vertex_normals_[vertex]) {
      normals[i] = *vertex_normals_[vertex];
    } else if (const double length = Length(sums[i]); length > 0) {
      normals[i] = ToPoint(sums[i] * (1 / length));
    }
  }
  return normals;
}

void Surface::SetParameters(size_t offset, int width, std::span<const float> values) {
  parameter_width_ = width;
  if (parameters_.size() < points_.size() * static_cast<size_t>(width)) {
    parameters_.resize(points_.size() * static_cast<size_t>(width));
  }
  std::copy(values.begin(), values.end(), parameters_.begin() + static_cast<std::ptrdiff_t>(offset * width));
}

void Surface::SetVertexColors(size_t offset, std::span<const SurfaceColor> colors) {
  Assign(vertex_colors_, points_.size(), offset, colors);
}

void Surface::SetFaceColors(size_t offset, std::span<const SurfaceColor> colors) {
  Assign(face_colors_, static_cast<size_t>(FaceCount()), offset, colors);
}

void Surface::UnSetVertexColors(size_t offset, size_t count) { Clear(vertex_colors_, offset, count); }
void Surface::UnSetFaceColors(size_t offset, size_t count) { Clear(face_colors_, offset, count); }

void Surface::EditVertexData(size_t offset, size_t ndelete, size_t inserted) {
  Splice(vertex_normals_, 1, offset, ndelete, inserted);
  Splice(parameters_, static_cast<size_t>(parameter_width_), offset, ndelete, inserted);
  Splice(vertex_colors_, 1, offset, ndelete, inserted);
  MarkChanged();
}

Bounds Surface::ComputeBounds() const {
  if (!bounds_) {
    Bounds bounds;
    for (const Point& p : points_) bounds.Include(p);
    bounds_ = bounds;
  }
  return *bounds_;
}

}  // namespace graphics
