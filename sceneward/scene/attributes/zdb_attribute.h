#pragma once
// ZDbAttribute, the base of every attribute handle that is built on a
// segment (all but the colour, which any entity has).
#include <vector>

#include "sceneward/geometry/zgeo_matrix.h"
#include "sceneward/geometry/zgeo_point.h"
#include "sceneward/scene/attributes/zdb_ent_attribute.h"
#include "sceneward/scene/entities/zdb_en_segment.h"

class ZDbAttribute : public ZDbEntAttribute {
 public:
  // The segment that the handle was built on.
  ZDbEnSegment const& GetSegment() const;

 protected:
  ZDbAttribute(ZDbEntAttributeType type, ZDbEnSegment const& segment, ZString const& name);

  // The key path that the graphics library's path reads take: this
  // segment's key first, then the keys of `path` in order, unchecked. An
  // empty `path` gives the one key of this segment.
  void GetSegmentIDs(std::vector<long long>& ids, std::vector<ZDbEnSegment> const& path) const;

  // Manager operations in the shapes of the attributes whose values are
  // numbers, points and matrices rather than option text (the camera, the
  // modelling and texture matrices).
  using TripleCall = void (ZelmoSceneward::*)(double, double, double);
  using MatrixInCall = void (ZelmoSceneward::*)(float const*);
  using MatrixOutCall = void (ZelmoSceneward::*)(float*);
  using PointOutCall = void (ZelmoSceneward::*)(float*, float*, float*);
  using NetPointCall = int (ZelmoSceneward::*)(int, long long const*, float*, float*, float*);

  // Each makes no graphics call when its guard fails.
  // Sets three numbers, widened to double; guarded by the key alone.
  void SetTriple(TripleCall set, float a, float b, float c) const;
  // Sets (or appends) the 16 cells of `matrix`; guarded by the key alone.
  void SetMatrix(MatrixInCall set, ZGeoMatrix const& matrix) const;
  // The local matrix; the identity unless the attribute is set locally.
  ZGeoMatrix ShowMatrix(MatrixOutCall show) const;
  // A local point; (0, 0, 0) unless the attribute is set locally.
  ZGeoPoint ShowPoint(PointOutCall show) const;
  // A point in force on the segment, inherited or not; (0, 0, 0) for key -1.
  ZGeoPoint ShowNetPoint(NetPointCall show) const;
};
