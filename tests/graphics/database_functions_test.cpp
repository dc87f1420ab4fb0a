// The database's part of the interface must be complete: none of these
// functions may still answer "not available".
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>

#include "graphics/api/function_status.h"

namespace {

const std::set<std::string_view> kDatabaseFunctions = {
    // Segments, aliases, keys and existence.
    "HC_Define_Alias", "HC_UnDefine_Alias", "HC_Show_Alias", "HC_Rename_Segment", "HC_Renumber_Key",
    "HC_Copy_Segment", "HC_Flush_Contents", "HC_Flush_Geometry", "HC_Bring_To_Front", "HC_Bring_To_Front_By_Key",
    "HC_Move_By_Key", "HC_Move_Key_By_Key", "HC_Copy_Geometry", "HC_Show_Key_Status", "HC_Show_Existence",
    "HC_Show_Existence_By_Key", "HC_QShow_Existence", "HC_Show_Open_Segment_Count", "HC_Show_Pathname_Expansion",
    "HC_Begin_Open_Segment_Search", "HC_Find_Open_Segment", "HC_End_Open_Segment_Search",
    // Geometry.
    "HC_Insert_Marker", "HC_Show_Marker", "HC_Insert_Polyline", "HC_Show_Polyline", "HC_Show_Polyline_Count",
    "HC_Show_Partial_Polyline", "HC_Edit_Polyline", "HC_Insert_Polygon", "HC_Show_Polygon", "HC_Show_Polygon_Count",
    "HC_Show_Partial_Polygon", "HC_Insert_Circle", "HC_Insert_Circle_By_Radius", "HC_Show_Circle",
    "HC_Insert_Circular_Arc", "HC_Insert_Circular_Chord", "HC_Insert_Circular_Wedge", "HC_Show_Circular_Arc",
    "HC_Show_Circular_Wedge", "HC_DShow_Circular_Arc", "HC_Insert_Ellipse", "HC_Show_Ellipse",
    "HC_Insert_Elliptical_Arc", "HC_Show_Elliptical_Arc", "HC_Insert_NURBS_Curve", "HC_Show_NURBS_Curve",
    "HC_Show_NURBS_Curve_Size", "HC_Insert_PolyCylinder", "HC_Show_PolyCylinder", "HC_Insert_Shell",
    "HC_Show_Shell", "HC_Show_Shell_Size", "HC_Show_Partial_Shell", "HC_Edit_Shell_Points",
    "HC_Insert_Shell_By_Tristrips", "HC_Show_Shell_By_Tristrips", "HC_Show_Shell_By_Tristrips_Size",
    "HC_Insert_Mesh", "HC_Show_Mesh", "HC_Edit_Mesh", "HC_Show_Faces_Count", "HC_Insert_Image", "HC_Show_Image",
    "HC_Show_Image_Size", "HC_Show_Partial_Image", "HC_Edit_Image", "HC_Edit_Image_Options", "HC_Show_Image_Name",
    "HC_Move_Image", "HC_Insert_Text", "HC_Show_Text", "HC_Move_Text", "HC_Insert_Grid", "HC_Show_Grid",
    "HC_Insert_Cutting_Plane", "HC_Insert_Sphere", "HC_Insert_Distant_Light", "HC_Insert_Local_Light",
    "HC_Insert_Spot_Light", "HC_Move_Distant_Light", "HC_Move_Light_Position", "HC_Move_Light_Target",
    "HC_Insert_Ink", "HC_Restart_Ink", "HC_Open_Geometry", "HC_Close_Geometry", "HC_Open_Face", "HC_Close_Face",
    "HC_Open_Edge", "HC_Close_Edge", "HC_Open_Vertex", "HC_Close_Vertex", "HC_Open_Region", "HC_Close_Region",
    "HC_MSet_Vertex_Normals", "HC_MShow_Net_Vertex_Normals", "HC_MSet_Vertex_Parameters",
    "HC_MShow_Vertex_Parameter_Size", "HC_MShow_Vertex_Parameters", "HC_MSet_Face_Colors_By_Value",
    "HC_MSet_Face_Colors_By_FIndex", "HC_MSet_Vertex_Colors_By_Value", "HC_MSet_Vertex_Colors_By_FIndex",
    "HC_MUnSet_Face_Colors", "HC_MUnSet_Vertex_Colors",
    // Searches.
    "HC_Begin_Contents_Search", "HC_Find_Contents", "HC_Show_Contents_Count", "HC_End_Contents_Search",
    "HC_Begin_Segment_Search", "HC_Find_Segment", "HC_Show_Segment_Count", "HC_End_Segment_Search",
    // Includes and styles.
    "HC_Include_Segment", "HC_Include_Segment_By_Key", "HC_Conditional_Include", "HC_Conditional_Include_By_Key",
    "HC_Style_Segment", "HC_Style_Segment_By_Key", "HC_Conditional_Style", "HC_Conditional_Style_By_Key",
    "HC_Show_Include_Segment", "HC_Show_Style_Segment", "HC_Show_Conditional_Include",
    "HC_Show_Conditional_Style",
    // Bounding volumes.
    "HC_Show_Bounding_Cuboid", "HC_Show_Bounding_Cuboid_By_Key", "HC_Show_Bounding_Sphere",
    "HC_Show_Bounding_Sphere_By_Key", "HC_Compute_Circumcuboid", "HC_Compute_Circumcuboid_By_Key",
    "HC_Compute_Circumsphere", "HC_Compute_Circumsphere_By_Key", "HC_Set_Bounding_Sphere",
    "HC_Filter_Circumcuboid", "HC_Filter_Circumcuboid_By_Key",
};

TEST(DatabaseFunctions, NoneIsStillUnavailable) {
  std::set<std::string_view> declared;
  for (const graphics::FunctionState& function : graphics::FunctionStatus()) {
    if (!kDatabaseFunctions.contains(function.name)) continue;
    declared.insert(function.name);
    EXPECT_TRUE(function.implemented) << function.name << " is not available yet";
  }
  for (std::string_view name : kDatabaseFunctions) {
    EXPECT_TRUE(declared.contains(name)) << name << " is not declared";
  }
}

}  // namespace
