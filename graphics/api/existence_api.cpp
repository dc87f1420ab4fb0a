// How much of something exists: the guard programs use before a show call
// that would complain about something unset.
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "hc/hc.h"
#include "search/contents_filter.h"
#include "search/segment_spec.h"
#include "strings/text.h"

using graphics::ContentsFilter;
using graphics::Done;
using graphics::EntityKind;
using graphics::Result;
using graphics::Segment;
using graphics::Session;
using graphics::api::Access;
using graphics::api::Require;
using graphics::api::Run;

namespace {

bool IsSelf(const char* filter) { return graphics::NormalizeWord(filter) == "self"; }

// What a contents search with `filter` would find in `segment`. The root
// holds the default of every attribute, so an attribute named as a whole
// exists there even when nothing was set: a walk up the owners that looks
// for a set attribute always ends at the root.
int CountIn(const Segment& segment, const ContentsFilter& filter) {
  int count = static_cast<int>(filter.Collect(segment).size());
  if (segment.owner() == nullptr) {
    for (graphics::AttributeKind kind : filter.WholeAttributesNamed()) {
      if (!segment.attributes().Has(kind)) ++count;
    }
  }
  return count;
}

Result<int> CountIn(const Segment& segment, const char* filter) {
  auto parsed = ContentsFilter::Parse(filter);
  if (!parsed.ok()) return parsed.error();
  return CountIn(segment, parsed.value());
}

}  // namespace

// "self": 1 while a segment is open. Otherwise a count in the current
// segment; 0 under a dead frame, with nothing open, or with geometry open,
// which holds none of what the words name.
extern "C" int HC_Show_Existence(char const* filter) {
  return Run(Access::kRead, __func__, 0, [&](Session& session) -> Result<int> {
    auto required = Require(filter, "filter");
    if (!required.ok()) return required.error();
    if (IsSelf(filter)) return session.current() != nullptr ? 1 : 0;
    if (const Segment* segment = session.current()) return CountIn(*segment, filter);
    auto parsed = ContentsFilter::Parse(filter);  // still checked
    if (!parsed.ok()) return parsed.error();
    return 0;
  });
}

// "self" counts the segments `segment` designates; other words add up the
// counts in each of them.
extern "C" int HC_QShow_Existence(char const* segment, char const* filter) {
  return Run(Access::kRead, __func__, 0, [&](Session& session) -> Result<int> {
    auto required = Require(segment, "segment specification");
    if (!required.ok()) return required.error();
    auto required_filter = Require(filter, "filter");
    if (!required_filter.ok()) return required_filter.error();
    auto parsed = ContentsFilter::Parse(IsSelf(filter) ? "" : filter);
    if (!parsed.ok()) return parsed.error();
    const std::string_view trimmed = graphics::TrimBlanks(segment);
    const bool relative = trimmed.empty() || (trimmed.front() != '/' && trimmed.front() != '?');
    if (relative && session.open_stack().top_is_dead()) return 0;
    auto matched = graphics::MatchSegments(session.database(), session.current(), segment);
    if (!matched.ok()) return matched.error();
    if (IsSelf(filter)) return static_cast<int>(matched.value().size());
    int count = 0;
    for (const Segment* s : matched.value()) count += CountIn(*s, parsed.value());
    return count;
  });
}

// "self": 1 for a live key, else 0, without a report. Other words count in
// the segment of the key; other items hold none of what they name.
extern "C" int HC_Show_Existence_By_Key(long long key, char const* filter) {
  return Run(Access::kRead, __func__, 0, [&](Session& session) -> Result<int> {
    auto required = Require(filter, "filter");
    if (!required.ok()) return required.error();
    if (IsSelf(filter)) return session.database().Find(key) != nullptr ? 1 : 0;
    auto item = session.database().FindItem(key);
    if (!item.ok()) return item.error();
    if (item.value()->kind() != EntityKind::kSegment) {
      auto parsed = ContentsFilter::Parse(filter);
      if (!parsed.ok()) return parsed.error();
      return 0;
    }
    return CountIn(*static_cast<const Segment*>(item.value()), filter);
  });
}
