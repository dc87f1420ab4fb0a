#pragma once
// ZDbSegmentSearch: a segment search of the graphics library, as a scope:
// begun by the constructor, ended by the destructor. Calls on one search
// must come from one thread.
#include "sceneward/foundation/zstring.h"
#include "sceneward/scene/entities/zdb_en_segment.h"

class ZDbSegmentSearch {
 public:
  // Searches `spec` from the open segment.
  explicit ZDbSegmentSearch(ZString const& spec);
  // Searches `spec` from `start`, opened and closed around the begin; from
  // the open segment if `start` is invalid.
  ZDbSegmentSearch(ZDbEnSegment const& start, ZString const& spec);
  // Ends the search.
  ~ZDbSegmentSearch();
  // Each search ends exactly one bracket.
  ZDbSegmentSearch(ZDbSegmentSearch const&) = delete;
  ZDbSegmentSearch& operator=(ZDbSegmentSearch const&) = delete;

  // The size of the whole result, however much has been fetched.
  int Count() const;
  // The next segment found, by its path; an invalid segment past the end.
  ZDbEnSegment FindNext();
};
