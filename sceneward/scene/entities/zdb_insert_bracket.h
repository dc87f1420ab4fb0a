#pragma once
// The bracket around every insertion of a new database object: the parent
// segment is opened by key, the object inserted, and the segment closed
// again, so that the library's current segment is the same before and after.
#include <functional>

class ZDbEnSegment;

// Runs `insert` between HC_Open_Segment_By_Key on `parent` and
// HC_Close_Segment, on the calling thread's manager. On an invalid `parent`
// nothing happens: no graphics call, and `insert` doesn't run. `insert`
// makes the one insert call and takes its key; should it throw, the segment
// stays open.
void InsertIntoSegment(ZDbEnSegment const& parent, std::function<void()> const& insert);
