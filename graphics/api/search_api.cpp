// Contents, segment and open-segment searches: a begin computes every
// result, find hands them out one at a time, count tells how many there
// are, and end returns to the search the begin interrupted.
#include <string>
#include <vector>

#include "api/arguments.h"
#include "api/call.h"
#include "hc/hc.h"
#include "search/contents_filter.h"
#include "search/segment_spec.h"
#include "strings/text.h"

using graphics::ContentsFilter;
using graphics::Database;
using graphics::Done;
using graphics::Error;
using graphics::OpenFrame;
using graphics::Result;
using graphics::SearchResult;
using graphics::SearchStack;
using graphics::Segment;
using graphics::Session;
using graphics::Status;
using graphics::ThreadSearches;
using graphics::api::Access;
using graphics::api::Require;
using graphics::api::Run;
using graphics::api::Write;
using graphics::api::WriteString;

namespace {

using Results = std::vector<SearchResult>;

// The segments `spec` names from the current segment; none, silently, for a
// relative specification under a dead frame.
Result<std::vector<Segment*>> Designated(Session& session, const char* spec) {
  auto required = Require(spec, "segment specification");
  if (!required.ok()) return required.error();
  const std::string_view trimmed = graphics::TrimBlanks(spec);
  const bool relative = trimmed.empty() || (trimmed.front() != '/' && trimmed.front() != '?');
  if (relative && session.open_stack().top_is_dead()) return std::vector<Segment*>{};
  return graphics::MatchSegments(session.database(), session.current(), spec);
}

// Runs `search(session)`, then pushes its results on `stack` of this
// thread; a failing search pushes an empty context, so the end that
// follows stays paired.
template <typename Search>
void Begin(const char* routine, SearchStack ThreadSearches::*stack, Search search) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    Result<Results> results = search(session);
    (session.searches().*stack).Push(results.ok() ? std::move(results.value()) : Results{});
    if (!results.ok()) return results.error();
    return Done{};
  });
}

Status NoSearch() { return Error(graphics::errc::kNoSearch, "no search is in progress"); }

// Gives the next result to `write`; false, leaving the outputs alone, when
// all were given.
template <typename WriteResult>
bool Find(const char* routine, SearchStack ThreadSearches::*stack, WriteResult write) {
  return Run(Access::kRead, routine, false, [&](Session& session) -> Result<bool> {
    SearchStack& searches = session.searches().*stack;
    if (!searches.active()) return NoSearch().error();
    const SearchResult* next = searches.Next();
    if (next == nullptr) return false;
    write(*next);
    return true;
  });
}

// Writes the innermost search's result count; 0 outside a search.
void Count(const char* routine, SearchStack ThreadSearches::*stack, int* count) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    SearchStack& searches = session.searches().*stack;
    if (!searches.active()) {
      Write(count, 0);
      return NoSearch();
    }
    Write(count, static_cast<int>(searches.count()));
    return Done{};
  });
}

void End(const char* routine, SearchStack ThreadSearches::*stack) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    return (session.searches().*stack).Pop() ? Status(Done{}) : NoSearch();
  });
}

}  // namespace

// The designated segments are not reported themselves: their contents are.
extern "C" void HC_Begin_Contents_Search(char const* segment, char const* filter) {
  Begin(__func__, &ThreadSearches::contents, [&](Session& session) -> Result<Results> {
    auto parsed = ContentsFilter::Parse(filter ? filter : "");
    if (!parsed.ok()) return parsed.error();
    auto segments = Designated(session, segment);
    if (!segments.ok()) return segments.error();
    Results results;
    for (const Segment* designated : segments.value()) {
      Results found = parsed.value().Collect(*designated);
      results.insert(results.end(), std::make_move_iterator(found.begin()), std::make_move_iterator(found.end()));
    }
    return results;
  });
}

extern "C" bool HC_Find_Contents(char* type, long long* key) {
  return Find(__func__, &ThreadSearches::contents, [&](const SearchResult& found) {
    WriteString(type, found.text);
    Write(key, found.key);
  });
}

extern "C" void HC_Show_Contents_Count(int* count) { Count(__func__, &ThreadSearches::contents, count); }
extern "C" void HC_End_Contents_Search(void) { End(__func__, &ThreadSearches::contents); }

// The matched segments themselves, depth-first where "..." reaches below.
extern "C" void HC_Begin_Segment_Search(char const* segspec) {
  Begin(__func__, &ThreadSearches::segments, [&](Session& session) -> Result<Results> {
    auto segments = Designated(session, segspec);
    if (!segments.ok()) return segments.error();
    Results results;
    for (const Segment* segment : segments.value()) {
      results.push_back(SearchResult{Database::FullPath(*segment), segment->key()});
    }
    return results;
  });
}

extern "C" bool HC_Find_Segment(char* segment) {
  return Find(__func__, &ThreadSearches::segments, [&](const SearchResult& found) { WriteString(segment, found.text); });
}

extern "C" void HC_Show_Segment_Count(int* count) { Count(__func__, &ThreadSearches::segments, count); }
extern "C" void HC_End_Segment_Search(void) { End(__func__, &ThreadSearches::segments); }

// Innermost first; open geometry and dead frames are skipped.
extern "C" void HC_Begin_Open_Segment_Search(void) {
  Begin(__func__, &ThreadSearches::open_segments, [&](Session& session) -> Result<Results> {
    Results results;
    const auto& frames = session.open_stack().frames();
    for (auto it = frames.rbegin(); it != frames.rend(); ++it) {
      if (it->kind == OpenFrame::Kind::kSegment && it->segment != nullptr) {
        results.push_back(SearchResult{Database::FullPath(*it->segment), it->segment->key()});
      }
    }
    return results;
  });
}

extern "C" bool HC_Find_Open_Segment(char* segment) {
  return Find(__func__, &ThreadSearches::open_segments,
              [&](const SearchResult& found) { WriteString(segment, found.text); });
}

extern "C" void HC_Show_Open_Segment_Count(int* count) { Count(__func__, &ThreadSearches::open_segments, count); }
extern "C" void HC_End_Open_Segment_Search(void) { End(__func__, &ThreadSearches::open_segments); }
