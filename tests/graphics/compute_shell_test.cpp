// Shell data made lean: shared corners merged, degenerate faces and unused
// points dropped, with mapping lists from the old data to the new; checked
// on small hand-made shells and on a triangle soup from assimp's test models.
#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

struct P {
  float x, y, z;
  bool operator==(const P&) const = default;
  auto operator<=>(const P&) const = default;
};

struct Shell {
  std::vector<P> points;
  std::vector<int> faces;
  std::vector<int> point_mapping;
  std::vector<int> face_mapping;
};

int FaceCount(const std::vector<int>& faces) {
  int count = 0;
  for (size_t i = 0; i < faces.size(); i += static_cast<size_t>(std::abs(faces[i])) + 1) count += faces[i] > 0;
  return count;
}

Shell Optimize(const std::vector<P>& points, const std::vector<int>& faces, const char* options,
               const std::vector<P>* normals = nullptr) {
  Shell out;
  out.points.resize(points.size());
  out.faces.resize(faces.size());
  out.point_mapping.assign(points.size(), -2);
  out.face_mapping.assign(static_cast<size_t>(FaceCount(faces)), -2);
  int pcount = -1, flist_length = -1;
  HC_Compute_Optimized_Shell(static_cast<int>(points.size()), points.data(), normals ? normals->data() : nullptr,
                             static_cast<int>(faces.size()), faces.data(), options, &pcount, out.points.data(),
                             &flist_length, out.faces.data(), out.point_mapping.data(), out.face_mapping.data());
  EXPECT_GE(pcount, 0);
  EXPECT_GE(flist_length, 0);
  out.points.resize(static_cast<size_t>(std::max(pcount, 0)));
  out.faces.resize(static_cast<size_t>(std::max(flist_length, 0)));
  return out;
}

// Every kept point's new position is its old one.
void ExpectMappedPositions(const std::vector<P>& old_points, const Shell& shell) {
  for (size_t i = 0; i < old_points.size(); ++i) {
    const int to = shell.point_mapping[i];
    if (to >= 0) {
      EXPECT_EQ(shell.points[static_cast<size_t>(to)], old_points[i]) << "point " << i;
    }
  }
}

// A unit square as two triangles, each with its own corners.
const std::vector<P> kSquare = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 0, 0}, {1, 1, 0}, {0, 1, 0}};
const std::vector<int> kSquareFaces = {3, 0, 1, 2, 3, 3, 4, 5};

class OptimizedShell : public EngineTest {};

TEST_F(OptimizedShell, SharedCornersBecomeOnePoint) {
  const Shell shell = Optimize(kSquare, kSquareFaces, "");
  EXPECT_EQ(shell.points.size(), 4u);
  EXPECT_EQ(shell.point_mapping, (std::vector<int>{0, 1, 2, 0, 2, 3}));
  EXPECT_EQ(shell.faces, (std::vector<int>{3, 0, 1, 2, 3, 0, 2, 3}));
  EXPECT_EQ(shell.face_mapping, (std::vector<int>{0, 1}));
  ExpectMappedPositions(kSquare, shell);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OptimizedShell, DegenerateFacesGoAndTakeTheirOrphansWithThem) {
  std::vector<P> points = kSquare;
  points.insert(points.end(), {{5, 5, 5}, {6, 6, 6}, {5, 5, 5}, {9, 9, 9}});
  std::vector<int> faces = kSquareFaces;
  faces.insert(faces.begin(), {3, 6, 7, 8});  // two corners at one place: a line
  const Shell shell = Optimize(points, faces, "");
  EXPECT_EQ(shell.face_mapping, (std::vector<int>{-1, 0, 1}));
  EXPECT_EQ(shell.points.size(), 4u);
  EXPECT_EQ(std::count(shell.point_mapping.begin(), shell.point_mapping.end(), -1), 4);
  ExpectMappedPositions(points, shell);

  const Shell kept = Optimize(points, faces, "no orphan elimination");
  EXPECT_EQ(kept.points.size(), 7u);  // the square's 4, and (5,5,5), (6,6,6), (9,9,9)
  EXPECT_EQ(kept.point_mapping[6], kept.point_mapping[8]);
  EXPECT_EQ(kept.faces.size(), 8u);
  ExpectMappedPositions(points, kept);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OptimizedShell, ToleranceMergesNearbyPoints) {
  std::vector<P> points = kSquare;
  points[3] = {0.001f, 0, 0};  // near (0, 0, 0)
  EXPECT_EQ(Optimize(points, kSquareFaces, "").points.size(), 5u);
  EXPECT_EQ(Optimize(points, kSquareFaces, "tolerance = 0.01").points.size(), 4u);
  EXPECT_EQ(Optimize(points, kSquareFaces, "tolerance = 0.01 oru").points.size(), 4u);
  EXPECT_EQ(Optimize(points, kSquareFaces, "tolerance = 0.0005").points.size(), 5u);
  // Percentages of the shortest edge, 1 long here.
  EXPECT_EQ(Optimize(points, kSquareFaces, "tolerance = 0.2%").points.size(), 4u);
  EXPECT_EQ(Optimize(points, kSquareFaces, "tolerance = 0.05 fru").points.size(), 5u);
  const Shell merged = Optimize(points, kSquareFaces, "tolerance = 0.01");
  EXPECT_EQ(merged.point_mapping[3], merged.point_mapping[0]);
  EXPECT_EQ(merged.points[0], (P{0, 0, 0}));  // the first of the group stands for it
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OptimizedShell, NormalsKeepCreasesApartUnlessWithinTheirTolerance) {
  std::vector<P> normals(kSquare.size(), P{0, 0, 1});
  normals[3] = {1, 0, 0};  // a crease at (0, 0, 0)
  EXPECT_EQ(Optimize(kSquare, kSquareFaces, "", &normals).points.size(), 5u);
  EXPECT_EQ(Optimize(kSquare, kSquareFaces, "normal tolerance = 80", &normals).points.size(), 5u);
  EXPECT_EQ(Optimize(kSquare, kSquareFaces, "normal tolerance = 90", &normals).points.size(), 4u);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OptimizedShell, HolesStayWithTheirFaceUnlessTheyCollapse) {
  const std::vector<P> points = {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}, {1, 1, 0},
                                 {2, 1, 0}, {2, 2, 0}, {3, 3, 0}, {3, 3, 0}, {3, 3, 0}};
  const std::vector<int> faces = {4, 0, 1, 2, 3, -3, 4, 5, 6, -3, 7, 8, 9};
  const Shell shell = Optimize(points, faces, "");
  EXPECT_EQ(shell.faces, (std::vector<int>{4, 0, 1, 2, 3, -3, 4, 5, 6}));
  EXPECT_EQ(shell.face_mapping, (std::vector<int>{0}));
  EXPECT_EQ(shell.points.size(), 7u);
  EXPECT_TRUE(TakeReports().empty());
}

// The corners of every facet of an ASCII STL file, three per triangle.
std::vector<P> ReadStlTriangles(const std::string& path) {
  std::ifstream file(path);
  std::vector<P> corners;
  std::string line;
  while (std::getline(file, line)) {
    std::istringstream words(line);
    std::string word;
    P p{};
    if (words >> word && word == "vertex" && words >> p.x >> p.y >> p.z) corners.push_back(p);
  }
  return corners;
}

TEST_F(OptimizedShell, ATriangleSoupBecomesOneConnectedSurface) {
  // Debian's assimp-testmodels: a sphere with a hole cut in it, written as
  // separate triangles.
  const std::vector<P> corners = ReadStlTriangles("/usr/share/assimp/models/STL/sphereWithHole.stl");
  ASSERT_GT(corners.size(), 300u);
  std::vector<int> faces;
  for (int i = 0; i < static_cast<int>(corners.size()); i += 3) faces.insert(faces.end(), {3, i, i + 1, i + 2});
  const Shell shell = Optimize(corners, faces, "");
  ExpectMappedPositions(corners, shell);
  EXPECT_EQ(std::set<P>(shell.points.begin(), shell.points.end()).size(), shell.points.size());
  EXPECT_EQ(std::set<P>(corners.begin(), corners.end()).size(), shell.points.size());

  // Joined up, the triangles share every edge with one neighbour, except
  // round the hole, whose rim closes: each rim corner has an even number of
  // rim edges (this model's rim touches itself at two corners).
  std::map<std::pair<int, int>, int> uses;
  for (size_t i = 0; i < shell.faces.size(); i += 4) {
    ASSERT_EQ(shell.faces[i], 3);
    for (size_t j = 0; j < 3; ++j) ++uses[std::minmax(shell.faces[i + 1 + j], shell.faces[i + 1 + (j + 1) % 3])];
  }
  std::map<int, int> rim_edges_at;
  for (const auto& [edge, count] : uses) {
    EXPECT_LE(count, 2);
    if (count == 1) ++rim_edges_at[edge.first], ++rim_edges_at[edge.second];
  }
  EXPECT_GE(rim_edges_at.size(), 3u);
  for (const auto& [corner, count] : rim_edges_at) EXPECT_EQ(count % 2, 0) << "corner " << corner;
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(OptimizedShell, BadInputReportsAndWritesNothing) {
  struct Case {
    std::vector<int> faces;
    const char* options;
    int category;
  };
  const Case cases[] = {
      {{3, 0, 1, 9}, "", 24},                    // index past the points
      {{3, 0, 1, -1}, "", 24},                   // negative index
      {{0, 3, 0, 1, 2}, "", 24},                 // empty face
      {{-3, 0, 1, 2}, "", 24},                   // a hole before any face
      {{4, 0, 1, 2}, "", 24},                    // runs past the end
      {kSquareFaces, "tolerance = -1", 24},      // negative tolerance
      {kSquareFaces, "tolerance = 1 inch", 24},  // unknown unit
      {kSquareFaces, "normal tolerance = 200", 24},
      {kSquareFaces, "handedness = fix", 23},    // unknown option
      {kSquareFaces, "tolerance = (", 23},       // malformed list
      {kSquareFaces, nullptr, 24},
  };
  for (const Case& c : cases) {
    int pcount = -7, flist_length = -7;
    std::vector<int> mapping(kSquare.size(), -7);
    HC_Compute_Optimized_Shell(static_cast<int>(kSquare.size()), kSquare.data(), nullptr,
                               static_cast<int>(c.faces.size()), c.faces.data(), c.options, &pcount, nullptr,
                               &flist_length, nullptr, mapping.data(), nullptr);
    EXPECT_EQ(pcount, -7);
    EXPECT_EQ(flist_length, -7);
    EXPECT_EQ(mapping[0], -7);
    const auto reports = TakeReports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].category, c.category) << reports[0].message;
    EXPECT_EQ(reports[0].routine, "HC_Compute_Optimized_Shell");
  }
  int pcount = -7;
  HC_Compute_Optimized_Shell(3, nullptr, nullptr, 0, nullptr, "", &pcount, nullptr, nullptr, nullptr, nullptr,
                             nullptr);
  HC_Compute_Optimized_Shell(-1, nullptr, nullptr, 0, nullptr, "", &pcount, nullptr, nullptr, nullptr, nullptr,
                             nullptr);
  EXPECT_EQ(pcount, -7);
  EXPECT_EQ(TakeReports().size(), 2u);
}

}  // namespace
