#include "sceneward/scene/entities/zdb_en_shell.h"

#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/scene/entities/zdb_insert_bracket.h"

namespace {

// Replaces `points` and, unless it is null, `*faces` with the lists of the
// shell `key`. An empty list goes to the library as a null pointer.
void ShowShell(long long key, std::vector<ZGeoPoint>& points, std::vector<int>* faces) {
  int pointCount = 0;
  int faceListLength = 0;
  int* faceLengthOut = faces == nullptr ? nullptr : &faceListLength;
  CurrentManager()->HC_Show_Shell_Size(key, &pointCount, faceLengthOut);
  points.resize(pointCount > 0 ? pointCount : 0);
  if (faces != nullptr) faces->resize(faceListLength > 0 ? faceListLength : 0);
  void* pointsOut = points.empty() ? nullptr : points.data();
  int* facesOut = faces == nullptr || faces->empty() ? nullptr : faces->data();
  CurrentManager()->HC_Show_Shell(key, &pointCount, pointsOut, faceLengthOut, facesOut);
}

}  // namespace

ZDbEnShell::ZDbEnShell(ZDbEnSegment const& parent, std::vector<ZGeoPoint> const& points,
                       std::vector<int> const& faces)
    : ZDbEnShell(-1) {
  InsertIntoSegment(parent, [&] {
    SetID(CurrentManager()->HC_Insert_Shell(static_cast<int>(points.size()), points.data(),
                                            static_cast<int>(faces.size()), faces.data()),
          "");
  });
}

ZDbEnShell::ZDbEnShell(ZDbEnSegment const& parent, float const* points, int pointCount,
                       int const* faces, int faceListLength)
    : ZDbEnShell(-1) {
  InsertIntoSegment(parent, [&] {
    SetID(CurrentManager()->HC_Insert_Shell(pointCount, points, faceListLength, faces), "");
  });
}

ZDbEnShell::ZDbEnShell(ZDbEnSegment const& parent, float const* points, int pointCount,
                       int const* strips, int stripListLength, int const* faceIndices,
                       int faceIndexCount)
    : ZDbEnShell(-1) {
  InsertIntoSegment(parent, [&] {
    SetID(CurrentManager()->HC_Insert_Shell_By_Tristrips(pointCount, points, stripListLength,
                                                         strips, faceIndexCount, faceIndices),
          "");
  });
}

int ZDbEnShell::GetVertexCount() const {
  int count = 0;
  if (IsValid()) CurrentManager()->HC_Show_Shell_Size(GetID(), &count, nullptr);
  return count;
}

void ZDbEnShell::GetPoints(std::vector<ZGeoPoint>& points) const {
  if (IsValid()) ShowShell(GetID(), points, nullptr);
}

void ZDbEnShell::GetPointsAndFaces(std::vector<ZGeoPoint>& points, std::vector<int>& faces) const {
  if (IsValid()) ShowShell(GetID(), points, &faces);
}

ZGeoPoint ZDbEnShell::GetPointAtIndex(int index) const {
  ZGeoPoint point;
  if (IsValid()) {
    CurrentManager()->HC_Show_Partial_Shell(GetID(), index, 1, &point, 0, 0, nullptr, nullptr);
  }
  return point;
}

ZGeoPoint ZDbEnShell::GetNormalAtIndex(int index) const {
  ZGeoPoint normal;
  if (IsValid()) CurrentManager()->HC_MShow_Net_Vertex_Normals(GetID(), index, 1, &normal);
  return normal;
}

void ZDbEnShell::SetNormals(std::vector<float> const& normals) const {
  if (!IsValid()) return;
  CurrentManager()->HC_MSet_Vertex_Normals(GetID(), 0, static_cast<int>(normals.size() / 3),
                                           normals.data());
}

void ZDbEnShell::SetTextureCoords(std::vector<float> const& coords, int paramsPerVertex) const {
  if (!IsValid()) return;
  const int vertexCount = static_cast<int>(coords.size()) / paramsPerVertex;
  CurrentManager()->HC_MSet_Vertex_Parameters(GetID(), 0, vertexCount, paramsPerVertex,
                                              coords.data());
}

void ZDbEnShell::GetTextureCoords(std::vector<float>& coords, int& paramsPerVertex) const {
  if (!IsValid()) return;
  int vertexCount = 0;
  CurrentManager()->HC_Show_Shell_Size(GetID(), &vertexCount, nullptr);
  CurrentManager()->HC_MShow_Vertex_Parameter_Size(GetID(), &paramsPerVertex);
  coords.resize(vertexCount > 0 && paramsPerVertex > 0 ? vertexCount * paramsPerVertex : 0);
  if (paramsPerVertex > 0) {
    CurrentManager()->HC_MShow_Vertex_Parameters(GetID(), 0, vertexCount, &paramsPerVertex,
                                                 coords.data());
  }
}
