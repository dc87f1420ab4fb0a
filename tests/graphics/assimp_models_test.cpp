// Models from Debian's assimp-testmodels, read by assimp and stored as
// shells: what comes back, and the extent the engine computes, must match
// what assimp read and measured.
#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include <algorithm>
#include <array>
#include <assimp/Importer.hpp>
#include <filesystem>
#include <string>
#include <vector>

#include "engine_fixture.h"

namespace {

using engine_test::EngineTest;
using engine_test::TakeReports;

using Box = std::array<float, 6>;

// A mesh as a shell takes it: x, y, z per point; per face its point count
// and then its point indices.
struct ShellData {
  std::vector<float> points;
  std::vector<int> faces;
};

// Faces of fewer than three points (assimp's points and lines) are no
// shell faces and are left out.
ShellData ShellOf(const aiMesh& mesh) {
  ShellData shell;
  for (unsigned i = 0; i < mesh.mNumVertices; ++i) {
    shell.points.insert(shell.points.end(), {mesh.mVertices[i].x, mesh.mVertices[i].y, mesh.mVertices[i].z});
  }
  for (unsigned f = 0; f < mesh.mNumFaces; ++f) {
    const aiFace& face = mesh.mFaces[f];
    if (face.mNumIndices < 3) continue;
    shell.faces.push_back(static_cast<int>(face.mNumIndices));
    shell.faces.insert(shell.faces.end(), face.mIndices, face.mIndices + face.mNumIndices);
  }
  return shell;
}

Box BoxOf(const aiAABB& box) {
  return Box{box.mMin.x, box.mMin.y, box.mMin.z, box.mMax.x, box.mMax.y, box.mMax.z};
}

Box Union(const Box& a, const Box& b) {
  return Box{std::min(a[0], b[0]), std::min(a[1], b[1]), std::min(a[2], b[2]),
             std::max(a[3], b[3]), std::max(a[4], b[4]), std::max(a[5], b[5])};
}

class AssimpModels : public EngineTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(AssimpModels, ShellsRoundTripAndMeasureAsAssimpDoes) {
  const std::string path = std::string("/usr/share/assimp/models/") + GetParam();
  if (!std::filesystem::exists(path)) GTEST_SKIP() << path << " is missing (package assimp-testmodels)";
  Assimp::Importer importer;
  // Polygons are kept as read; assimp measures each mesh's box itself.
  const aiScene* scene = importer.ReadFile(path, aiProcess_GenBoundingBoxes);
  ASSERT_NE(scene, nullptr) << importer.GetErrorString();
  ASSERT_GT(scene->mNumMeshes, 0u);

  const long long model = HC_Open_Segment("/model");
  Box scene_box{};
  for (unsigned m = 0; m < scene->mNumMeshes; ++m) {
    const aiMesh& mesh = *scene->mMeshes[m];
    const ShellData data = ShellOf(mesh);
    const int pcount = static_cast<int>(mesh.mNumVertices);
    const int flist_length = static_cast<int>(data.faces.size());
    const long long shell = HC_Insert_Shell(pcount, data.points.data(), flist_length, data.faces.data());
    ASSERT_NE(shell, -1) << "mesh " << m;

    int shown_pcount = 0, shown_flist_length = 0;
    HC_Show_Shell_Size(shell, &shown_pcount, &shown_flist_length);
    EXPECT_EQ(shown_pcount, pcount);
    EXPECT_EQ(shown_flist_length, flist_length);
    ShellData shown{std::vector<float>(data.points.size()), std::vector<int>(data.faces.size())};
    HC_Show_Shell(shell, &shown_pcount, shown.points.data(), &shown_flist_length, shown.faces.data());
    EXPECT_EQ(shown.points, data.points) << "mesh " << m;
    EXPECT_EQ(shown.faces, data.faces) << "mesh " << m;

    Box box{};
    ASSERT_TRUE(HC_Compute_Circumcuboid_By_Key(shell, &box[0], &box[3]));
    EXPECT_EQ(box, BoxOf(mesh.mAABB)) << "mesh " << m;
    scene_box = m == 0 ? box : Union(scene_box, box);
  }
  HC_Close_Segment();
  Box box{};
  ASSERT_TRUE(HC_Compute_Circumcuboid_By_Key(model, &box[0], &box[3]));
  EXPECT_EQ(box, scene_box);
  EXPECT_TRUE(TakeReports().empty());
}

// Quadrilaterals (PLY), a concave polygon and a many-part model (OBJ),
// triangles with a hole in the surface (STL).
INSTANTIATE_TEST_SUITE_P(DebianTestModels, AssimpModels,
                         ::testing::Values("PLY/cube.ply", "OBJ/concave_polygon.obj", "OBJ/spider.obj",
                                           "STL/sphereWithHole.stl"));

}  // namespace
