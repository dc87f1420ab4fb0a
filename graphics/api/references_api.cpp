// Includes and styles: references from the current segment to another one,
// plain or with a condition.
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "database/reference.h"
#include "hc/hc.h"
#include "strings/text.h"

using graphics::Database;
using graphics::Done;
using graphics::EntityKind;
using graphics::Error;
using graphics::Reference;
using graphics::Result;
using graphics::Segment;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::Require;
using graphics::api::Run;
using graphics::api::WriteString;

namespace {

// Adds a reference of `kind` to the current segment; -1, silently, under a
// dead frame.
Result<long long> AddTo(Session& session, EntityKind kind, Segment& target, const char* condition) {
  auto required = Require(condition, "condition");
  if (!required.ok()) return required.error();
  Segment* owner = session.SegmentToChange();
  if (owner == nullptr) return -1LL;
  auto added = session.database().AddReference(*owner, kind, target, std::string(graphics::TrimBlanks(condition)));
  if (!added.ok()) return added.error();
  return added.value()->key();
}

long long ByName(const char* routine, EntityKind kind, const char* name, const char* condition) {
  return Run(Access::kWrite, routine, -1LL, [&](Session& session) -> Result<long long> {
    auto required = Require(name, "segment name");
    if (!required.ok()) return required.error();
    auto target = session.FindSegment(name);
    if (!target.ok()) return target.error();
    if (target.value() == nullptr) return -1LL;
    return AddTo(session, kind, *target.value(), condition);
  });
}

long long ByKey(const char* routine, EntityKind kind, long long key, const char* condition) {
  return Run(Access::kWrite, routine, -1LL, [&](Session& session) -> Result<long long> {
    auto target = session.database().FindSegment(key);
    if (!target.ok()) return target.error();
    return AddTo(session, kind, *target.value(), condition);
  });
}

// The reference of `key`, which must be of `kind`.
Result<const Reference*> FindReference(Session& session, long long key, EntityKind kind) {
  auto item = session.database().FindItem(key);
  if (!item.ok()) return item.error();
  if (item.value()->kind() != kind) {
    return Error(graphics::errc::kWrongKeyKind, "key " + std::to_string(key) + " does not refer to a " +
                                                    (kind == EntityKind::kInclude ? "include" : "style") +
                                                    " but to a " + std::string(item.value()->TypeWord()));
  }
  return static_cast<const Reference*>(item.value());
}

// Writes the target's path (and the condition) and gives the target's key;
// on failure "" and -1.
long long Show(const char* routine, EntityKind kind, long long key, char* pathname, char* conditions) {
  return Run(Access::kRead, routine, -1LL, [&](Session& session) -> Result<long long> {
    WriteString(pathname, "");
    WriteString(conditions, "");
    auto found = FindReference(session, key, kind);
    if (!found.ok()) return found.error();
    WriteString(pathname, Database::FullPath(found.value()->target()));
    WriteString(conditions, found.value()->condition());
    return found.value()->target().key();
  });
}

}  // namespace

extern "C" long long HC_Include_Segment(char const* include) { return ByName(__func__, EntityKind::kInclude, include, ""); }
extern "C" long long HC_Include_Segment_By_Key(long long seg_key) {
  return ByKey(__func__, EntityKind::kInclude, seg_key, "");
}
extern "C" long long HC_Conditional_Include(char const* include, char const* condition) {
  return ByName(__func__, EntityKind::kInclude, include, condition);
}
extern "C" long long HC_Conditional_Include_By_Key(long long seg_key, char const* condition) {
  return ByKey(__func__, EntityKind::kInclude, seg_key, condition);
}
extern "C" long long HC_Style_Segment(char const* style) { return ByName(__func__, EntityKind::kStyle, style, ""); }
extern "C" long long HC_Style_Segment_By_Key(long long seg_key) { return ByKey(__func__, EntityKind::kStyle, seg_key, ""); }
extern "C" long long HC_Conditional_Style(char const* style, char const* conditions) {
  return ByName(__func__, EntityKind::kStyle, style, conditions);
}
extern "C" long long HC_Conditional_Style_By_Key(long long seg_key, char const* conditions) {
  return ByKey(__func__, EntityKind::kStyle, seg_key, conditions);
}

extern "C" long long HC_Show_Include_Segment(long long key, char* pathname) {
  return Show(__func__, EntityKind::kInclude, key, pathname, nullptr);
}
extern "C" long long HC_Show_Style_Segment(long long key, char* pathname) {
  return Show(__func__, EntityKind::kStyle, key, pathname, nullptr);
}
// An unconditional reference shows an empty condition.
extern "C" void HC_Show_Conditional_Include(long long key, char* pathname, char* conditions) {
  Show(__func__, EntityKind::kInclude, key, pathname, conditions);
}
extern "C" void HC_Show_Conditional_Style(long long key, char* pathname, char* conditions) {
  Show(__func__, EntityKind::kStyle, key, pathname, conditions);
}
