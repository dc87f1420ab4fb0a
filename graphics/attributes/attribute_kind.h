#pragma once
// Every kind of attribute a segment or geometry can hold locally, in the order contents
// listings give them. Each value type of the attribute store names its kind.
#include <string_view>

namespace graphics {

enum class AttributeKind {
  kModellingMatrix,
  kUserOptions,
  kVisibility,
  kSelectability,
  kHeuristics,
  kRenderingOptions,
  kDriverOptions,
  kTextFont,
  kConditions,
  kCallbacks,
  kLineWeight,
  kEdgeWeight,
  kMarkerSize,
  kLinePattern,
  kEdgePattern,
  kMarkerSymbol,
  kHandedness,
  kTextAlignment,
  kWindowFrame,
  kWindowPattern,
  kTextPath,
  kTextSpacing,
  kWindow,
  kTextureMatrix,
  kCamera,
  kUnicodeOptions,
  kUserIndices,
  kUserValue,
  kColor,
  kColorMap,
  kLocalTextures,
  kClipRegion,
  kTextRegion,
  // Held by geometry only: options of a geometry item, and the normal of an
  // open face or edge.
  kGeometryOptions,
  kNormal,
};

// The published name of the attribute ("modelling matrix").
std::string_view AttributeName(AttributeKind kind);

}  // namespace graphics
