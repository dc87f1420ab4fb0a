#pragma once
// The type list of contents searches, flushes and existence tests: a comma
// list of words, later ones overruling earlier ones where they overlap.
//   "everything"; "geometry" (every geometry kind, lights and references
//   included); one geometry word ("polyline", "circular arc"); "light"
//   (every light kind); "segment" (subsegments); "subsegment" (subsegments
//   and includes); "include"; "style"; "attribute" (every local attribute);
//   one attribute's name ("color"), or "name = option" for that attribute
//   when the option is set locally.
// A trailing plural "s" is optional, case and outer blanks do not matter,
// and "no X" takes X away. A blank list means "everything".
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "attributes/attribute_kind.h"
#include "database/segment.h"
#include "errors/error.h"
#include "geometry/geometry_type.h"
#include "search/search_stack.h"

namespace graphics {

class ContentsFilter {
 public:
  // Unknown words are an error.
  static Result<ContentsFilter> Parse(std::string_view list);

  // What of `segment` the filter keeps, in listing order: attributes (in
  // attribute kind order, each with the segment's key), then subsegments,
  // includes, styles and geometry, each in stored order.
  std::vector<SearchResult> Collect(const Segment& segment) const;

  // The keyed items of `segment` the filter keeps, in the same order.
  std::vector<Entity*> KeyedItems(const Segment& segment) const;
  // The local attribute kinds of `segment` the filter keeps.
  std::vector<AttributeKind> Attributes(const Segment& segment) const;
  // The attribute kinds the filter names as a whole ("color", not
  // "color = faces"), net of later "no" words.
  std::vector<AttributeKind> WholeAttributesNamed() const;

  // What a flush takes of one local attribute: all of it when `parts` is
  // empty, else those options ("attribute = option").
  struct AttributeRemoval {
    AttributeKind kind;
    std::vector<std::string> parts;
  };
  // The removals a flush with this filter makes on `segment`, in attribute
  // kind order. Later words overrule earlier ones: a whole attribute named
  // after some of its parts takes it all; "no attribute = option" keeps
  // back a part named before, but not out of a whole attribute.
  std::vector<AttributeRemoval> Removals(const Segment& segment) const;

 private:
  enum class Target { kEverything, kGeometry, kGeometryType, kLight, kSegment, kSubsegment, kInclude, kStyle,
                      kAttributes, kAttribute };

  struct Rule {
    bool keep = true;
    Target target = Target::kEverything;
    GeometryType geometry_type = GeometryType::kLine;
    AttributeKind attribute = AttributeKind::kUserOptions;
    std::string option;  // kAttribute narrowed to one option; empty if not
  };

  static Result<Rule> ParseRule(std::string_view word);
  bool KeepsItem(const Entity& item) const;
  bool KeepsAttribute(const Segment& segment, AttributeKind kind) const;

  std::vector<Rule> rules_;
};

}  // namespace graphics
