#include "tools/sceneward/demo_scene.h"

#include <vector>

#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/geometry/zgeo_point.h"
#include "sceneward/geometry/zgeo_rect.h"
#include "sceneward/scene/attributes/zdb_at_camera.h"
#include "sceneward/scene/attributes/zdb_at_color.h"
#include "sceneward/scene/attributes/zdb_at_transform.h"
#include "sceneward/scene/attributes/zdb_camera.h"
#include "sceneward/scene/entities/zdb_en_circle.h"
#include "sceneward/scene/entities/zdb_en_line.h"
#include "sceneward/scene/entities/zdb_en_polyline.h"
#include "sceneward/scene/entities/zdb_en_shell.h"
#include "sceneward/scene/entities/zdb_en_text.h"

namespace tool {
namespace {

// A unit cube with its lower left front corner at the origin: eight
// corners, six four-sided faces.
void InsertUnitCube(ZDbEnSegment const& segment) {
  std::vector<ZGeoPoint> corners;
  for (int i = 0; i < 8; ++i) {
    corners.emplace_back(static_cast<float>(i & 1), static_cast<float>((i >> 1) & 1),
                         static_cast<float>((i >> 2) & 1));
  }
  const std::vector<int> faces = {4, 0, 2, 3, 1, 4, 4, 5, 7, 6, 4, 0, 1, 5, 4,
                                  4, 2, 6, 7, 3, 4, 0, 4, 6, 2, 4, 1, 3, 7, 5};
  segment.InsertShell(corners, faces);
}

}  // namespace

ZDbEnSegment BuildDemoScene() {
  ZDbEnSegment demo(ZString("/demo"));
  CurrentManager()->HC_Open_Segment_By_Key(demo.GetID());
  CurrentManager()->HC_Set_User_Options("title=demo, units=mm");
  CurrentManager()->HC_Close_Segment();
  demo.Color().Set("lines=blue, text=black");
  demo.Camera().Set(ZDbCamera(ZGeoPoint(3, 1.5f, -10), ZGeoPoint(3, 1.5f, 0), ZGeoPoint(0, 1, 0), 8, 4,
                              "orthographic"));

  ZDbEnSegment frame = demo.GetSubSegment("frame");
  frame.InsertRect(ZGeoRect(0, 0, 6, 3), 0);

  ZDbEnSegment parts = demo.GetSubSegment("parts");
  ZDbEnSegment left = parts.GetSubSegment("left");
  left.InsertCircle(ZGeoCircle(ZGeoPoint(1.5f, 1.5f, 0), 2));
  left.InsertLine(ZGeoLine(ZGeoPoint(0.5f, 1.5f, 0), ZGeoPoint(2.5f, 1.5f, 0)));
  left.InsertLine(ZGeoLine(ZGeoPoint(1.5f, 0.5f, 0), ZGeoPoint(1.5f, 2.5f, 0)));
  left.Color().SetOne("lines", "red");

  ZDbEnSegment right = parts.GetSubSegment("Right");  // names are case-insensitive, shown in lower case
  InsertUnitCube(right);
  right.Transform().Translate(ZGeoPoint(4, 1, 0));
  right.Color().SetOne("faces", "green");

  ZDbEnSegment labels = demo.GetSubSegment("labels");
  labels.InsertText(ZString("Sceneward"), ZGeoPoint(0.5f, 3.5f, 0));
  const WideChar wide[] = {u'\u00C9', u'p', u'u', u'r', u'e', u' ', u'\u2211', 0};
  labels.InsertText(ZString(wide), ZGeoPoint(3.5f, 3.5f, 0));  // needs the wide form: stored as unicode
  return demo;
}

}  // namespace tool
