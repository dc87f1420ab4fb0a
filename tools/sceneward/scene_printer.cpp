#include "tools/sceneward/scene_printer.h"

#include <string>
#include <vector>

#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"
#include "sceneward/geometry/zgeo_box.h"
#include "sceneward/geometry/zgeo_circle.h"
#include "sceneward/geometry/zgeo_line.h"
#include "sceneward/geometry/zgeo_matrix.h"
#include "sceneward/scene/attributes/zdb_at_camera.h"
#include "sceneward/scene/attributes/zdb_at_color.h"
#include "sceneward/scene/attributes/zdb_at_transform.h"
#include "sceneward/scene/attributes/zdb_camera.h"
#include "sceneward/scene/entities/zdb_en_circle.h"
#include "sceneward/scene/entities/zdb_en_line.h"
#include "sceneward/scene/entities/zdb_en_polyline.h"
#include "sceneward/scene/entities/zdb_en_shell.h"
#include "sceneward/scene/entities/zdb_en_text.h"
#include "sceneward/scene/search/zdb_entity_vec.h"

namespace tool {
namespace {

std::string Point(ZGeoPoint const& p) {
  char text[96];
  std::snprintf(text, sizeof text, "(%g, %g, %g)", p.x, p.y, p.z);
  return text;
}

void PrintEntity(ZDbEntity const& entity, std::string const& indent, std::FILE* out) {
  const long long key = entity.GetID();
  switch (entity.GetType()) {
    case kEntityLine: {
      const ZGeoLine line = ZDbEnLine(key).GetLine();
      std::fprintf(out, "%sline %s - %s\n", indent.c_str(), Point(line.GetStart()).c_str(),
                   Point(line.GetEnd()).c_str());
      break;
    }
    case kEntityPolyline:
      std::fprintf(out, "%spolyline of %d points\n", indent.c_str(), ZDbEnPolyline(key).GetNumberOfPoints());
      break;
    case kEntityCircle: {
      const ZGeoCircle circle = ZDbEnCircle(key).GetCircle();
      std::fprintf(out, "%scircle at %s, radius %g\n", indent.c_str(), Point(circle.GetCenter()).c_str(),
                   circle.GetRadius());
      break;
    }
    case kEntityShell: {
      std::vector<ZGeoPoint> points;
      std::vector<int> faces;
      ZDbEnShell(key).GetPointsAndFaces(points, faces);
      std::fprintf(out, "%sshell of %zu points, face list of %zu\n", indent.c_str(), points.size(), faces.size());
      break;
    }
    case kEntityText: {
      const ZDbEnText text(key);
      const ZString words = text.GetText();
      std::fprintf(out, "%stext \"%s\"%s at %s\n", indent.c_str(), words.GetAsMBCS(),
                   words.IsUnicode() ? " (unicode)" : "", Point(text.GetPosition()).c_str());
      break;
    }
    default:
      std::fprintf(out, "%s%s\n", indent.c_str(), entity.GetTypeNames().GetAsMBCS());
  }
}

void PrintAttributes(ZDbEnSegment const& segment, std::string const& indent, std::FILE* out) {
  const ZString color = segment.Color().Get();
  if (!color.IsEmpty()) std::fprintf(out, "%scolour: %s\n", indent.c_str(), color.GetAsMBCS());

  ZDbAtCamera cameraAttribute = segment.Camera();
  if (cameraAttribute.IsAttributeSet(ZString())) {
    const ZDbCamera camera = cameraAttribute.Get();
    std::fprintf(out, "%scamera: %s from %s to %s, field %g x %g\n", indent.c_str(), camera.projection.GetAsMBCS(),
                 Point(camera.position).c_str(), Point(camera.target).c_str(), camera.fieldWidth, camera.fieldHeight);
  }

  ZDbAtTransform transform = segment.Transform();
  if (transform.IsAttributeSet(ZString())) {
    const ZGeoMatrix matrix = transform.Get();
    const ZGeoPoint offset(matrix.GetAt(3, 0), matrix.GetAt(3, 1), matrix.GetAt(3, 2));
    std::fprintf(out, "%smodelling matrix moves by %s\n", indent.c_str(), Point(offset).c_str());
  }

  // User options have no handle here yet; ask their length first, since
  // showing options that were never set is an error.
  int length = 0;
  ZString options;
  CurrentManager()->HC_Open_Segment_By_Key(segment.GetID());
  CurrentManager()->HC_Show_User_Options_Length(&length);
  if (length > 0) CurrentManager()->HC_Show_User_Options(options);
  CurrentManager()->HC_Close_Segment();
  if (!options.IsEmpty()) std::fprintf(out, "%suser options: %s\n", indent.c_str(), options.GetAsMBCS());
}

void PrintSegment(ZDbEnSegment const& segment, int depth, std::FILE* out) {
  const std::string indent(2 * depth, ' ');
  std::fprintf(out, "%s%s\n", indent.c_str(), segment.GetFullPath().GetAsMBCS());
  PrintAttributes(segment, indent + "  ", out);

  ZDbEntityVec geometry;
  segment.EntitySearch(geometry, -2, ZString("."), true);
  for (int i = 0; i < geometry.Count(); ++i) PrintEntity(*geometry.GetAt(i), indent + "  ", out);

  std::vector<ZDbEnSegment> children;
  segment.GetChildSegments(children);
  for (ZDbEnSegment const& child : children) PrintSegment(child, depth + 1, out);
}

}  // namespace

void PrintSegmentTree(ZDbEnSegment const& root, std::FILE* out) {
  PrintSegment(root, 0, out);
  ZGeoBox box;
  if (root.ComputeBoundingCuboid(box)) {
    std::fprintf(out, "extent: x %g to %g, y %g to %g, z %g to %g\n", box.GetLeft(), box.GetRight(), box.GetTop(),
                 box.GetBottom(), box.GetBack(), box.GetFront());
  }
}

}  // namespace tool
