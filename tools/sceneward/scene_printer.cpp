#include "tools/sceneward/scene_printer.h"

#include <string>

#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace tool {
namespace {

void PrintGeometry(long long key, const std::string& indent, std::FILE* out) {
  ZString type;
  CurrentManager()->HC_Show_Key_Type(key, type);
  const std::string typeName = type.GetAsMBCS();
  if (typeName == "line") {
    float a[3] = {0, 0, 0}, b[3] = {0, 0, 0};
    CurrentManager()->HC_Show_Line(key, &a[0], &a[1], &a[2], &b[0], &b[1], &b[2]);
    std::fprintf(out, "%s  line (%g, %g, %g) - (%g, %g, %g)\n", indent.c_str(), a[0], a[1], a[2],
                 b[0], b[1], b[2]);
  } else if (typeName == "text") {
    float x = 0, y = 0, z = 0;
    ZString text;
    CurrentManager()->HC_Show_Text(key, &x, &y, &z, text);
    std::fprintf(out, "%s  text \"%s\"%s at (%g, %g, %g)\n", indent.c_str(), text.GetAsMBCS(),
                 text.IsUnicode() ? " (unicode)" : "", x, y, z);
  } else {
    std::fprintf(out, "%s  %s\n", indent.c_str(), typeName.c_str());
  }
}

}  // namespace

void PrintSegmentTree(const std::vector<BuiltSegment>& segments, std::FILE* out) {
  for (const BuiltSegment& segment : segments) {
    const std::string indent(2 * segment.depth, ' ');
    ZString path;
    CurrentManager()->HC_Show_Segment(segment.key, path);
    std::fprintf(out, "%s%s\n", indent.c_str(), path.GetAsMBCS());
    // Showing options that were never set is an error, so ask their length first.
    ZString options;
    int length = 0;
    CurrentManager()->HC_Open_Segment_By_Key(segment.key);
    CurrentManager()->HC_Show_User_Options_Length(&length);
    if (length > 0) CurrentManager()->HC_Show_User_Options(options);
    CurrentManager()->HC_Close_Segment();
    if (!options.IsEmpty()) std::fprintf(out, "%s  user options: %s\n", indent.c_str(), options.GetAsMBCS());
    for (long long key : segment.geometry) PrintGeometry(key, indent, out);
  }
}

}  // namespace tool
