#pragma once
// Every kind of geometry the database holds, with the word HC_Show_Key_Type
// gives for it. The list is complete although only some kinds can be
// inserted yet, so words stay in one table as kinds are added.
#include <optional>
#include <string_view>

namespace graphics {

enum class GeometryType {
  kAreaLight,
  kCircle,
  kCircularArc,
  kCircularChord,
  kCircularWedge,
  kCuttingPlane,
  kCylinder,
  kDistantLight,
  kEllipse,
  kEllipticalArc,
  kGrid,
  kImage,
  kLine,
  kLocalLight,
  kMarker,
  kMesh,
  kNurbsCurve,
  kNurbsSurface,
  kPolyCylinder,
  kPolygon,
  kPolyline,
  kReference,
  kShell,
  kSphere,
  kSpotLight,
  kText,
};

std::string_view GeometryTypeWord(GeometryType type);
// The type a word names, compared after normalising case and blanks.
std::optional<GeometryType> FindGeometryType(std::string_view word);

}  // namespace graphics
