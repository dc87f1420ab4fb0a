#pragma once
// A shell: points and faces. Faces come either as a face list (per face its
// vertex count, then that many point indices; a negative count makes a hole
// in the face before it, and a face with its holes counts as one face) or
// as triangle strips (per strip its vertex count, then the indices; each
// vertex after the first two adds a triangle), with optional face
// identifiers grouping triangles into faces.
#include <span>
#include <vector>

#include "errors/error.h"
#include "geometry/surface.h"

namespace graphics {

class Shell final : public Surface {
 public:
  // A shell from a face list the caller has checked with CheckFaceList.
  static Shell FromFaceList(std::vector<Point> points, std::vector<int> face_list);
  // From strips checked with CheckTristrips; `face_ids` empty, or one per
  // triangle.
  static Shell FromTristrips(std::vector<Point> points, std::vector<int> tristrips, std::vector<int> face_ids);

  // Why `list` is not a face list over `point_count` points, if it is not.
  static Status CheckFaceList(size_t point_count, std::span<const int> list);
  // As CheckFaceList for strips; gives the number of triangles.
  static Result<size_t> CheckTristrips(size_t point_count, std::span<const int> strips);

  std::unique_ptr<Geometry> Clone() const override { return std::make_unique<Shell>(*this); }

  bool by_tristrips() const { return by_tristrips_; }
  // The faces as a face list: as stored, or for a strip shell one
  // three-vertex face per triangle, with the winding of every second
  // triangle of a strip turned so all face the same way.
  std::vector<int> FaceList() const;
  const std::vector<int>& tristrips() const { return tristrips_; }
  const std::vector<int>& face_ids() const { return face_ids_; }

  int FaceCount() const override { return face_count_; }
  void ForEachFace(const std::function<void(std::span<const int>)>& visit) const override;

  // Deletes `ndelete` points at `offset` and inserts `inserted` there, the
  // faces following their points. Refused, changing nothing, when a face
  // uses a deleted point.
  Status EditPoints(size_t offset, size_t ndelete, std::span<const Point> inserted);

  Shell(const Shell&) = default;

 private:
  Shell(std::vector<Point> points, bool by_tristrips, std::vector<int> indices, std::vector<int> face_ids);
  // The triangles of the strips, three indices each, turned as FaceList says.
  std::vector<int> StripTriangles() const;
  int CountFaces() const;

  bool by_tristrips_;
  std::vector<int> face_list_;  // empty for a strip shell
  std::vector<int> tristrips_;  // empty for a face-list shell
  std::vector<int> face_ids_;
  int face_count_ = 0;
};

}  // namespace graphics
