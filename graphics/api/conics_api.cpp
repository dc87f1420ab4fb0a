// Circles, circular arcs, chords and wedges; ellipses and elliptical arcs.
#include <array>
#include <cmath>
#include <cstring>
#include <memory>

#include "api/arguments.h"
#include "api/call.h"
#include "api/geometry_arguments.h"
#include "geometry/conic.h"
#include "hc/hc.h"

using graphics::Conic;
using graphics::Done;
using graphics::Error;
using graphics::GeometryType;
using graphics::Point;
using graphics::Result;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::FindGeometryAs;
using graphics::api::InsertIntoCurrent;
using graphics::api::ReadPoint;
using graphics::api::Run;
using graphics::api::Write;
using graphics::api::WritePoints;

namespace {

using Points = std::array<Point, 3>;

Result<Points> ReadThree(const void* a, const void* b, const void* c, const char* names[3]) {
  Points points;
  const void* given[3] = {a, b, c};
  for (int i = 0; i < 3; ++i) {
    auto read = ReadPoint(given[i], names[i]);
    if (!read.ok()) return read.error();
    points[static_cast<size_t>(i)] = read.value();
  }
  return points;
}

Error Degenerate(const char* why) { return Error(graphics::errc::kDegenerate, why); }

long long InsertCircular(const char* routine, GeometryType type, const void* p1, const void* p2, const void* p3) {
  return Run(Access::kWrite, routine, -1LL, [&](Session& session) -> Result<long long> {
    const char* names[3] = {"first point", "second point", "third point"};
    auto points = ReadThree(p1, p2, p3, names);
    if (!points.ok()) return points.error();
    if (!graphics::DefinesCircle(points.value())) return Degenerate("the three points are collinear or coincide");
    return InsertIntoCurrent(session, std::make_unique<Conic>(type, points.value()));
  });
}

// Writes the three defining points of a conic of one of `types`.
template <typename Out>
void ShowThree(const char* routine, std::initializer_list<GeometryType> types, const char* expected, long long key,
               Out write) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    auto found = FindGeometryAs<Conic>(session, key, types, expected);
    if (!found.ok()) return found.error();
    write(*found.value());
    return Done{};
  });
}

void WriteOne(void* out, const Point& p) { WritePoints(out, std::span<const Point>(&p, 1)); }

void WriteThree(const Conic& conic, void* a, void* b, void* c) {
  WriteOne(a, conic.points()[0]);
  WriteOne(b, conic.points()[1]);
  WriteOne(c, conic.points()[2]);
}

void WriteOneDouble(void* out, const Point& p) {
  if (out == nullptr) return;
  const double d[3] = {p.x, p.y, p.z};
  std::memcpy(out, d, sizeof d);
}

constexpr std::initializer_list<GeometryType> kCircular = {GeometryType::kCircle, GeometryType::kCircularArc,
                                                           GeometryType::kCircularChord,
                                                           GeometryType::kCircularWedge};

Result<long long> InsertElliptical(Session& session, GeometryType type, const void* center, const void* major,
                                   const void* minor, double start, double end) {
  const char* names[3] = {"centre", "major axis end", "minor axis end"};
  auto points = ReadThree(center, major, minor, names);
  if (!points.ok()) return points.error();
  const Points& p = points.value();
  if (p[1] == p[0] || p[2] == p[0]) return Degenerate("an axis of the ellipse has no length");
  if (!(start >= 0 && start <= 1 && end >= 0 && end <= 1)) {
    return Error(graphics::errc::kOutOfRange, "arc parameters must lie from 0 to 1");
  }
  return InsertIntoCurrent(session,
                           std::make_unique<Conic>(type, p, static_cast<float>(start), static_cast<float>(end)));
}

}  // namespace

extern "C" long long HC_Insert_Circle(void const* p1, void const* p2, void const* p3) {
  return InsertCircular(__func__, GeometryType::kCircle, p1, p2, p3);
}
extern "C" long long HC_Insert_Circular_Arc(void const* p1, void const* p2, void const* p3) {
  return InsertCircular(__func__, GeometryType::kCircularArc, p1, p2, p3);
}
extern "C" long long HC_Insert_Circular_Chord(void const* p1, void const* p2, void const* p3) {
  return InsertCircular(__func__, GeometryType::kCircularChord, p1, p2, p3);
}
extern "C" long long HC_Insert_Circular_Wedge(void const* p1, void const* p2, void const* p3) {
  return InsertCircular(__func__, GeometryType::kCircularWedge, p1, p2, p3);
}

// Stored as three points on the circle, which the show calls give back.
extern "C" long long HC_Insert_Circle_By_Radius(void const* center, double radius, void const* normal) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto c = ReadPoint(center, "centre");
    if (!c.ok()) return c.error();
    auto n = ReadPoint(normal, "normal");
    if (!n.ok()) return n.error();
    Points points;
    if (!std::isfinite(static_cast<float>(radius)) ||
        !graphics::CirclePoints(c.value(), static_cast<float>(radius), n.value(), points)) {
      return Degenerate("a circle needs a positive radius and a non-zero normal");
    }
    return InsertIntoCurrent(session, std::make_unique<Conic>(GeometryType::kCircle, points));
  });
}

extern "C" void HC_Show_Circle(long long key, void* p1, void* p2, void* p3) {
  ShowThree(__func__, {GeometryType::kCircle}, "circle", key, [&](const Conic& c) {
    WriteThree(c, p1, p2, p3);
  });
}

// Arcs, chords and wedges alike: the three points they were made from.
extern "C" void HC_Show_Circular_Arc(long long key, void* p1, void* p2, void* p3) {
  ShowThree(__func__, kCircular, "circular arc", key, [&](const Conic& c) {
    WriteThree(c, p1, p2, p3);
  });
}
extern "C" void HC_Show_Circular_Wedge(long long key, void* p1, void* p2, void* p3) {
  ShowThree(__func__, kCircular, "circular wedge", key, [&](const Conic& c) {
    WriteThree(c, p1, p2, p3);
  });
}
extern "C" void HC_DShow_Circular_Arc(long long key, void* p1, void* p2, void* p3) {
  ShowThree(__func__, kCircular, "circular arc", key, [&](const Conic& c) {
    // The points are stored in single precision; widening is exact.
    WriteOneDouble(p1, c.points()[0]);
    WriteOneDouble(p2, c.points()[1]);
    WriteOneDouble(p3, c.points()[2]);
  });
}

extern "C" long long HC_Insert_Ellipse(void const* center, void const* major, void const* minor) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) {
    return InsertElliptical(session, GeometryType::kEllipse, center, major, minor, 0, 1);
  });
}

extern "C" long long HC_Insert_Elliptical_Arc(void const* center, void const* major, void const* minor,
                                              double start, double end) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) {
    return InsertElliptical(session, GeometryType::kEllipticalArc, center, major, minor, start, end);
  });
}

extern "C" void HC_Show_Ellipse(long long key, void* center, void* major, void* minor) {
  ShowThree(__func__, {GeometryType::kEllipse}, "ellipse", key, [&](const Conic& c) {
    WriteThree(c, center, major, minor);
  });
}

extern "C" void HC_Show_Elliptical_Arc(long long key, void* center, void* major, void* minor, float* start,
                                       float* end) {
  ShowThree(__func__, {GeometryType::kEllipticalArc}, "elliptical arc", key, [&](const Conic& c) {
    WriteThree(c, center, major, minor);
    Write(start, c.start());
    Write(end, c.end());
  });
}
