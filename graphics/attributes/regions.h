#pragma once
// Regions given by points: the polygonal clip region of a segment, and the
// text region that fits a segment's texts into two or three points.
#include <string>
#include <string_view>
#include <vector>

#include "attributes/attribute_kind.h"
#include "attributes/value_attributes.h"
#include "errors/error.h"
#include "math/point.h"

namespace graphics {

struct PointRegion {
  std::vector<Point> points;
  std::string options;  // canonical
  bool operator==(const PointRegion&) const = default;
};

using ClipRegion = ValueAttribute<AttributeKind::kClipRegion, PointRegion>;
using TextRegion = ValueAttribute<AttributeKind::kTextRegion, PointRegion>;

// Clip options: a space ("window", default; "world"; "object") and
// "type = clip" (default) or "mask". Canonical: "window,type=clip".
Result<std::string> ParseClipOptions(std::string_view options);
// Text region options: "[no] adjust direction", "alignment = top | center |
// bottom", "fitting = none | spacing | size | auto", "window" or "world",
// "[no] relative coordinates"; shown in that order, only those given.
Result<std::string> ParseTextRegionOptions(std::string_view options);

}  // namespace graphics
