#pragma once
// What shells and meshes share: their points and the optional data set per
// vertex and per face with the MSet_ calls. Data nobody set takes no room:
// each array stays empty until its first value arrives.
#include <array>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "geometry/geometry.h"
#include "math/point.h"

namespace graphics {

// A colour set on a vertex or face: RGB values, or an index into the colour
// map.
struct SurfaceColor {
  bool by_index = false;
  std::array<float, 3> rgb{};
  float index = 0;
};

class Surface : public Geometry {
 public:
  const std::vector<Point>& points() const { return points_; }
  virtual int FaceCount() const = 0;
  // Calls `visit` with the vertex indices of each face's outline, in face
  // order; holes are not visited.
  virtual void ForEachFace(const std::function<void(std::span<const int>)>& visit) const = 0;

  // Explicit vertex normals: empty when none is set; an unset entry is
  // nullopt.
  const std::vector<std::optional<Point>>& vertex_normals() const { return vertex_normals_; }
  void SetVertexNormals(size_t offset, std::span<const Point> normals);
  // The vertex's normal back to the computed one.
  void UnSetVertexNormal(size_t offset);
  // The explicit normal of each vertex in the range, else the area-weighted
  // mean of the normals of the faces around it; (0,0,0) for a vertex in no
  // face.
  std::vector<Point> NetVertexNormals(size_t offset, size_t count) const;

  // Texture parameters: `parameter_width()` floats per vertex, 0 when none.
  int parameter_width() const { return parameter_width_; }
  const std::vector<float>& parameters() const { return parameters_; }
  // Sets parameters of `width` floats for vertices from `offset`; the width
  // must match the one in use, if any (the caller checks).
  void SetParameters(size_t offset, int width, std::span<const float> values);

  const std::vector<std::optional<SurfaceColor>>& vertex_colors() const { return vertex_colors_; }
  const std::vector<std::optional<SurfaceColor>>& face_colors() const { return face_colors_; }
  void SetVertexColors(size_t offset, std::span<const SurfaceColor> colors);
  void SetFaceColors(size_t offset, std::span<const SurfaceColor> colors);
  void UnSetVertexColors(size_t offset, size_t count);
  void UnSetFaceColors(size_t offset, size_t count);

  // Cached, since a big surface costs a pass over all its points.
  Bounds ComputeBounds() const override;

 protected:
  Surface(GeometryType type, std::vector<Point> points) : Geometry(type), points_(std::move(points)) {}
  Surface(const Surface&) = default;

  // For changing the points; drops the cached bounds.
  std::vector<Point>& mutable_points() {
    bounds_.reset();
    return points_;
  }
  // Keeps per-vertex data in step with a point edit: `ndelete` vertices at
  // `offset` replaced by `inserted` new ones without data.
  void EditVertexData(size_t offset, size_t ndelete, size_t inserted);

 private:
  std::vector<Point> points_;
  std::vector<std::optional<Point>> vertex_normals_;
  int parameter_width_ = 0;
  std::vector<float> parameters_;
  std::vector<std::optional<SurfaceColor>> vertex_colors_;
  std::vector<std::optional<SurfaceColor>> face_colors_;
  // Filled under the exclusive database lock, like the segments' caches.
  mutable std::optional<Bounds> bounds_;
};

}  // namespace graphics
