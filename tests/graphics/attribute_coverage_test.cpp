// The attribute, camera, matrix, colour, texture, text-measurement,
// coordinate, curve, shell and utility functions must all be real: any of them still answering "not
// available" is listed.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "graphics/api/function_status.h"

namespace {

// Name fragments of the functions this part of the engine provides.
constexpr std::string_view kFamilies[] = {
    "Visibility",    "Selectability",  "Heuristic",      "Rendering_Opti", "Driver_Option", "Condition",
    "Callback",      "Text_Font",      "Text_Alignment", "Text_Path",      "Text_Spacing",  "Line_Weight",
    "Edge_Weight",   "Marker_Size",    "Line_Pattern",   "Edge_Pattern",   "Marker_Symbol", "Handedness",
    "Window",        "User_Option",    "User_Opt",       "Unicode",        "Uni_Opt",       "User_Ind",
    "User_Value",    "Modelling_Matrix", "Texture_Matrix", "_Object",      "Rotate_Texture", "Translate_Texture",
    "Scale_Texture", "Camera",         "Color",          "Texture",        "Line_Style",    "Highlight",
    "Text_Extent",   "Text_Outline",   "Parse_String",   "Show_Time",      "Memory_Usage",  "Device_Info",
    "Normal",        "Geometry_Option", "Set_Parameter", "Compute_Coordinates", "Compute_Transform",
    "Polyline_From_Curve", "Pline_From_Crv", "Optimized_Shell"};

bool BelongsHere(std::string_view name) {
  if (!name.starts_with("HC_")) return false;
  // Colours of shell and mesh vertices and faces belong to the geometry.
  if (name.starts_with("HC_MSet_") || name.starts_with("HC_MUnSet_") || name.starts_with("HC_MShow_")) return false;
  return std::any_of(std::begin(kFamilies), std::end(kFamilies),
                     [&](std::string_view fragment) { return name.find(fragment) != std::string_view::npos; });
}

TEST(AttributeCoverage, NoAttributeFunctionIsStillUnavailable) {
  std::vector<std::string> missing;
  for (const graphics::FunctionState& function : graphics::FunctionStatus()) {
    if (BelongsHere(function.name) && !function.implemented) missing.emplace_back(function.name);
  }
  EXPECT_TRUE(missing.empty()) << ::testing::PrintToString(missing);
}

}  // namespace
