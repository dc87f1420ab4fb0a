// How much the next update redraws: marks on segments, read by the renderer.
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "api/arguments.h"
#include "api/call.h"
#include "database/redraw_marks.h"
#include "hc/hc.h"
#include "search/segment_spec.h"

using graphics::Done;
using graphics::EntityKind;
using graphics::Error;
using graphics::RedrawMarks;
using graphics::Result;
using graphics::Segment;
using graphics::Session;
using graphics::Status;
using graphics::WindowArea;
using graphics::api::Access;
using graphics::api::Require;
using graphics::api::Run;
namespace errc = graphics::errc;

namespace {

// The segment whose marks a key's item changes: a segment itself, or the
// owner of a geometry item.
Result<Segment*> MarkedSegmentOfKey(Session& session, long long key) {
  auto item = session.database().FindItem(key);
  if (!item.ok()) return item.error();
  switch (item.value()->kind()) {
    case EntityKind::kSegment:
      return static_cast<Segment*>(item.value());
    case EntityKind::kGeometry:
      return item.value()->owner();
    default:
      return Error(errc::kWrongKeyKind, "key " + std::to_string(key) + " refers to an " +
                                            std::string(item.value()->TypeWord()) + ", not a segment or geometry");
  }
}

// Checks `options` once, then applies them to every segment; `area`, when
// given, widens each segment's redraw area before the words apply, so
// "unset redraw" clears it too.
Status MarkSegments(const std::vector<Segment*>& segments, const char* options,
                    const std::optional<WindowArea>& area = std::nullopt) {
  auto required = Require(options, "options");
  if (!required.ok()) return required;
  RedrawMarks trial;
  auto checked = graphics::ApplyUpdateWords(options, trial);
  if (!checked.ok()) return checked;
  for (Segment* segment : segments) {
    RedrawMarks& marks = segment->mutable_redraw_marks();
    if (area) marks.Widen(*area);
    auto applied = graphics::ApplyUpdateWords(options, marks);
    if (!applied.ok()) return applied;
  }
  return Done{};
}

// A rectangle inside the window, not empty.
Result<WindowArea> ReadArea(double left, double right, double bottom, double top) {
  const auto inside = [](double low, double high) {
    return std::isfinite(low) && std::isfinite(high) && -1 <= low && low < high && high <= 1;
  };
  if (!inside(left, right) || !inside(bottom, top)) {
    return Error(errc::kOutOfRange, "an update area must lie inside the window (-1 to 1) and not be empty");
  }
  return WindowArea{left, right, bottom, top};
}

}  // namespace

// Every segment the specification names; naming none is an error.
extern "C" void HC_Control_Update(char const* segment, char const* options) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = Require(segment, "segment specification");
    if (!required.ok()) return required;
    auto segments = graphics::MatchSegments(session.database(), session.current(), segment);
    if (!segments.ok()) return segments.error();
    if (segments.value().empty()) {
      return Error(errc::kNoSuchSegment, "no segment matches '" + std::string(segment) + "'");
    }
    return MarkSegments(segments.value(), options);
  });
}

// A geometry key marks its owner.
extern "C" void HC_Control_Update_By_Key(long long key, char const* options) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto marked = MarkedSegmentOfKey(session, key);
    if (!marked.ok()) return marked.error();
    return MarkSegments({marked.value()}, options);
  });
}

// Repeated areas add up to the smallest rectangle holding them all.
extern "C" void HC_Control_Update_Area_By_Key(long long key, double left, double right, double bottom, double top,
                                              char const* options) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto marked = MarkedSegmentOfKey(session, key);
    if (!marked.ok()) return marked.error();
    auto area = ReadArea(left, right, bottom, top);
    if (!area.ok()) return area.error();
    return MarkSegments({marked.value()}, options, area.value());
  });
}
