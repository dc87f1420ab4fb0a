#include "session/session.h"

#include "database/predefined.h"
#include "engine/engine.h"
#include "geometry/surface.h"
#include "strings/text.h"

namespace graphics {

namespace {

// Paths starting at "/" or at an alias do not depend on the open segments.
bool IsRelative(std::string_view path) {
  const std::string_view trimmed = TrimBlanks(path);
  return trimmed.empty() || (trimmed.front() != '/' && trimmed.front() != '?');
}

std::string_view FrameWord(OpenFrame::Kind kind) {
  switch (kind) {
    case OpenFrame::Kind::kSegment:
      return "segment";
    case OpenFrame::Kind::kGeometry:
      return "geometry";
    case OpenFrame::Kind::kFace:
      return "face";
    case OpenFrame::Kind::kEdge:
      return "edge";
    case OpenFrame::Kind::kVertex:
      return "vertex";
    case OpenFrame::Kind::kRegion:
      return "region";
  }
  return "";
}

Error NoSuchPart(std::string_view part, int number, int count) {
  return Error(errc::kOutOfRange, "no " + std::string(part) + " " + std::to_string(number) + " among " +
                                      std::to_string(count));
}

// Whether `geometry` has the part a frame of `kind` opens.
Status CheckPart(const Geometry& geometry, OpenFrame::Kind kind, int first, int second) {
  const GeometryType type = geometry.type();
  const bool surface = type == GeometryType::kShell || type == GeometryType::kMesh;
  const bool allowed = surface || (kind == OpenFrame::Kind::kFace && type == GeometryType::kPolyCylinder);
  if (!allowed || (kind == OpenFrame::Kind::kRegion && type != GeometryType::kShell)) {
    return Error(errc::kWrongKeyKind, "a " + std::string(geometry.TypeWord()) + " has no " +
                                          std::string(FrameWord(kind)) + " to open");
  }
  if (!surface) {
    // A polycylinder's faces are its two end caps.
    return first == 0 || first == 1 ? Status(Done{}) : NoSuchPart("face", first, 2);
  }
  const auto& s = static_cast<const Surface&>(geometry);
  const int vertices = static_cast<int>(s.points().size());
  switch (kind) {
    case OpenFrame::Kind::kFace:
      return first >= 0 && first < s.FaceCount() ? Status(Done{}) : NoSuchPart("face", first, s.FaceCount());
    case OpenFrame::Kind::kVertex:
      return first >= 0 && first < vertices ? Status(Done{}) : NoSuchPart("vertex", first, vertices);
    case OpenFrame::Kind::kEdge:
      if (first < 0 || first >= vertices) return NoSuchPart("vertex", first, vertices);
      if (second < 0 || second >= vertices) return NoSuchPart("vertex", second, vertices);
      return Done{};
    case OpenFrame::Kind::kRegion:
      return first >= 0 ? Status(Done{}) : NoSuchPart("region", first, 0);
    default:
      return Done{};
  }
}

}  // namespace

Result<Segment*> Session::Resolve(std::string_view path, Creation creation) {
  if (IsRelative(path) && open_stack_.top_is_dead()) return nullptr;
  if (!TrimBlanks(path).empty()) return ResolvePath(database_, open_stack_.top(), path, creation);
  if (creation == Creation::kMustExist) return Error(errc::kBadName, "a blank name names no segment");
  Segment* owner = open_stack_.top();
  if (owner == nullptr) {
    return Error(errc::kRelativeWithNothingOpen, "a blank name makes an anonymous subsegment, but no segment is open");
  }
  return &database_.CreateChild(*owner, "");
}

ThreadSearches& Session::searches() { return Engine::Instance().ThisThreadSearches(); }

Result<long long> Session::OpenSegment(std::string_view path) {
  auto resolved = Resolve(path, Creation::kCreateMissing);
  if (!resolved.ok() || resolved.value() == nullptr) {
    open_stack_.PushDead();
    if (!resolved.ok()) return resolved.error();
    return -1LL;
  }
  open_stack_.PushSegment(*resolved.value());
  return resolved.value()->key();
}

Status Session::OpenSegmentByKey(long long key) {
  auto segment = database_.FindSegment(key);
  if (!segment.ok()) {
    open_stack_.PushDead();
    return segment.error();
  }
  open_stack_.PushSegment(*segment.value());
  return Done{};
}

Status Session::CloseSegment() { return CloseFrame(OpenFrame::Kind::kSegment); }

Status Session::CloseFrame(OpenFrame::Kind kind) {
  if (open_stack_.empty()) return Error(errc::kNothingOpen, "no " + std::string(FrameWord(kind)) + " is open");
  if (!open_stack_.top_is_dead() && open_stack_.top_frame().kind != kind) {
    return Error(errc::kItemOpen, std::string("a ") + std::string(FrameWord(open_stack_.top_frame().kind)) +
                                      " is open where a " + std::string(FrameWord(kind)) + " should close");
  }
  open_stack_.Pop();
  return Done{};
}

Status Session::OpenGeometry(long long key) {
  auto item = database_.FindItem(key);
  if (item.ok() && item.value()->kind() == EntityKind::kGeometry) {
    open_stack_.PushGeometry(OpenFrame::Kind::kGeometry, static_cast<Geometry&>(*item.value()));
    return Done{};
  }
  open_stack_.PushDead();
  if (!item.ok()) return item.error();
  return Error(errc::kWrongKeyKind, "key " + std::to_string(key) + " does not refer to geometry but to a " +
                                        std::string(item.value()->TypeWord()));
}

Status Session::OpenPart(OpenFrame::Kind kind, int first, int second) {
  if (open_stack_.empty() || open_stack_.top_frame().kind != OpenFrame::Kind::kGeometry) {
    if (open_stack_.top_is_dead()) {
      open_stack_.PushDead();
      return Done{};
    }
    return Error(errc::kNothingOpen, "no geometry is open");
  }
  Geometry& geometry = *open_stack_.top_frame().geometry;
  auto exists = CheckPart(geometry, kind, first, second);
  if (!exists.ok()) return exists;
  open_stack_.PushGeometry(kind, geometry, first, second);
  return Done{};
}

Result<long long> Session::CreateSegment(std::string_view path) {
  auto resolved = Resolve(path, Creation::kCreateMissing);
  if (!resolved.ok()) return resolved.error();
  return resolved.value() == nullptr ? -1LL : resolved.value()->key();
}

Result<Segment*> Session::FindSegment(std::string_view path) { return Resolve(path, Creation::kMustExist); }

Segment* Session::SegmentToChange() {
  if (!open_stack_.empty() && !open_stack_.top_is_geometry()) return open_stack_.top();
  // Absolute paths of plain names always resolve.
  return ResolvePath(database_, nullptr, kPicturePath, Creation::kCreateMissing).value();
}

Segment* Session::SegmentToRead() {
  if (!open_stack_.empty() && !open_stack_.top_is_geometry()) return open_stack_.top();
  auto window = ResolvePath(database_, nullptr, kPicturePath, Creation::kMustExist);
  return window.ok() ? window.value() : nullptr;
}

void Session::Reset() {
  database_.Reset();
  open_stack_.Abandon();
}

}  // namespace graphics
