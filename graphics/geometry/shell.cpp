#include "geometry/shell.h"

#include <string>
#include <unordered_set>

namespace graphics {

namespace {

Error BadList(const std::string& what) { return Error(errc::kOutOfRange, what); }

// Checks one run of `count` indices at `at` of `list`.
Status CheckIndices(size_t point_count, std::span<const int> list, size_t at, size_t count, const char* name) {
  if (at + count > list.size()) return BadList(std::string(name) + " ends in the middle of an entry");
  for (size_t i = at; i < at + count; ++i) {
    if (list[i] < 0 || static_cast<size_t>(list[i]) >= point_count) {
      return BadList(std::string(name) + " uses point " + std::to_string(list[i]) + " of " +
                     std::to_string(point_count));
    }
  }
  return Done{};
}

// Calls `visit(at, count)` for every entry of a list of counted runs.
template <typename Visit>
void ForEachRun(std::span<const int> list, Visit&& visit) {
  for (size_t at = 0; at < list.size();) {
    const int count = list[at];
    const size_t length = static_cast<size_t>(count < 0 ? -static_cast<long long>(count) : count);
    visit(at + 1, length, count < 0);
    at += 1 + length;
  }
}

}  // namespace

Shell::Shell(std::vector<Point> points, bool by_tristrips, std::vector<int> indices, std::vector<int> face_ids)
    : Surface(GeometryType::kShell, std::move(points)), by_tristrips_(by_tristrips), face_ids_(std::move(face_ids)) {
  (by_tristrips_ ? tristrips_ : face_list_) = std::move(indices);
  face_count_ = CountFaces();
}

Shell Shell::FromFaceList(std::vector<Point> points, std::vector<int> face_list) {
  return Shell(std::move(points), false, std::move(face_list), {});
}

Shell Shell::FromTristrips(std::vector<Point> points, std::vector<int> tristrips, std::vector<int> face_ids) {
  return Shell(std::move(points), true, std::move(tristrips), std::move(face_ids));
}

Status Shell::CheckFaceList(size_t point_count, std::span<const int> list) {
  bool first = true;
  for (size_t at = 0; at < list.size();) {
    const long long count = list[at];
    if (count == 0) return BadList("a face of no vertices in the face list");
    if (count < 0 && first) return BadList("the face list starts with a hole");
    const size_t length = static_cast<size_t>(count < 0 ? -count : count);
    auto checked = CheckIndices(point_count, list, at + 1, length, "the face list");
    if (!checked.ok()) return checked;
    at += 1 + length;
    first = false;
  }
  return Done{};
}

Result<size_t> Shell::CheckTristrips(size_t point_count, std::span<const int> strips) {
  size_t triangles = 0;
  for (size_t at = 0; at < strips.size();) {
    if (strips[at] < 3) return BadList("a triangle strip of fewer than three vertices");
    const size_t length = static_cast<size_t>(strips[at]);
    auto checked = CheckIndices(point_count, strips, at + 1, length, "the triangle strips");
    if (!checked.ok()) return checked.error();
    triangles += length - 2;
    at += 1 + length;
  }
  return triangles;
}

std::vector<int> Shell::StripTriangles() const {
  std::vector<int> triangles;
  ForEachRun(tristrips_, [&](size_t at, size_t length, bool) {
    for (size_t i = 0; i + 2 < length; ++i) {
      const int* v = &tristrips_[at + i];
      if (i % 2 == 0) {
        triangles.insert(triangles.end(), {v[0], v[1], v[2]});
      } else {
        triangles.insert(triangles.end(), {v[1], v[0], v[2]});
      }
    }
  });
  return triangles;
}

std::vector<int> Shell::FaceList() const {
  if (!by_tristrips_) return face_list_;
  const std::vector<int> triangles = StripTriangles();
  std::vector<int> list;
  list.reserve(triangles.size() / 3 * 4);
  for (size_t i = 0; i < triangles.size(); i += 3) list.insert(list.end(), {3, triangles[i], triangles[i + 1], triangles[i + 2]});
  return list;
}

int Shell::CountFaces() const {
  if (by_tristrips_ && !face_ids_.empty()) {
    return static_cast<int>(std::unordered_set<int>(face_ids_.begin(), face_ids_.end()).size());
  }
  int count = 0;
  if (by_tristrips_) {
    ForEachRun(tristrips_, [&](size_t, size_t length, bool) { count += static_cast<int>(length) - 2; });
  } else {
    ForEachRun(face_list_, [&](size_t, size_t, bool hole) { count += hole ? 0 : 1; });
  }
  return count;
}

void Shell::ForEachFace(const std::function<void(std::span<const int>)>& visit) const {
  if (by_tristrips_) {
    const std::vector<int> triangles = StripTriangles();
    for (size_t i = 0; i < triangles.size(); i += 3) visit(std::span<const int>(&triangles[i], 3));
    return;
  }
  ForEachRun(face_list_, [&](size_t at, size_t length, bool hole) {
    if (!hole) visit(std::span<const int>(&face_list_[at], length));
  });
}

Status Shell::EditPoints(size_t offset, size_t ndelete, std::span<const Point> inserted) {
  std::vector<int>& indices = by_tristrips_ ? tristrips_ : face_list_;
  const long long shift = static_cast<long long>(inserted.size()) - static_cast<long long>(ndelete);
  bool used = false;
  ForEachRun(indices, [&](size_t at, size_t length, bool) {
    for (size_t i = at; i < at + length; ++i) {
      const size_t index = static_cast<size_t>(indices[i]);
      used = used || (index >= offset && index < offset + ndelete);
    }
  });
  if (used) return Error(errc::kOutOfRange, "a face uses one of the points to delete");
  ForEachRun(indices, [&](size_t at, size_t length, bool) {
    for (size_t i = at; i < at + length; ++i) {
      if (static_cast<size_t>(indices[i]) >= offset + ndelete) indices[i] = static_cast<int>(indices[i] + shift);
    }
  });
  std::vector<Point>& points = mutable_points();
  const auto at = points.begin() + static_cast<std::ptrdiff_t>(offset);
  points.erase(at, at + static_cast<std::ptrdiff_t>(ndelete));
  points.insert(points.begin() + static_cast<std::ptrdiff_t>(offset), inserted.begin(), inserted.end());
  EditVertexData(offset, ndelete, inserted.size());
  return Done{};
}

}  // namespace graphics
