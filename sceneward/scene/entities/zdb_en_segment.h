#pragma once
// ZDbEnSegment: the handle on a segment, the node of the scene tree, used
// by value everywhere. It finds what a segment holds, copies and moves
// contents, inserts geometry and hands out attribute objects.
//
// Every operation on a segment is one bracket made by hand: open the
// segment by key, the one call (naming the open segment "."), close it. On
// an invalid handle no graphics call is made at all, and the result is the
// empty one ("", 0, -1, an invalid handle).
#include <vector>

#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_entity.h"

class ZDbEntityVec;

// Inserting geometry: the classes made
class ZDbEnCircle;
class ZDbEnCircularArc;
class ZDbEnCircularChord;
class ZDbEnCircularWedge;
class ZDbEnEllipse;
class ZDbEnEllipticalArc;
class ZDbEnInclude;
class ZDbEnLine;
class ZDbEnMarker;
class ZDbEnNURBSCurve;
class ZDbEnPolyCylinder;
class ZDbEnPolygon;
class ZDbEnPolyline;
class ZDbEnShell;
class ZDbEnStyle;
class ZDbEnText;
class ZGeoCircle;
class ZGeoEllipse;
class ZGeoLine;
class ZGeoNURBSCurve;
class ZGeoPoint;
class ZGeoPolyline;
class ZGeoRect;

// Attribute handles: the classes made
class ZDbAtCamera;
class ZDbAtCondition;
class ZDbAtDriverOptions;
class ZDbAtHeuristics;
class ZDbAtRenderingOptions;
class ZDbAtSelectability;
class ZDbAtTextureTransform;
class ZDbAtTransform;
class ZDbAtVisibility;

class ZDbEnSegment : public ZDbEntity {
 public:
  // The handle on an existing segment; the key is not checked.
  ZDbEnSegment(long long id = -1);
  // Opens `path` and takes its key. Opening creates a missing segment, so
  // this is open-or-create.
  explicit ZDbEnSegment(ZString const& path);

  static ZDbEntityType GetTypeID() { return kEntitySegment; }
  static ZString GetTypeName() { return "segment"; }

  // The full path; "" on an invalid handle.
  ZString GetFullPath() const;
  // The part of the full path behind the last "/"; "" on an invalid handle.
  ZString GetSegmentName() const;
  // Whether a search for `spec` below this segment finds anything; creates
  // nothing.
  bool DoesSubSegmentExist(ZString const& spec) const;
  // The child `name`, created if missing; an invalid handle on an invalid
  // segment.
  ZDbEnSegment GetSubSegment(ZString const& name) const;
  // Appends every direct child to `out`.
  void GetChildSegments(std::vector<ZDbEnSegment>& out) const;

  // Segment search for `spec` from this segment; returns the library's
  // count and, if `fill`, appends that many handles to `out` (never
  // clearing it). 0 on an invalid handle.
  int SegmentSearch(ZString const& spec, std::vector<ZDbEnSegment>& out, bool fill) const;
  // Contents search for `spec` from this segment, over the types of
  // `typeMask` (as ZDbEntityFactoryMap::SearchTypesFromMask reads it: -1 all
  // geometry and segments, -2 all geometry) or of the comma-separated
  // `typeNames`. Returns the library's count and, if `fill`, appends that
  // many new entities of their most derived class to `out`, which owns
  // them. 0 on an invalid handle.
  int EntitySearch(ZDbEntityVec& out, int typeMask, ZString const& spec, bool fill) const;
  int EntitySearch(ZDbEntityVec& out, ZString const& typeNames, ZString const& spec,
                   bool fill) const;

  // Removes what the library's flush `list` names from this segment;
  // handles on removed objects go stale.
  void FlushContents(ZString const& list) const;
  // Copies the segment `source` (by its path) into this segment; nothing
  // if either handle is invalid.
  void CopySegment(ZDbEnSegment const& source) const;
  // Moves the geometry directly in `source` here, then gives this segment
  // the modelling matrix of `source`. Subsegments and other attributes of
  // `source` stay where they are, and `source` keeps its matrix.
  void MoveSegmentContents(ZDbEnSegment const& source) const;
  // The key of the first style entity in this segment whose style segment
  // is `style`, or -1 (also on an invalid handle).
  long long FindStyleSegment(ZDbEnSegment const& style);
  // FindStyleSegment(style) != -1.
  bool IsStyledWithSegment(ZDbEnSegment const& style);

  // Inserting geometry
  // Each inserts one new object into this segment and returns its handle;
  // on an invalid segment nothing is inserted and the handle, of the same
  // class, is invalid. The handle's header has to be included to use it.
  ZDbEnCircle InsertCircle(ZGeoCircle const& circle) const;
  // The whole circle as one elliptical arc, whatever part of it `circle`
  // covers.
  ZDbEnEllipticalArc InsertCircleAsArcs(ZGeoCircle const& circle) const;
  ZDbEnCircularArc InsertCircularArc(ZGeoCircle const& circle) const;
  ZDbEnCircularChord InsertCircularChord(ZGeoCircle const& circle) const;
  ZDbEnCircularWedge InsertCircularWedge(ZGeoCircle const& circle) const;
  ZDbEnEllipse InsertEllipse(ZGeoEllipse const& ellipse) const;
  ZDbEnEllipticalArc InsertEllipticalArc(ZGeoEllipse const& ellipse) const;
  ZDbEnLine InsertLine(ZGeoLine const& line) const;
  ZDbEnMarker InsertMarker(ZGeoPoint const& point) const;
  ZDbEnNURBSCurve InsertNURBSCurve(ZGeoNURBSCurve const& curve) const;
  ZDbEnPolygon InsertPolygon(std::vector<ZGeoPoint> const& points) const;
  ZDbEnPolyline InsertPolyline(ZGeoPolyline const& polyline) const;
  // The outline of `rect` at height `z` as a closed polyline of five
  // points: top left, top right, bottom right, bottom left, top left.
  ZDbEnPolyline InsertRect(ZGeoRect const& rect, float z) const;
  // The poly cylinder is inserted, but the handle returned is always
  // invalid: its key is not taken.
  ZDbEnPolyCylinder InsertPolyCylinder(ZGeoPolyline const& polyline, std::vector<float> const& radii,
                                       char const* capping) const;
  ZDbEnShell InsertShell(std::vector<ZGeoPoint> const& points, std::vector<int> const& faces) const;
  // `points` holds `pointCount` x, y, z triples; nothing is copied.
  ZDbEnShell InsertShell(float const* points, int pointCount, int const* faces,
                         int faceListLength) const;
  ZDbEnShell InsertShellAsTriStrips(float const* points, int pointCount, int const* strips,
                                    int stripListLength, int const* faceIndices,
                                    int faceIndexCount) const;
  ZDbEnText InsertText(ZString const& text, ZGeoPoint const& position) const;
  // Includes `target` here, under `condition` unless it is empty. An invalid
  // `target` gives an invalid handle too.
  ZDbEnInclude IncludeSegment(ZDbEnSegment const& target, ZString const& condition) const;
  // Styles this segment with `target`, under `condition` unless it is
  // empty. An invalid `target` gives an invalid handle too.
  ZDbEnStyle StyleSegment(ZDbEnSegment const& target, ZString const& condition) const;

  // Attribute handles
  // Each returns a new handle by value, built on this segment; it must not
  // outlive the segment object.
  ZDbAtCamera Camera() const;
  ZDbAtCondition Condition() const;
  ZDbAtDriverOptions DriverOptions() const;
  ZDbAtHeuristics Heuristics() const;
  ZDbAtRenderingOptions RenderingOptions() const;
  ZDbAtSelectability Selectability() const;
  ZDbAtTextureTransform TextureTransform() const;
  ZDbAtTransform Transform() const;
  ZDbAtVisibility Visibility() const;

 private:
  // Opens-or-creates the child `name` of `parent` and takes its key; an
  // invalid handle, with no graphics call, if `parent` is invalid.
  ZDbEnSegment(ZDbEnSegment const& parent, ZString const& name);
};
