#pragma once
// Attribute locks as one segment holds them in its rendering options:
// "attribute lock" makes the segment's net value of each named attribute
// apply to everything below it; "ignore subsegment locks" keeps a lower
// segment's lock of the same attribute from taking over.
#include <string_view>

#include "attributes/attribute_kind.h"
#include "database/segment.h"

namespace graphics {

// Whether `segment` locks option `option` of `kind` ("" for the attribute as
// a whole). A type-specific entry beats "everything"; a lock with a list of
// geometry types ("color=(faces)") covers only those options.
bool LocksAttribute(const Segment& segment, AttributeKind kind, std::string_view option);
// The same for the segment's "ignore subsegment locks".
bool IgnoresSubsegmentLocks(const Segment& segment, AttributeKind kind, std::string_view option);

}  // namespace graphics
