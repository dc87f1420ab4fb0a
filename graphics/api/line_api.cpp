// Lines.
#include <memory>

#include "api/arguments.h"
#include "api/call.h"
#include "geometry/line.h"
#include "hc/hc.h"

using graphics::Done;
using graphics::GeometryType;
using graphics::Line;
using graphics::Result;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::Run;
using graphics::api::ToPoint;
using graphics::api::WritePoint;

extern "C" long long HC_Insert_Line(double xa, double ya, double za, double xb, double yb, double zb) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto start = ToPoint(xa, ya, za, "line start");
    if (!start.ok()) return start.error();
    auto end = ToPoint(xb, yb, zb, "line end");
    if (!end.ok()) return end.error();
    graphics::Segment* segment = session.SegmentToChange();
    if (segment == nullptr) return -1LL;
    return session.database().Insert(*segment, std::make_unique<Line>(start.value(), end.value())).key();
  });
}

extern "C" void HC_Show_Line(long long key, float* xa, float* ya, float* za, float* xb, float* yb, float* zb) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto item = session.database().FindGeometry(key, GeometryType::kLine);
    if (!item.ok()) return item.error();
    const auto& line = static_cast<const Line&>(*item.value());
    WritePoint(xa, ya, za, line.start());
    WritePoint(xb, yb, zb, line.end());
    return Done{};
  });
}
