#include "session/session.h"

#include "database/predefined.h"
#include "strings/text.h"

namespace graphics {

namespace {

// Paths starting at "/" or at an alias do not depend on the open segments.
bool IsRelative(std::string_view path) {
  const std::string_view trimmed = TrimBlanks(path);
  return trimmed.empty() || (trimmed.front() != '/' && trimmed.front() != '?');
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

Status Session::CloseSegment() {
  if (open_stack_.empty()) return Error(errc::kNothingOpen, "no segment is open");
  open_stack_.Pop();
  return Done{};
}

Result<long long> Session::CreateSegment(std::string_view path) {
  auto resolved = Resolve(path, Creation::kCreateMissing);
  if (!resolved.ok()) return resolved.error();
  return resolved.value() == nullptr ? -1LL : resolved.value()->key();
}

Result<Segment*> Session::FindSegment(std::string_view path) { return Resolve(path, Creation::kMustExist); }

Segment* Session::SegmentToChange() {
  if (!open_stack_.empty()) return open_stack_.top();
  // Absolute paths of plain names always resolve.
  return ResolvePath(database_, nullptr, kPicturePath, Creation::kCreateMissing).value();
}

Segment* Session::SegmentToRead() {
  if (!open_stack_.empty()) return open_stack_.top();
  auto window = ResolvePath(database_, nullptr, kPicturePath, Creation::kMustExist);
  return window.ok() ? window.value() : nullptr;
}

void Session::Reset() {
  database_.Reset();
  open_stack_.Abandon();
}

}  // namespace graphics
