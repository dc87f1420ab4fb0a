// Opening, closing, naming and deleting segments.
#include <string>
#include <vector>

#include "api/arguments.h"
#include "api/call.h"
#include "hc/hc.h"
#include "search/segment_spec.h"
#include "strings/text.h"

using graphics::Database;
using graphics::Done;
using graphics::Entity;
using graphics::Result;
using graphics::Segment;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::Require;
using graphics::api::Run;
using graphics::api::WriteString;

namespace {

// The owner of `item`: its path written to `out` and its key returned; the
// root has no owner, written "" with key 0.
long long ShowOwnerOf(const Entity& item, char* out) {
  const Segment* owner = item.owner();
  WriteString(out, owner ? Database::FullPath(*owner) : "");
  return owner ? owner->key() : 0;
}

}  // namespace

extern "C" long long HC_Open_Segment(char const* segment) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto required = Require(segment, "segment name");
    if (!required.ok()) {
      session.open_stack().PushDead();
      return required.error();
    }
    return session.OpenSegment(segment);
  });
}

extern "C" long long HC_Create_Segment(char const* segment) {
  return Run(Access::kWrite, __func__, -1LL, [&](Session& session) -> Result<long long> {
    auto required = Require(segment, "segment name");
    if (!required.ok()) return required.error();
    return session.CreateSegment(segment);
  });
}

extern "C" void HC_Open_Segment_By_Key(long long key) {
  Run(Access::kWrite, __func__, [&](Session& session) { return session.OpenSegmentByKey(key); });
}

extern "C" void HC_Close_Segment(void) {
  Run(Access::kWrite, __func__, [&](Session& session) { return session.CloseSegment(); });
}

extern "C" void HC_Show_Segment(long long key, char* pathname) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto segment = session.database().FindSegment(key);
    if (!segment.ok()) {
      WriteString(pathname, "");
      return segment.error();
    }
    WriteString(pathname, Database::FullPath(*segment.value()));
    return Done{};
  });
}

extern "C" long long HC_Show_Owner(char const* segment, char* owner) {
  return Run(Access::kRead, __func__, -1LL, [&](Session& session) -> Result<long long> {
    WriteString(owner, "");
    auto required = Require(segment, "segment name");
    if (!required.ok()) return required.error();
    auto found = session.FindSegment(segment);
    if (!found.ok()) return found.error();
    return found.value() ? ShowOwnerOf(*found.value(), owner) : -1LL;
  });
}

extern "C" long long HC_Show_Owner_By_Key(long long key, char* owner) {
  return Run(Access::kRead, __func__, -1LL, [&](Session& session) -> Result<long long> {
    WriteString(owner, "");
    auto item = session.database().FindItem(key);
    if (!item.ok()) return item.error();
    return ShowOwnerOf(*item.value(), owner);
  });
}

// Wildcards and lists delete every match; open ones stay and are reported.
extern "C" void HC_Delete_Segment(char const* segment) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = Require(segment, "segment name");
    if (!required.ok()) return required.error();
    const std::string_view trimmed = graphics::TrimBlanks(segment);
    const bool relative = trimmed.empty() || (trimmed.front() != '/' && trimmed.front() != '?');
    if (relative && session.open_stack().top_is_dead()) return Done{};
    auto matched = graphics::MatchSegments(session.database(), session.current(), segment);
    if (!matched.ok()) return matched.error();
    if (matched.value().empty()) {
      return graphics::Error(graphics::errc::kNoSuchSegment, "no segment '" + std::string(segment) + "'");
    }
    // By library key: deleting one match may already have taken another
    // below it.
    std::vector<long long> keys;
    for (const Segment* found : matched.value()) keys.push_back(found->library_key());
    Status outcome = Done{};
    for (long long key : keys) {
      if (graphics::Entity* item = session.database().FindByLibraryKey(key)) {
        auto deleted = session.database().Delete(*item);
        if (!deleted.ok()) outcome = deleted;
      }
    }
    return outcome;
  });
}

extern "C" void HC_Delete_By_Key(long long key) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto item = session.database().FindItem(key);
    if (!item.ok()) return item.error();
    return session.database().Delete(*item.value());
  });
}
