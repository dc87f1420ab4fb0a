#pragma once
// The engine as one thread sees it: the shared database with this thread's
// open segments. The exported functions forward here once they have checked
// their arguments and taken the database lock.
#include <string_view>

#include "database/database.h"
#include "database/path_resolver.h"
#include "errors/error.h"
#include "session/open_stack.h"

namespace graphics {

class Session {
 public:
  Session(Database& database, OpenStack& open_stack) : database_(database), open_stack_(open_stack) {}

  Database& database() { return database_; }
  OpenStack& open_stack() { return open_stack_; }

  // Opens (creating if needed) and returns the key. A blank path makes a new
  // anonymous child of the current segment. On failure a dead frame is
  // pushed and the error returned; under a dead frame, relative paths open
  // another dead frame and answer -1 silently.
  Result<long long> OpenSegment(std::string_view path);
  // As above, by key; the key must be a live segment's.
  Status OpenSegmentByKey(long long key);
  Status CloseSegment();
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

 private:
  Result<Segment*> Resolve(std::string_view path, Creation creation);

  Database& database_;
  OpenStack& open_stack_;
};

}  // namespace graphics
