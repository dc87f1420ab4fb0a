#pragma once
// The attributes that hold one value each (weights, patterns, symbols,
// handedness, text alignment, path and spacing, window, texture matrix) and
// the option-list families, as value types of the attribute store. A new
// value replaces the old one whole.
#include <string>

#include "attributes/attribute_kind.h"
#include "attributes/option_family.h"
#include "math/matrix.h"
#include "math/point.h"

namespace graphics {

template <AttributeKind K, typename V>
struct ValueAttribute {
  static constexpr AttributeKind kKind = K;
  V value;
  bool operator==(const ValueAttribute&) const = default;
};

// A size or weight: a plain factor (no unit) or a number with a unit word
// ("2 pixels", "0.01 oru").
struct Measure {
  float value = 1;
  std::string unit;
  bool operator==(const Measure&) const = default;
};

// Window extent inside the owner's window, each side in -1..+1.
struct WindowExtent {
  float left = -1, right = 1, bottom = -1, top = 1;
  bool operator==(const WindowExtent&) const = default;
};

using Visibility = OptionAttribute<AttributeKind::kVisibility>;
using Selectability = OptionAttribute<AttributeKind::kSelectability>;
using Heuristics = OptionAttribute<AttributeKind::kHeuristics>;
using RenderingOptions = OptionAttribute<AttributeKind::kRenderingOptions>;
using DriverOptions = OptionAttribute<AttributeKind::kDriverOptions>;
using TextFont = OptionAttribute<AttributeKind::kTextFont>;
using Conditions = OptionAttribute<AttributeKind::kConditions>;
using Callbacks = OptionAttribute<AttributeKind::kCallbacks>;
using GeometryOptions = OptionAttribute<AttributeKind::kGeometryOptions>;

using LineWeight = ValueAttribute<AttributeKind::kLineWeight, Measure>;
using EdgeWeight = ValueAttribute<AttributeKind::kEdgeWeight, Measure>;
using MarkerSize = ValueAttribute<AttributeKind::kMarkerSize, Measure>;
using LinePattern = ValueAttribute<AttributeKind::kLinePattern, std::string>;
using EdgePattern = ValueAttribute<AttributeKind::kEdgePattern, std::string>;
using MarkerSymbol = ValueAttribute<AttributeKind::kMarkerSymbol, std::string>;
using Handedness = ValueAttribute<AttributeKind::kHandedness, std::string>;
using TextAlignment = ValueAttribute<AttributeKind::kTextAlignment, std::string>;
using WindowFrame = ValueAttribute<AttributeKind::kWindowFrame, std::string>;
using WindowPattern = ValueAttribute<AttributeKind::kWindowPattern, std::string>;
using TextPath = ValueAttribute<AttributeKind::kTextPath, Point>;
using TextSpacing = ValueAttribute<AttributeKind::kTextSpacing, float>;
using Window = ValueAttribute<AttributeKind::kWindow, WindowExtent>;
using TextureMatrix = ValueAttribute<AttributeKind::kTextureMatrix, Matrix>;
using Normal = ValueAttribute<AttributeKind::kNormal, Point>;

}  // namespace graphics
