// The current segment's camera: setters start from the local camera, or
// from the default camera when there is none (never from an inherited one);
// shows need a local camera; net shows take the lowest camera on the path.
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "api/net_path.h"
#include "attributes/camera.h"
#include "attributes/value_attributes.h"
#include "hc/hc.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;

namespace {

Point FloatTriple(const void* p) {
  const auto* f = static_cast<const float*>(p);
  return Point{f[0], f[1], f[2]};
}

void WriteTriple(void* out, const Point& p) {
  if (out == nullptr) return;
  auto* f = static_cast<float*>(out);
  f[0] = p.x, f[1] = p.y, f[2] = p.z;
}

bool RightHanded(const Segment& segment) {
  const Handedness* net = AttributePath::Of(segment).NetLocal<Handedness>();
  return net != nullptr && net->value == "right";
}

// Applies `change(Camera&, bool right_handed)` to the local camera.
template <typename Change>
void ChangeCamera(const char* routine, Change&& change) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    Segment* segment = session.SegmentToChange();
    Camera camera;
    if (segment != nullptr) {
      if (const Camera* local = segment->attributes().Find<Camera>()) camera = *local;
    }
    Status changed = change(camera, segment != nullptr && RightHanded(*segment));
    if (!changed.ok()) return changed.error();
    if (segment != nullptr) segment->MutableAttributes().Set(std::move(camera));
    return Done{};
  });
}

template <typename Write>
void ShowCamera(const char* routine, Write&& write) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    if (session.open_stack().top_is_dead()) return Done{};
    const Segment* segment = session.SegmentToRead();
    const Camera* local = segment ? segment->attributes().Find<Camera>() : nullptr;
    if (local == nullptr) return Error(errc::kNotSet, "no camera is set here");
    write(local->state());
    return Done{};
  });
}

// 1 when a segment on the path sets a camera, else 0 and the default.
template <typename Write>
int ShowNetCamera(const char* routine, int count, const long long* keys, Write&& write) {
  return Run(Access::kRead, routine, 0, [&](Session& session) -> Result<int> {
    auto path = api::NetPath(session, count, keys);
    if (!path.ok()) return path.error();
    const Camera* net = path.value().NetLocal<Camera>();
    write(net ? net->state() : Camera().state());
    return net ? 1 : 0;
  });
}

Status SetPoint(Camera& camera, double x, double y, double z, Status (Camera::*set)(const Point&)) {
  auto point = api::ToPoint(x, y, z, "a camera point");
  if (!point.ok()) return point.error();
  return (camera.*set)(point.value());
}

}  // namespace

extern "C" void HC_Set_Camera(void const* position, void const* target, void const* up, double width, double height,
                              char const* projection) {
  ChangeCamera(__func__, [&](Camera& camera, bool) -> Status {
    for (const void* required : {position, target, up, static_cast<const void*>(projection)}) {
      auto present = api::Require(required, "camera argument");
      if (!present.ok()) return present.error();
    }
    CameraState state{FloatTriple(position), FloatTriple(target), FloatTriple(up), static_cast<float>(width),
                      static_cast<float>(height), projection};
    state.near_limit_set = camera.state().near_limit_set;
    state.near_limit = camera.state().near_limit;
    auto made = Camera::Make(std::move(state));
    if (!made.ok()) return made.error();
    camera = std::move(made.value());
    return Done{};
  });
}

extern "C" void HC_Set_Camera_By_Volume(char const* projection, double xmin, double xmax, double ymin, double ymax) {
  ChangeCamera(__func__, [&](Camera& camera, bool) -> Status {
    auto present = api::Require(projection, "projection");
    if (!present.ok()) return present.error();
    auto made = Camera::ByVolume(projection, xmin, xmax, ymin, ymax);
    if (!made.ok()) return made.error();
    camera = std::move(made.value());
    return Done{};
  });
}

extern "C" void HC_Set_Camera_Position(double x, double y, double z) {
  ChangeCamera(__func__, [&](Camera& camera, bool) { return SetPoint(camera, x, y, z, &Camera::SetPosition); });
}
extern "C" void HC_Set_Camera_Target(double x, double y, double z) {
  ChangeCamera(__func__, [&](Camera& camera, bool) { return SetPoint(camera, x, y, z, &Camera::SetTarget); });
}
extern "C" void HC_Set_Camera_Up_Vector(double x, double y, double z) {
  ChangeCamera(__func__, [&](Camera& camera, bool) { return SetPoint(camera, x, y, z, &Camera::SetUpVector); });
}
extern "C" void HC_Set_Camera_Field(double width, double height) {
  ChangeCamera(__func__, [&](Camera& camera, bool) { return camera.SetField(width, height); });
}
extern "C" void HC_Set_Camera_Projection(char const* projection) {
  ChangeCamera(__func__, [&](Camera& camera, bool) -> Status {
    auto present = api::Require(projection, "projection");
    if (!present.ok()) return present.error();
    return camera.SetProjection(projection);
  });
}
extern "C" void HC_Set_Camera_Near_Limit(double limit) {
  ChangeCamera(__func__, [&](Camera& camera, bool) -> Status {
    if (!std::isfinite(limit) || limit >= 1) {
      return Error(errc::kOutOfRange, "a camera near limit must be finite and below 1");
    }
    camera.SetNearLimit(static_cast<float>(limit));
    return Done{};
  });
}
extern "C" void HC_Dolly_Camera(double right, double up, double in) {
  ChangeCamera(__func__, [&](Camera& camera, bool rh) { return camera.Dolly(right, up, in, rh); });
}
extern "C" void HC_Orbit_Camera(double theta, double phi) {
  ChangeCamera(__func__, [&](Camera& camera, bool rh) { return camera.Orbit(theta, phi, rh); });
}
extern "C" void HC_Roll_Camera(double theta) {
  ChangeCamera(__func__, [&](Camera& camera, bool rh) { return camera.Roll(theta, rh); });
}

extern "C" void HC_UnSet_Camera(void) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    Segment* segment = session.SegmentToChange();
    if (segment != nullptr && segment->attributes().Has(Camera::kKind)) segment->MutableAttributes().Remove(Camera::kKind);
    return Done{};
  });
}

extern "C" void HC_Show_Camera(void* position, void* target, void* up, float* width, float* height, char* projection) {
  ShowCamera(__func__, [&](const CameraState& s) {
    WriteTriple(position, s.position);
    WriteTriple(target, s.target);
    WriteTriple(up, s.up);
    api::Write(width, s.width);
    api::Write(height, s.height);
    api::WriteString(projection, s.projection);
  });
}
extern "C" void HC_Show_Camera_Position(float* x, float* y, float* z) {
  ShowCamera(__func__, [&](const CameraState& s) { api::WritePoint(x, y, z, s.position); });
}
extern "C" void HC_Show_Camera_Target(float* x, float* y, float* z) {
  ShowCamera(__func__, [&](const CameraState& s) { api::WritePoint(x, y, z, s.target); });
}
extern "C" void HC_Show_Camera_Up_Vector(float* x, float* y, float* z) {
  ShowCamera(__func__, [&](const CameraState& s) { api::WritePoint(x, y, z, s.up); });
}
extern "C" void HC_Show_Camera_Field(float* w, float* h) {
  ShowCamera(__func__, [&](const CameraState& s) {
    api::Write(w, s.width);
    api::Write(h, s.height);
  });
}
extern "C" void HC_Show_Camera_Projection(char* p) {
  ShowCamera(__func__, [&](const CameraState& s) { api::WriteString(p, s.projection); });
}
extern "C" void HC_Show_Camera_By_Volume(char* projection, float* xmin, float* xmax, float* ymin, float* ymax) {
  ShowCamera(__func__, [&](const CameraState& s) {
    api::WriteString(projection, s.projection);
    api::Write(xmin, s.target.x - s.width / 2);
    api::Write(xmax, s.target.x + s.width / 2);
    api::Write(ymin, s.target.y - s.height / 2);
    api::Write(ymax, s.target.y + s.height / 2);
  });
}

// Never complains: without a local camera, or with no limit on it, the
// answer is false and the system-wide automatic limit, 0.
extern "C" bool HC_Show_Camera_Near_Limit(float* limit) {
  return Run(Access::kRead, __func__, false, [&](Session& session) -> Result<bool> {
    const Segment* segment = session.SegmentToRead();
    const Camera* local = segment ? segment->attributes().Find<Camera>() : nullptr;
    const bool set = local != nullptr && local->state().near_limit_set;
    api::Write(limit, set ? local->state().near_limit : 0.0f);
    return set;
  });
}

extern "C" int HC_PShow_Net_Camera(int count, long long const* keys, void* position, void* target, void* up,
                                   float* width, float* height, char* projection) {
  return ShowNetCamera(__func__, count, keys, [&](const CameraState& s) {
    WriteTriple(position, s.position);
    WriteTriple(target, s.target);
    WriteTriple(up, s.up);
    api::Write(width, s.width);
    api::Write(height, s.height);
    api::WriteString(projection, s.projection);
  });
}
extern "C" int HC_PShow_Net_Camera_Position(int count, long long const* keys, float* x, float* y, float* z) {
  return ShowNetCamera(__func__, count, keys, [&](const CameraState& s) { api::WritePoint(x, y, z, s.position); });
}
extern "C" int HC_PShow_Net_Camera_Target(int count, long long const* keys, float* x, float* y, float* z) {
  return ShowNetCamera(__func__, count, keys, [&](const CameraState& s) { api::WritePoint(x, y, z, s.target); });
}
extern "C" int HC_PShow_Net_Camera_Field(int count, long long const* keys, float* width, float* height) {
  return ShowNetCamera(__func__, count, keys, [&](const CameraState& s) {
    api::Write(width, s.width);
    api::Write(height, s.height);
  });
}
extern "C" int HC_PShow_Net_Camera_Projection(int count, long long const* keys, char* projection) {
  return ShowNetCamera(__func__, count, keys, [&](const CameraState& s) { api::WriteString(projection, s.projection); });
}
extern "C" bool HC_PShow_Net_Camera_Near_Limit(int count, long long const* keys, float* limit) {
  bool set = false;
  ShowNetCamera(__func__, count, keys, [&](const CameraState& s) {
    set = s.near_limit_set;
    api::Write(limit, s.near_limit_set ? s.near_limit : 0.0f);
  });
  return set;
}
