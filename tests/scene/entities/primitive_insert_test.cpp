// Inserting through a segment: each Insert... method is one bracket around
// its one engine call, the handle takes the new key, and an invalid segment
// (or link target) gives an invalid handle of the right class without any
// graphics call.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "entity_test_fixture.h"
#include "primitive_test_support.h"
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/geometry/zgeo_ellipse.h"
#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/geometry/zgeo_nurbs_curve.h"
#include "sceneward/geometry/zgeo_polyline.h"
#include "sceneward/geometry/zgeo_rect.h"
#include "sceneward/scene/entities/zdb_en_circle.h"
#include "sceneward/scene/entities/zdb_en_circular_arc.h"
#include "sceneward/scene/entities/zdb_en_circular_chord.h"
#include "sceneward/scene/entities/zdb_en_circular_wedge.h"
#include "sceneward/scene/entities/zdb_en_ellipse.h"
#include "sceneward/scene/entities/zdb_en_elliptical_arc.h"
#include "sceneward/scene/entities/zdb_en_include.h"
#include "sceneward/scene/entities/zdb_en_line.h"
#include "sceneward/scene/entities/zdb_en_marker.h"
#include "sceneward/scene/entities/zdb_en_nurbs_curve.h"
#include "sceneward/scene/entities/zdb_en_poly_cylinder.h"
#include "sceneward/scene/entities/zdb_en_polygon.h"
#include "sceneward/scene/entities/zdb_en_polyline.h"
#include "sceneward/scene/entities/zdb_en_shell.h"
#include "sceneward/scene/entities/zdb_en_style.h"
#include "sceneward/scene/entities/zdb_en_text.h"

namespace {

const ZGeoCircle kCircle(ZGeoPoint(1, 2, 0), 4.0f);
const ZGeoEllipse kEllipse(ZGeoPoint(0, 0, 0), ZGeoPoint(3, 0, 0), ZGeoPoint(0, 1, 0), 0.25f, 0.5f);
const std::vector<ZGeoPoint> kTriangle = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}};
const std::vector<int> kTriangleFaces = {3, 0, 1, 2};
const float kTriangleFloats[] = {0, 0, 0, 1, 0, 0, 0, 1, 0};
const float kSquareFloats[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 0};
const int kSquareStrip[] = {4, 0, 1, 2, 3};
const int kSquareFaceIndices[] = {0, 0};

ZGeoPolyline Zigzag() {
  ZGeoPolyline polyline;
  for (float x : {0.0f, 1.0f, 2.0f}) polyline.AppendPoint(ZGeoPoint(x, x == 1 ? 1.0f : 0.0f, 0));
  return polyline;
}

// One Insert... method: the engine call it brackets, the type of the handle
// it returns, and the call itself on a given segment.
struct InsertCase {
  std::string call;
  ZDbEntityType type;
  std::string typeNames;
  std::function<ZDbEntity(ZDbEnSegment const& into, ZDbEnSegment const& linkTarget)> insert;
};

std::vector<InsertCase> EveryInsert() {
  using S = ZDbEnSegment const&;
  return {
      {"HC_Insert_Circle", kEntityCircle, "circle", [](S s, S) { return s.InsertCircle(kCircle); }},
      {"HC_Insert_Elliptical_Arc", kEntityEllipticalArc, "elliptical arc",
       [](S s, S) { return s.InsertCircleAsArcs(kCircle); }},
      {"HC_Insert_Circular_Arc", kEntityCircularArc, "circular arc",
       [](S s, S) { return s.InsertCircularArc(kCircle); }},
      {"HC_Insert_Circular_Chord", kEntityCircularChord, "circular chord",
       [](S s, S) { return s.InsertCircularChord(kCircle); }},
      {"HC_Insert_Circular_Wedge", kEntityCircularWedge, "circular wedge",
       [](S s, S) { return s.InsertCircularWedge(kCircle); }},
      {"HC_Insert_Ellipse", kEntityEllipse, "ellipse",
       [](S s, S) { return s.InsertEllipse(kEllipse); }},
      {"HC_Insert_Elliptical_Arc", kEntityEllipticalArc, "elliptical arc",
       [](S s, S) { return s.InsertEllipticalArc(kEllipse); }},
      {"HC_Insert_Line", kEntityLine, "line",
       [](S s, S) { return s.InsertLine(ZGeoLine(ZGeoPoint(0, 0, 0), ZGeoPoint(1, 1, 1))); }},
      {"HC_Insert_Marker", kEntityMarker, "marker",
       [](S s, S) { return s.InsertMarker(ZGeoPoint(1, 2, 3)); }},
      {"HC_Insert_NURBS_Curve", kEntityNurbsCurve, "nurbs curve",
       [](S s, S) { return s.InsertNURBSCurve(ZGeoNURBSCurve(2, kTriangle, {}, {})); }},
      {"HC_Insert_Polygon", kEntityPolygon, "polygon",
       [](S s, S) { return s.InsertPolygon(kTriangle); }},
      {"HC_Insert_Polyline", kEntityPolyline, "polyline",
       [](S s, S) { return s.InsertPolyline(Zigzag()); }},
      {"HC_Insert_Polyline", kEntityPolyline, "polyline",
       [](S s, S) { return s.InsertRect(ZGeoRect(0, 0, 2, 1), 5); }},
      {"HC_Insert_Shell", kEntityShell, "shell",
       [](S s, S) { return s.InsertShell(kTriangle, kTriangleFaces); }},
      {"HC_Insert_Shell", kEntityShell, "shell",
       [](S s, S) { return s.InsertShell(kTriangleFloats, 3, kTriangleFaces.data(), 4); }},
      {"HC_Insert_Shell_By_Tristrips", kEntityShell, "shell",
       [](S s, S) {
         return s.InsertShellAsTriStrips(kSquareFloats, 4, kSquareStrip, 5, kSquareFaceIndices, 2);
       }},
      {"HC_Insert_Text", kEntityText, "text",
       [](S s, S) { return s.InsertText("label", ZGeoPoint(1, 1, 0)); }},
      {"HC_Include_Segment_By_Key", kEntityInclude, "include",
       [](S s, S target) { return s.IncludeSegment(target, ""); }},
      {"HC_Conditional_Include_By_Key", kEntityInclude, "include",
       [](S s, S target) { return s.IncludeSegment(target, "detailed"); }},
      {"HC_Style_Segment_By_Key", kEntityStyle, "style",
       [](S s, S target) { return s.StyleSegment(target, ""); }},
      {"HC_Conditional_Style_By_Key", kEntityStyle, "style",
       [](S s, S target) { return s.StyleSegment(target, "detailed"); }},
  };
}

class PrimitiveInsertTest : public EntityTest {
 protected:
  ZDbEnSegment target_ = MakeSegment("link target");
};

TEST_F(PrimitiveInsertTest, EachInsertIsOneBracketAroundItsCallAndTakesTheNewKey) {
  for (InsertCase const& c : EveryInsert()) {
    SCOPED_TRACE(c.call + " making a " + c.typeNames);
    recorder_.ClearCalls();
    ZDbEntity made = c.insert(scene_, target_);
    EXPECT_EQ(GraphicsCalls(), (Calls{"HC_Open_Segment_By_Key", c.call, "HC_Close_Segment"}));
    ASSERT_TRUE(made.IsValid());
    EXPECT_EQ(made.GetType(), c.type);
    EXPECT_EQ(made.GetTypeNames(), c.typeNames.c_str());
    char owner[256] = "";
    EXPECT_EQ(::HC_Show_Owner_By_Key(made.GetID(), owner), scene_.GetID());
  }
}

TEST_F(PrimitiveInsertTest, InvalidSegmentGivesAnInvalidHandleOfTheRightClassWithoutAnyCall) {
  const ZDbEnSegment invalid;
  for (InsertCase const& c : EveryInsert()) {
    SCOPED_TRACE(c.call + " making a " + c.typeNames);
    recorder_.ClearCalls();
    ZDbEntity made = c.insert(invalid, target_);
    EXPECT_EQ(recorder_.Calls(), Calls{});
    EXPECT_EQ(made.GetID(), -1);
    EXPECT_EQ(made.GetType(), c.type);
    EXPECT_EQ(made.GetTypeNames(), c.typeNames.c_str());
  }
}

TEST_F(PrimitiveInsertTest, LinkToAnInvalidSegmentMakesNoCall) {
  recorder_.ClearCalls();
  const ZDbEnInclude include = scene_.IncludeSegment(ZDbEnSegment(), "");
  const ZDbEnStyle style = scene_.StyleSegment(ZDbEnSegment(), "detailed");
  EXPECT_EQ(recorder_.Calls(), Calls{});
  EXPECT_FALSE(include.IsValid());
  EXPECT_EQ(include.GetType(), kEntityInclude);
  EXPECT_FALSE(style.IsValid());
  EXPECT_EQ(CountContents(scene_, "include,style"), 0);
}

TEST_F(PrimitiveInsertTest, PolyCylinderIsInsertedButItsHandleStaysInvalid) {
  recorder_.ClearCalls();
  const ZDbEnPolyCylinder cylinder = scene_.InsertPolyCylinder(Zigzag(), {0.5f, 0.25f}, "both");
  EXPECT_EQ(GraphicsCalls(),
            (Calls{"HC_Open_Segment_By_Key", "HC_Insert_PolyCylinder", "HC_Close_Segment"}));
  EXPECT_FALSE(cylinder.IsValid());
  EXPECT_EQ(cylinder.GetType(), kEntityPolyCylinder);
  EXPECT_EQ(CountContents(scene_, "polycylinder"), 1);
  // The class's own name and the type-name table's disagree, and both stay.
  EXPECT_EQ(ZDbEnPolyCylinder::GetTypeName(), "polycylinder");
  EXPECT_EQ(cylinder.GetTypeNames(), "poly cylinder");
}

}  // namespace
