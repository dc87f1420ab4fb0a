#include "math/shell_optimization.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <string>
#include <unordered_map>

#include "geometry/vector_ops.h"

namespace graphics {

namespace {

// One loop of the face list: a face, or a hole in the face before it.
struct Loop {
  size_t first;  // index in the face list of its first point index
  size_t count;
  bool hole;
};

Result<std::vector<Loop>> ReadLoops(const ShellInput& input) {
  std::vector<Loop> loops;
  const std::span<const int> faces = input.faces;
  for (size_t i = 0; i < faces.size();) {
    const int count = faces[i];
    if (count == 0) return Error(errc::kOutOfRange, "a face of the face list has no points");
    if (count < 0 && loops.empty()) return Error(errc::kOutOfRange, "the face list starts with a hole");
    const size_t size = static_cast<size_t>(count < 0 ? -static_cast<long long>(count) : count);
    if (size > faces.size() - i - 1) return Error(errc::kOutOfRange, "the face list ends inside a face");
    for (size_t j = i + 1; j <= i + size; ++j) {
      if (faces[j] < 0 || static_cast<size_t>(faces[j]) >= input.points.size()) {
        return Error(errc::kOutOfRange, "face list index " + std::to_string(faces[j]) + " names no point");
      }
    }
    loops.push_back(Loop{i + 1, size, count < 0});
    i += size + 1;
  }
  return loops;
}

// The shortest edge of non-zero length, or 0 when there is none.
double ShortestEdge(const ShellInput& input, const std::vector<Loop>& loops) {
  double shortest = std::numeric_limits<double>::infinity();
  for (const Loop& loop : loops) {
    for (size_t j = 0; j < loop.count; ++j) {
      const Point& a = input.points[static_cast<size_t>(input.faces[loop.first + j])];
      const Point& b = input.points[static_cast<size_t>(input.faces[loop.first + (j + 1) % loop.count])];
      const double length = Length(ToVec(a) - ToVec(b));
      if (length > 0) shortest = std::min(shortest, length);
    }
  }
  return std::isfinite(shortest) ? shortest : 0;
}

struct CellKey {
  std::int64_t x, y, z;
  bool operator==(const CellKey&) const = default;
};

struct CellHash {
  size_t operator()(const CellKey& k) const {
    std::uint64_t h = static_cast<std::uint64_t>(k.x) * 0x9E3779B97F4A7C15ull;
    h ^= static_cast<std::uint64_t>(k.y) + 0x7F4A7C159E3779B9ull + (h << 6) + (h >> 2);
    h ^= static_cast<std::uint64_t>(k.z) + 0x94D049BB133111EBull + (h << 6) + (h >> 2);
    return static_cast<size_t>(h);
  }
};

// Finds for each point the first earlier point it merges with. Points sit in
// cells: with a tolerance, cubes of its size, so partners are in the 27
// cells around; without one, a cell per exact position.
class PointMerger {
 public:
  PointMerger(const ShellInput& input, double tolerance, double normal_tolerance_degrees)
      : input_(input),
        tolerance_(tolerance),
        min_cosine_(std::cos(normal_tolerance_degrees * std::numbers::pi / 180) - 1e-6) {}

  // rep[i]: the index of the point i merges into (i itself for the first of
  // a group).
  std::vector<int> Representatives() {
    const size_t count = input_.points.size();
    std::vector<int> rep(count);
    next_in_cell_.assign(count, -1);
    cells_.reserve(count);
    for (size_t i = 0; i < count; ++i) {
      const CellKey key = KeyOf(input_.points[i]);
      int found = -1;
      const int reach = tolerance_ > 0 ? 1 : 0;
      for (int dx = -reach; dx <= reach; ++dx) {
        for (int dy = -reach; dy <= reach; ++dy) {
          for (int dz = -reach; dz <= reach; ++dz) {
            const auto cell = cells_.find(CellKey{key.x + dx, key.y + dy, key.z + dz});
            if (cell == cells_.end()) continue;
            for (int c = cell->second; c >= 0; c = next_in_cell_[static_cast<size_t>(c)]) {
              if ((found < 0 || c < found) && Merges(i, static_cast<size_t>(c))) found = c;
            }
          }
        }
      }
      if (found >= 0) {
        rep[i] = found;
        continue;
      }
      rep[i] = static_cast<int>(i);
      auto [cell, fresh] = cells_.try_emplace(key, static_cast<int>(i));
      if (!fresh) {
        next_in_cell_[i] = cell->second;
        cell->second = static_cast<int>(i);
      }
    }
    return rep;
  }

 private:
  static std::int64_t Bits(float v) { return std::bit_cast<std::uint32_t>(v + 0.0f); }  // -0 reads as 0
  std::int64_t Cell(float v) const {
    const double cell = std::floor(v / tolerance_);
    return static_cast<std::int64_t>(std::clamp(cell, -4e18, 4e18));
  }
  CellKey KeyOf(const Point& p) const {
    if (tolerance_ > 0) return {Cell(p.x), Cell(p.y), Cell(p.z)};
    return {Bits(p.x), Bits(p.y), Bits(p.z)};
  }

  bool Merges(size_t i, size_t candidate) const {
    const Point& a = input_.points[i];
    const Point& b = input_.points[candidate];
    if (tolerance_ > 0 ? Length(ToVec(a) - ToVec(b)) > tolerance_ : !(a == b)) return false;
    if (input_.normals.empty()) return true;
    const Vec3 na = ToVec(input_.normals[i]), nb = ToVec(input_.normals[candidate]);
    const double lengths = Length(na) * Length(nb);
    if (lengths == 0) return Length(na) == Length(nb);
    return Dot(na, nb) / lengths >= min_cosine_;
  }

  const ShellInput& input_;
  double tolerance_;
  double min_cosine_;
  std::unordered_map<CellKey, int, CellHash> cells_;  // the last point added to each cell
  std::vector<int> next_in_cell_;                      // the point added before it
};

// A loop's corners as representatives, repeated neighbours taken out (the
// last corner counts as the first one's neighbour).
std::vector<int> Corners(const ShellInput& input, const Loop& loop, const std::vector<int>& rep) {
  std::vector<int> corners;
  corners.reserve(loop.count);
  for (size_t j = 0; j < loop.count; ++j) {
    const int r = rep[static_cast<size_t>(input.faces[loop.first + j])];
    if (corners.empty() || corners.back() != r) corners.push_back(r);
  }
  while (corners.size() > 1 && corners.front() == corners.back()) corners.pop_back();
  return corners;
}

}  // namespace

Result<OptimizedShell> OptimizeShell(const ShellInput& input, const ShellOptimizationOptions& options) {
  auto loops = ReadLoops(input);
  if (!loops.ok()) return loops.error();
  const double tolerance = options.tolerance_is_percentage
                               ? options.tolerance / 100 * ShortestEdge(input, loops.value())
                               : options.tolerance;
  const std::vector<int> rep = PointMerger(input, tolerance, options.normal_tolerance_degrees).Representatives();

  OptimizedShell shell;
  // Faces first, in representatives, so points only dropped faces used
  // become orphans.
  std::vector<int> faces;
  bool face_kept = false;
  int kept_faces = 0;
  for (const Loop& loop : loops.value()) {
    const std::vector<int> corners = Corners(input, loop, rep);
    const bool enough = corners.size() >= 3;
    if (!loop.hole) {
      face_kept = enough;
      shell.face_mapping.push_back(enough ? kept_faces++ : -1);
    }
    if (!enough || !face_kept) continue;
    const int count = static_cast<int>(corners.size());
    faces.push_back(loop.hole ? -count : count);
    faces.insert(faces.end(), corners.begin(), corners.end());
  }

  const size_t count = input.points.size();
  std::vector<bool> used(count, !options.orphan_elimination);
  for (size_t i = 0; i < faces.size(); i += static_cast<size_t>(std::abs(faces[i])) + 1) {
    for (size_t j = 1; j <= static_cast<size_t>(std::abs(faces[i])); ++j) used[static_cast<size_t>(faces[i + j])] = true;
  }
  std::vector<int> new_index(count, -1);
  for (size_t i = 0; i < count; ++i) {
    if (rep[i] != static_cast<int>(i) || !used[i]) continue;
    new_index[i] = static_cast<int>(shell.points.size());
    shell.points.push_back(input.points[i]);
  }
  shell.point_mapping.resize(count);
  for (size_t i = 0; i < count; ++i) shell.point_mapping[i] = new_index[static_cast<size_t>(rep[i])];
  for (size_t i = 0; i < faces.size(); i += static_cast<size_t>(std::abs(faces[i])) + 1) {
    for (size_t j = 1; j <= static_cast<size_t>(std::abs(faces[i])); ++j) {
      faces[i + j] = new_index[static_cast<size_t>(faces[i + j])];
    }
  }
  shell.faces = std::move(faces);
  return shell;
}

}  // namespace graphics
