#include "tools/sceneward/demo_scene.h"

#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace tool {
namespace {

// Opens and closes segments through the manager and remembers what went in.
class SceneBuilder {
 public:
  void Open(const char* name) {
    const long long key = CurrentManager()->HC_Open_Segment(name);
    open_.push_back(built_.size());
    built_.push_back(BuiltSegment{key, static_cast<int>(open_.size()) - 1, {}});
  }
  void Close() {
    CurrentManager()->HC_Close_Segment();
    open_.pop_back();
  }
  void Line(double x1, double y1, double x2, double y2) {
    Record(CurrentManager()->HC_Insert_Line(x1, y1, 0, x2, y2, 0));
  }
  void Text(double x, double y, const ZString& text) {
    Record(CurrentManager()->HC_Insert_Text(x, y, 0, text));
  }
  // A unit square outline with its lower left corner at (x, 0).
  void Square(double x) {
    Line(x, 0, x + 1, 0);
    Line(x + 1, 0, x + 1, 1);
    Line(x + 1, 1, x, 1);
    Line(x, 1, x, 0);
  }
  std::vector<BuiltSegment> Take() { return std::move(built_); }

 private:
  void Record(long long key) { built_[open_.back()].geometry.push_back(key); }

  std::vector<BuiltSegment> built_;
  std::vector<size_t> open_;
};

}  // namespace

std::vector<BuiltSegment> BuildDemoScene() {
  SceneBuilder scene;
  scene.Open("/demo");
  CurrentManager()->HC_Set_User_Options("title=demo, units=mm");

  scene.Open("frame");
  scene.Square(0);
  scene.Close();

  scene.Open("parts");
  scene.Open("left");
  scene.Square(2);
  scene.Close();
  scene.Open("Right");  // names are case-insensitive and shown in lower case
  scene.Square(4);
  scene.Close();
  scene.Close();

  scene.Open("labels");
  scene.Text(0.5, 1.5, ZString("Sceneward"));
  const WideChar wide[] = {u'\u00C9', u'p', u'u', u'r', u'e', u' ', u'\u2211', 0};
  scene.Text(2.5, 1.5, ZString(wide));  // needs the wide form: stored as unicode
  scene.Close();

  scene.Close();
  return scene.Take();
}

}  // namespace tool
