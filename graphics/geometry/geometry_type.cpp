#include "geometry/geometry_type.h"

#include <array>
#include <utility>

#include "strings/text.h"

namespace graphics {

namespace {

constexpr std::array<std::pair<GeometryType, std::string_view>, 26> kWords{{
    {GeometryType::kAreaLight, "area light"},
    {GeometryType::kCircle, "circle"},
    {GeometryType::kCircularArc, "circular arc"},
    {GeometryType::kCircularChord, "circular chord"},
    {GeometryType::kCircularWedge, "circular wedge"},
    {GeometryType::kCuttingPlane, "cutting plane"},
    {GeometryType::kCylinder, "cylinder"},
    {GeometryType::kDistantLight, "distant light"},
    {GeometryType::kEllipse, "ellipse"},
    {GeometryType::kEllipticalArc, "elliptical arc"},
    {GeometryType::kGrid, "grid"},
    {GeometryType::kImage, "image"},
    {GeometryType::kLine, "line"},
    {GeometryType::kLocalLight, "local light"},
    {GeometryType::kMarker, "marker"},
    {GeometryType::kMesh, "mesh"},
    {GeometryType::kNurbsCurve, "nurbs curve"},
    {GeometryType::kNurbsSurface, "nurbs surface"},
    {GeometryType::kPolyCylinder, "polycylinder"},
    {GeometryType::kPolygon, "polygon"},
    {GeometryType::kPolyline, "polyline"},
    {GeometryType::kReference, "reference"},
    {GeometryType::kShell, "shell"},
    {GeometryType::kSphere, "sphere"},
    {GeometryType::kSpotLight, "spot light"},
    {GeometryType::kText, "text"},
}};

}  // namespace

std::string_view GeometryTypeWord(GeometryType type) {
  for (const auto& [t, word] : kWords) {
    if (t == type) return word;
  }
  return "";
}

std::optional<GeometryType> FindGeometryType(std::string_view word) {
  const std::string normal = NormalizeWord(word);
  for (const auto& [type, w] : kWords) {
    if (w == normal) return type;
  }
  return std::nullopt;
}

}  // namespace graphics
