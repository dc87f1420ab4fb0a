#pragma once
// The engine as one thread sees it: the shared database with this thread's
// open segments. The exported functions forward here once they have checked
// their arguments and taken the database lock.
#include <string_view>

#include "database/database.h"
#include "database/path_resolver.h"
#include "errors/error.h"
#include "search/search_stack.h"
#include "session/open_stack.h"

namespace graphics {

class Session {
 public:
  // Local keys resolve among the items of the segment current when the
  // session starts, for as long as it lives.
  Session(Database& database, OpenStack& open_stack)
      : database_(database), open_stack_(open_stack), local_keys_(open_stack.top()) {}

  Database& database() { return database_; }
  OpenStack& open_stack() { return open_stack_; }
  ThreadSearches& searches();
  // The segment relative specifications start from: the top open segment;
  // null with nothing open or open geometry on top.
  Segment* current() const { return open_stack_.top(); }

  // Opens (creating if needed) and returns the key. A blank path makes a new
  // anonymous child of the current segment. On failure a dead frame is
  // pushed and the error returned; under a dead frame, relative paths open
  // another dead frame and answer -1 silently.
  Result<long long> OpenSegment(std::string_view path);
  // As above, by key; the key must be a live segment's.
  Status OpenSegmentByKey(long long key);
  // Refused when geometry is open on top.
  Status CloseSegment();

  // Opens the geometry item of `key`; a bad key reports and pushes a dead
  // frame. Open geometry hides the open segments, as if none were open.
  Status OpenGeometry(long long key);
  // Opens a part of the open geometry on top: a face (by number, for shells,
  // meshes and polycylinders), an edge (by its two vertices), a vertex, or a
  // region (shells). Refused, pushing nothing, when the part does not exist
  // or the top frame is not the open geometry.
  Status OpenPart(OpenFrame::Kind kind, int first, int second = 0);
  // Closes the top frame, which must be of `kind`; a dead frame closes as
  // any kind.
  Status CloseFrame(OpenFrame::Kind kind);
  // Open then close; -1 silently under a dead frame.
  Result<long long> CreateSegment(std::string_view path);

  // The segment `path` names, which must exist. Null, silently, for a
  // relative path under a dead frame.
  Result<Segment*> FindSegment(std::string_view path);

  // What calls on "the current segment" act on: the top open segment, or
  // with nothing open the default window (made again if it was deleted).
  // Null under a dead frame.
  Segment* SegmentToChange();
  // As SegmentToChange, but never creating: also null when nothing is open
  // and the default window was deleted.
  Segment* SegmentToRead();

  // The database back to its first state, this thread's frames forgotten.
  void Reset();

  // The segment `path` names from the current segment, created if asked.
  // A blank path makes a new anonymous child; null, silently, for a
  // relative path under a dead frame.
  Result<Segment*> Resolve(std::string_view path, Creation creation);

 private:

  Database& database_;
  OpenStack& open_stack_;
  LocalKeyScope local_keys_;
};

}  // namespace graphics
