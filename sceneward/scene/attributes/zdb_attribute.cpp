#include "sceneward/scene/attributes/zdb_attribute.h"

#include "sceneward/frame/thread_registry.h"

ZDbAttribute::ZDbAttribute(ZDbEntAttributeType type, ZDbEnSegment const& segment,
                           ZString const& name)
    : ZDbEntAttribute(type, segment, name) {}

ZDbEnSegment const& ZDbAttribute::GetSegment() const {
  // Every handle of this branch was built on a segment.
  return static_cast<ZDbEnSegment const&>(GetEntity());
}

void ZDbAttribute::GetSegmentIDs(std::vector<long long>& ids,
                                 std::vector<ZDbEnSegment> const& path) const {
  ids.resize(path.size() + 1);
  ids[0] = GetKey();
  for (std::size_t i = 0; i < path.size(); ++i) ids[i + 1] = path[i].GetID();
}

void ZDbAttribute::SetTriple(TripleCall set, float a, float b, float c) const {
  if (!HasKey()) return;
  OpenSegment();
  (CurrentManager()->*set)(a, b, c);
  CloseSegment();
}

void ZDbAttribute::SetMatrix(MatrixInCall set, ZGeoMatrix const& matrix) const {
  if (!HasKey()) return;
  OpenSegment();
  (CurrentManager()->*set)(matrix);
  CloseSegment();
}

ZGeoMatrix ZDbAttribute::ShowMatrix(MatrixOutCall show) const {
  ZGeoMatrix matrix;
  if (!IsSetLocally()) return matrix;
  OpenSegment();
  (CurrentManager()->*show)(matrix);
  CloseSegment();
  return matrix;
}

ZGeoPoint ZDbAttribute::ShowPoint(PointOutCall show) const {
  ZGeoPoint point;
  if (!IsSetLocally()) return point;
  OpenSegment();
  (CurrentManager()->*show)(&point.x, &point.y, &point.z);
  CloseSegment();
  return point;
}

ZGeoPoint ZDbAttribute::ShowNetPoint(NetPointCall show) const {
  ZGeoPoint point;
  if (!HasKey()) return point;
  OpenSegment();
  (CurrentManager()->*show)(0, nullptr, &point.x, &point.y, &point.z);
  CloseSegment();
  return point;
}
