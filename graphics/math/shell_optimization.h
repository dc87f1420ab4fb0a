#pragma once
// Shell data made lean: points closer than a tolerance (with normals within
// an angle, when normals are given) become one, faces left with fewer than
// three corners go, and points no face uses can go too. Mapping lists tell
// where each old point and face went.
#include <optional>
#include <span>
#include <vector>

#include "errors/error.h"
#include "math/point.h"

namespace graphics {

struct ShellOptimizationOptions {
  // Points at most this far apart are merged; 0 merges equal points only.
  double tolerance = 0;
  // Whether `tolerance` is a percentage of the shortest edge of non-zero
  // length rather than a distance in object units.
  bool tolerance_is_percentage = false;
  // With normals, points merge only when their normals are at most this many
  // degrees apart.
  double normal_tolerance_degrees = 0;
  // Whether points no remaining face uses are dropped.
  bool orphan_elimination = true;
};

// Input in the interface's form: a face list of counts, each followed by
// that many point indices; a negative count is a hole in the face before.
struct ShellInput {
  std::span<const Point> points;
  std::span<const Point> normals;  // empty, or one per point
  std::span<const int> faces;
};

struct OptimizedShell {
  std::vector<Point> points;
  std::vector<int> faces;
  // For each input point, its new index, or -1 when it was dropped.
  std::vector<int> point_mapping;
  // For each input face (holes not counted), its new index, or -1.
  std::vector<int> face_mapping;
};

// Each merged point takes the position of the first point of its group, in
// input order; a face keeps its corners in order, with repeated neighbours
// (after merging) taken out, and goes with its holes when fewer than three
// corners remain; such a hole alone goes. Errors: a zero count, a hole before
// any face, a count running past the end, an index outside the points.
Result<OptimizedShell> OptimizeShell(const ShellInput& input, const ShellOptimizationOptions& options);

}  // namespace graphics
