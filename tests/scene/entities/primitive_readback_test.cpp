// Primitives inserted into the engine and read back through their handles,
// and the defaults that invalid handles give.
#include <gtest/gtest.h>

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
#include "sceneward/scene/entities/zdb_en_circular_wedge.h"
#include "sceneward/scene/entities/zdb_en_ellipse.h"
#include "sceneward/scene/entities/zdb_en_elliptical_arc.h"
#include "sceneward/scene/entities/zdb_en_line.h"
#include "sceneward/scene/entities/zdb_en_marker.h"
#include "sceneward/scene/entities/zdb_en_nurbs_curve.h"
#include "sceneward/scene/entities/zdb_en_polygon.h"
#include "sceneward/scene/entities/zdb_en_polyline.h"
#include "support/engine_error_log.h"

namespace {

using PrimitiveReadbackTest = EntityTest;

// A quarter arc of radius 2 about (1, 1, 0), counter-clockwise in z.
const ZGeoCircle kQuarterArc(ZGeoPoint(3, 1, 0), ZGeoPoint(1 + 1.41421356f, 1 + 1.41421356f, 0),
                             ZGeoPoint(1, 3, 0), false);

TEST_F(PrimitiveReadbackTest, LineAndMarkerComeBackAsInserted) {
  const ZGeoLine line(ZGeoPoint(1, 2, 3), ZGeoPoint(-4, 5.5f, 6));
  const ZGeoLine shown = scene_.InsertLine(line).GetLine();
  EXPECT_TRUE(SamePoint(shown.GetStart(), line.GetStart()));
  EXPECT_TRUE(SamePoint(shown.GetEnd(), line.GetEnd()));
  EXPECT_TRUE(SamePoint(scene_.InsertMarker(ZGeoPoint(7, 8, 9)).GetPoint(), ZGeoPoint(7, 8, 9)));

  recorder_.ClearCalls();
  EXPECT_TRUE(SamePoint(ZDbEnLine().GetLine().GetEnd(), ZGeoPoint()));
  EXPECT_TRUE(SamePoint(ZDbEnMarker().GetPoint(), ZGeoPoint()));
  EXPECT_EQ(recorder_.Calls(), Calls{});
}

TEST_F(PrimitiveReadbackTest, CircleReadsBackCompleteWhileArcAndWedgeDoNot) {
  const ZGeoCircle circle = scene_.InsertCircle(kQuarterArc).GetCircle();
  const ZGeoCircle arc = scene_.InsertCircularArc(kQuarterArc).GetCircularArc();
  const ZGeoCircle wedge = scene_.InsertCircularWedge(kQuarterArc).GetCircularWedge();
  EXPECT_TRUE(circle.IsCompleteCircle());
  EXPECT_FALSE(arc.IsCompleteCircle());
  EXPECT_FALSE(wedge.IsCompleteCircle());
  for (ZGeoCircle const& shown : {circle, arc, wedge}) {
    EXPECT_TRUE(SamePoint(shown.GetCenter(), ZGeoPoint(1, 1, 0)));
    EXPECT_NEAR(shown.GetRadius(), 2.0f, 1e-5f);
  }
  EXPECT_NEAR(arc.GetTotalAngle(), kQuarterArc.GetTotalAngle(), 1e-5f);

  recorder_.ClearCalls();
  EXPECT_EQ(ZDbEnCircularArc().GetCircularArc().GetDiameter(), 0.0f);
  EXPECT_EQ(ZDbEnCircle().GetCircle().GetDiameter(), 0.0f);
  EXPECT_EQ(recorder_.Calls(), Calls{});
}

// Answers that every object is stored in double precision, so that the
// arc is read through the double form; the engine answers the rest.
class DoublePrecisionManager : public RecordingManager {
 public:
  bool HC_Check_Double_Precision(long long, char const*) override {
    Record("HC_Check_Double_Precision");
    return true;
  }
};

TEST_F(PrimitiveReadbackTest, ArcStoredInDoublePrecisionIsReadSoAndNarrowed) {
  const ZDbEnCircularArc inserted = scene_.InsertCircularArc(kQuarterArc);
  auto* manager = new DoublePrecisionManager;
  entry_.SetManager(manager);  // recorder_ is gone from here on
  const ZGeoCircle arc = inserted.GetCircularArc();
  EXPECT_EQ(manager->Calls(), (Calls{"HC_Check_Double_Precision", "HC_DShow_Circular_Arc"}));
  EXPECT_TRUE(SamePoint(arc.GetCenter(), ZGeoPoint(1, 1, 0)));
  EXPECT_NEAR(arc.GetRadius(), 2.0f, 1e-5f);
  EXPECT_FALSE(arc.IsCompleteCircle());
}

TEST_F(PrimitiveReadbackTest, EllipseAlwaysReadsAsTheWholeCurveButTheArcKeepsItsRange) {
  const ZGeoEllipse partial(ZGeoPoint(1, 1, 1), ZGeoPoint(4, 1, 1), ZGeoPoint(1, 2, 1), 0.25f,
                            0.75f);
  const ZGeoEllipse whole = scene_.InsertEllipse(partial).GetEllipse();
  const ZGeoEllipse arc = scene_.InsertEllipticalArc(partial).GetEllipticalArc();
  for (ZGeoEllipse const& shown : {whole, arc}) {
    EXPECT_TRUE(SamePoint(shown.GetCenter(), partial.GetCenter()));
    EXPECT_TRUE(SamePoint(shown.GetMajor(), partial.GetMajor()));
    EXPECT_TRUE(SamePoint(shown.GetMinor(), partial.GetMinor()));
  }
  EXPECT_EQ(whole.GetStart(), 0.0f);
  EXPECT_EQ(whole.GetEnd(), 1.0f);
  EXPECT_FLOAT_EQ(arc.GetStart(), 0.25f);
  EXPECT_FLOAT_EQ(arc.GetEnd(), 0.75f);

  const ZGeoEllipse fallback = ZDbEnEllipticalArc().GetEllipticalArc();
  EXPECT_TRUE(SamePoint(fallback.GetMajor(), ZGeoPoint(1, 0, 0)));
  EXPECT_EQ(fallback.GetEnd(), 1.0f);
}

TEST_F(PrimitiveReadbackTest, CircleAsArcsIsOneWholeEllipticalArc) {
  const ZGeoCircle circle(ZGeoPoint(2, 0, 0), 2.0f);
  const ZDbEnEllipticalArc made = scene_.InsertCircleAsArcs(circle);
  EXPECT_EQ(CountContents(scene_, "elliptical arc"), 1);
  const ZGeoEllipse shown = made.GetEllipticalArc();
  EXPECT_TRUE(SamePoint(shown.GetCenter(), ZGeoPoint(2, 0, 0)));
  EXPECT_NEAR((shown.GetMajor() - shown.GetCenter()).Length(), 1.0f, 1e-5f);
  EXPECT_NEAR((shown.GetMinor() - shown.GetCenter()).Length(), 1.0f, 1e-5f);
  EXPECT_TRUE(shown.IsCompleteEllipse());
}

TEST_F(PrimitiveReadbackTest, PolygonGetFillsStorageButLeavesTheSize) {
  const std::vector<ZGeoPoint> square = {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}};
  const ZDbEnPolygon polygon = scene_.InsertPolygon(square);

  std::vector<ZGeoPoint> unsized;
  polygon.Get(unsized);
  EXPECT_EQ(unsized.size(), 0u);
  ASSERT_GE(unsized.capacity(), square.size());
  EXPECT_TRUE(SamePoint(unsized.data()[2], square[2]));

  std::vector<ZGeoPoint> sized(4);
  polygon.Get(sized);
  EXPECT_TRUE(SamePoint(sized[3], square[3]));
}

TEST_F(PrimitiveReadbackTest, PolylineReadsBackSizedAndBySegment) {
  ZGeoPolyline inserted;
  for (ZGeoPoint p : {ZGeoPoint(0, 0, 0), ZGeoPoint(1, 1, 0), ZGeoPoint(2, 0, 0)})
    inserted.AppendPoint(p);
  const ZDbEnPolyline polyline = scene_.InsertPolyline(inserted);
  EXPECT_EQ(polyline.GetNumberOfPoints(), 3);

  ZGeoPolyline shown;
  shown.SetNumberOfPoints(10);
  polyline.GetPolyline(shown);
  ASSERT_EQ(shown.GetNumberOfPoints(), 3u);
  EXPECT_TRUE(SamePoint(shown.GetPoint(1), ZGeoPoint(1, 1, 0)));

  const ZGeoLine second = polyline.GetPolylineSegment(1);
  EXPECT_TRUE(SamePoint(second.GetStart(), ZGeoPoint(1, 1, 0)));
  EXPECT_TRUE(SamePoint(second.GetEnd(), ZGeoPoint(2, 0, 0)));

  recorder_.ClearCalls();
  ZDbEnPolyline().GetPolyline(shown);
  EXPECT_EQ(shown.GetNumberOfPoints(), 3u);
  EXPECT_TRUE(SamePoint(ZDbEnPolyline().GetPolylineSegment(0).GetEnd(), ZGeoPoint()));
  EXPECT_EQ(recorder_.Calls(), Calls{});
}

TEST_F(PrimitiveReadbackTest, RectIsAClosedOutlineOfFivePointsAtItsHeight) {
  ZGeoPolyline outline;
  scene_.InsertRect(ZGeoRect(1, 2, 4, 6), 3).GetPolyline(outline);
  ASSERT_EQ(outline.GetNumberOfPoints(), 5u);
  const ZGeoPoint expected[] = {{1, 2, 3}, {4, 2, 3}, {4, 6, 3}, {1, 6, 3}, {1, 2, 3}};
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(SamePoint(outline.GetPoint(i), expected[i])) << i;
}

TEST_F(PrimitiveReadbackTest, NurbsCurveWithoutKnotsOrWeightsTakesTheEngineDefaults) {
  EngineErrorLog log;
  const std::vector<ZGeoPoint> points = {{0, 0, 0}, {1, 2, 0}, {3, 2, 0}, {4, 0, 0}};
  const ZDbEnNURBSCurve curve = scene_.InsertNURBSCurve(ZGeoNURBSCurve(3, points, {}, {}));
  ASSERT_TRUE(curve.IsValid());
  EXPECT_TRUE(log.Reports().empty());
  int degree = 0, count = 0, weights = 0, knots = 0;
  ::HC_Show_NURBS_Curve_Size(curve.GetID(), &degree, &count, &weights, &knots);
  EXPECT_EQ(degree, 3);
  EXPECT_EQ(count, 4);
}

}  // namespace
