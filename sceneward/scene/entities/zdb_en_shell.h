#pragma once
// ZDbEnShell: the handle on a shell of the graphics database, a point list
// with a face list (per face its vertex count, then its point indices). The
// raw-array forms let a caller pass a flat float array of x, y, z triples
// without copying it into points.
#include <vector>

#include "sceneward/foundation/zstring.h"
#include "sceneward/geometry/zgeo_point.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEnShell : public ZDbEntity {
 public:
  // The handle on an existing shell; the key is not checked.
  ZDbEnShell(long long id = -1) : ZDbEntity(id, kEntityShell, "") {}

  static ZString GetTypeName() { return "shell"; }

  // The number of points; 0 on an invalid handle.
  int GetVertexCount() const;
  // Replaces the contents of `points` with the shell's points. Nothing on
  // an invalid handle.
  void GetPoints(std::vector<ZGeoPoint>& points) const;
  // Replaces the contents of `points` and `faces` with the shell's point
  // and face lists. Nothing on an invalid handle.
  void GetPointsAndFaces(std::vector<ZGeoPoint>& points, std::vector<int>& faces) const;
  // Point `index`; zeros on an invalid handle. The library answers for an
  // index out of range.
  ZGeoPoint GetPointAtIndex(int index) const;
  // The normal in effect at point `index`, set or computed; zeros on an
  // invalid handle.
  ZGeoPoint GetNormalAtIndex(int index) const;
  // Sets the normals of the first points from x, y, z triples; a remainder
  // of one or two floats is ignored. Nothing on an invalid handle.
  void SetNormals(std::vector<float> const& normals) const;
  // Sets `paramsPerVertex` texture parameters on each of the first points
  // from `coords`. `paramsPerVertex` must be at least 1. Nothing on an
  // invalid handle.
  void SetTextureCoords(std::vector<float> const& coords, int paramsPerVertex) const;
  // Replaces `coords` with the parameters of all points and sets
  // `paramsPerVertex` to their number per point; a shell without parameters
  // gives empty `coords` and 0. Nothing on an invalid handle.
  void GetTextureCoords(std::vector<float>& coords, int& paramsPerVertex) const;

 private:
  friend class ZDbEnSegment;
  // Each inserts into `parent`; an invalid `parent` gives an invalid handle
  // and no graphics call. `faces` and the lengths are passed through unread.
  ZDbEnShell(ZDbEnSegment const& parent, std::vector<ZGeoPoint> const& points,
             std::vector<int> const& faces);
  ZDbEnShell(ZDbEnSegment const& parent, float const* points, int pointCount, int const* faces,
             int faceListLength);
  // The faces as triangle strips (per strip its length, then its indices),
  // with the face number of each triangle in `faceIndices`.
  ZDbEnShell(ZDbEnSegment const& parent, float const* points, int pointCount, int const* strips,
             int stripListLength, int const* faceIndices, int faceIndexCount);
};
