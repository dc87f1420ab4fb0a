// Opening geometry and its parts (faces, edges, vertices, regions), so that
// attribute calls apply to them.
#include "api/call.h"
#include "hc/hc.h"

using graphics::OpenFrame;
using graphics::Session;
using graphics::api::Access;
using graphics::api::Run;

namespace {

void OpenPart(const char* routine, OpenFrame::Kind kind, int first, int second = 0) {
  Run(Access::kWrite, routine, [&](Session& session) { return session.OpenPart(kind, first, second); });
}

void Close(const char* routine, OpenFrame::Kind kind) {
  Run(Access::kWrite, routine, [&](Session& session) { return session.CloseFrame(kind); });
}

}  // namespace

extern "C" void HC_Open_Geometry(long long key) {
  Run(Access::kWrite, __func__, [&](Session& session) { return session.OpenGeometry(key); });
}
extern "C" void HC_Open_Face(int id) { OpenPart(__func__, OpenFrame::Kind::kFace, id); }
extern "C" void HC_Open_Edge(int v1, int v2) { OpenPart(__func__, OpenFrame::Kind::kEdge, v1, v2); }
extern "C" void HC_Open_Vertex(int offset) { OpenPart(__func__, OpenFrame::Kind::kVertex, offset); }
extern "C" void HC_Open_Region(int region) { OpenPart(__func__, OpenFrame::Kind::kRegion, region); }

extern "C" void HC_Close_Geometry(void) { Close(__func__, OpenFrame::Kind::kGeometry); }
extern "C" void HC_Close_Face(void) { Close(__func__, OpenFrame::Kind::kFace); }
extern "C" void HC_Close_Edge(void) { Close(__func__, OpenFrame::Kind::kEdge); }
extern "C" void HC_Close_Vertex(void) { Close(__func__, OpenFrame::Kind::kVertex); }
extern "C" void HC_Close_Region(void) { Close(__func__, OpenFrame::Kind::kRegion); }
