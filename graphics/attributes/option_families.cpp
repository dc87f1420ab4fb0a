// The vocabulary of every option-list family, with the engine's defaults.
#include "attributes/option_family.h"

namespace graphics {

namespace {

using V = OptionValue;

// Visibility and selectability share their types.
constexpr std::string_view kGeometryTypes[] = {
    "faces", "edges", "lines", "markers", "vertices", "text", "images", "cutting planes", "lights",
    "string cursors", "cut faces", "cut edges"};
constexpr std::string_view kEverything[] = {
    "windows", "faces", "edges", "lines", "markers", "vertices", "text", "images", "cutting planes", "lights",
    "string cursors", "cut faces", "cut edges", "shadows"};
constexpr std::string_view kPolygons[] = {"faces", "edges"};
constexpr std::string_view kPolylines[] = {"lines"};
constexpr std::string_view kCutGeometry[] = {"cut faces", "cut edges"};

constexpr OptionGroup kTypeGroups[] = {
    {"everything", kEverything},
    {"geometry", kGeometryTypes},
    {"polygons", kPolygons},
    {"polylines", kPolylines, false},
    {"cut geometry", kCutGeometry},
};

template <V Rule>
struct TypeOptions {
  static constexpr OptionSpec kOptions[] = {
      {"windows", Rule},  {"faces", Rule},          {"edges", Rule},     {"lines", Rule},
      {"markers", Rule},  {"vertices", Rule},       {"text", Rule},      {"images", Rule},
      {"cutting planes", Rule}, {"lights", Rule},   {"string cursors", Rule}, {"cut faces", Rule},
      {"cut edges", Rule}, {"shadows", Rule}};
};

constexpr OptionDefault kVisibilityDefaults[] = {
    {"windows", "on"}, {"faces", "on"},  {"edges", "on"},          {"lines", "on"},         {"markers", "on"},
    {"vertices", "off"}, {"text", "on"}, {"images", "on"},         {"cutting planes", "on"}, {"lights", "on"},
    {"string cursors", "on"}, {"cut faces", "on"}, {"cut edges", "on"}, {"shadows", "off"}};

constexpr OptionDefault kSelectabilityDefaults[] = {
    {"windows", "v"}, {"faces", "off"},  {"edges", "off"}, {"lines", "off"}, {"markers", "off"},
    {"vertices", "off"}, {"text", "off"}, {"images", "off"}, {"cutting planes", "off"}, {"lights", "off"},
    {"string cursors", "off"}, {"cut faces", "off"}, {"cut edges", "off"}, {"shadows", "off"}};

constexpr OptionSpec kHeuristics[] = {
    {"backplane cull", V::kSwitch},        {"clipping", V::kSwitch},
    {"concave polygons", V::kSwitch},      {"culling", V::kWord},
    {"detail selection", V::kSwitch},      {"exclude bounding", V::kSwitch},
    {"hidden surfaces", V::kSwitch},       {"incremental updates", V::kSwitch},
    {"internal selection limit", V::kNumber}, {"intersecting polygons", V::kSwitch},
    {"model type", V::kWord},              {"ordered drawing", V::kSwitch},
    {"partial erase", V::kSwitch},         {"polygon handedness", V::kWord},
    {"quick moves", V::kWord},             {"related selection limit", V::kNumber},
    {"selection bias", V::kWord},          {"selection culling", V::kWord},
    {"selection level", V::kWord},         {"selection sorting", V::kSwitch},
    {"static model", V::kSwitch},          {"transformations", V::kSwitch},
    {"visual selection", V::kSwitch}};

constexpr OptionDefault kHeuristicsDefaults[] = {
    {"internal selection limit", "10"},
    {"related selection limit", "0"},
    {"selection level", "entity"},
    {"selection sorting", "on"}};

constexpr OptionSpec kRenderingOptions[] = {
    {"ambient up vector", V::kWord},         {"anti-alias", V::kWord},
    {"atmospheric attenuation", V::kWord},   {"attribute lock", V::kLockList},
    {"color index interpolation", V::kWord}, {"color interpolation", V::kWord},
    {"cut geometry options", V::kWord},      {"debug", V::kWord},
    {"depth range", V::kWord},               {"display lists", V::kWord},
    {"face displacement", V::kNumber},       {"force grayscale", V::kSwitch},
    {"general displacement", V::kNumber},    {"geometry options", V::kWord},
    {"hidden line removal options", V::kWord}, {"hidden surface removal algorithm", V::kWord},
    {"hidden surface removal options", V::kWord}, {"ignore subsegment locks", V::kLockList},
    {"image scale", V::kWord},               {"image tint", V::kWord},
    {"isoline options", V::kWord},           {"level of detail", V::kSwitch},
    {"level of detail options", V::kWord},   {"lighting", V::kSwitch},
    {"lighting interpolation", V::kWord},    {"local cutting planes", V::kSwitch},
    {"local viewer", V::kSwitch},            {"mask transform", V::kWord},
    {"nurbs curve", V::kWord},               {"nurbs surface", V::kWord},
    {"perspective correction", V::kSwitch},  {"quantization", V::kWord},
    {"screen range", V::kWord},              {"shadow map", V::kWord},
    {"simple reflection", V::kWord},         {"simple shadow", V::kWord},
    {"stereo", V::kSwitch},                  {"stereo separation", V::kNumber},
    {"technology", V::kWord},                {"tessellation", V::kWord},
    {"texture interpolation", V::kWord},     {"transparency", V::kWord},
    {"vertex decimation", V::kNumber},       {"vertex displacement", V::kNumber}};

// "hsra" is the published short name of the hidden surface algorithm.
constexpr std::string_view kHsraMembers[] = {"hidden surface removal algorithm"};
constexpr OptionGroup kRenderingAliases[] = {{"hsra", kHsraMembers, false}};

constexpr OptionSpec kDriverOptions[] = {
    {"anti-alias", V::kWord},            {"backing store", V::kSwitch},
    {"border", V::kSwitch},              {"color consolidation", V::kWord},
    {"control area", V::kSwitch},        {"debug", V::kWord},
    {"disable input", V::kWord},         {"display interrupted update", V::kWord},
    {"double-buffering", V::kWord},      {"draw degenerate lines", V::kSwitch},
    {"exit update", V::kText},           {"exit update data", V::kText},
    {"first color", V::kNumber},         {"fixed colors", V::kWord},
    {"force black-and-white", V::kSwitch}, {"force gray scale", V::kSwitch},
    {"fullscreen", V::kSwitch},          {"gamma correction", V::kSwitch},
    {"gpu preference", V::kWord},        {"hardcopy resolution", V::kNumber},
    {"isolated", V::kSwitch},            {"landscape orientation", V::kSwitch},
    {"light scaling", V::kNumber},       {"locater transform", V::kWord},
    {"marker drawing", V::kWord},        {"number of colors", V::kNumber},
    {"output format", V::kWord},         {"pen speed", V::kNumber},
    {"physical size", V::kWord},         {"quick moves preference", V::kWord},
    {"selection proximity", V::kNumber}, {"shadow preference", V::kWord},
    {"special events", V::kSwitch},      {"stencil", V::kSwitch},
    {"stereo", V::kSwitch},              {"subscreen", V::kWord},
    {"subscreen moving", V::kSwitch},    {"subscreen resizing", V::kSwitch},
    {"subscreen stretching", V::kSwitch}, {"text preference", V::kWord},
    {"title", V::kText},                 {"update interrupts", V::kSwitch},
    {"use colormap id", V::kText},       {"use window id", V::kText},
    {"use window id2", V::kText},        {"window opacity", V::kNumber},
    {"write mask", V::kNumber}};

constexpr OptionDefault kDriverDefaults[] = {{"selection proximity", "0.3"}};

constexpr OptionSpec kTextFont[] = {
    {"name", V::kText},          {"size", V::kNumber},         {"size tolerance", V::kNumber},
    {"transforms", V::kWord},    {"rotation", V::kWord},       {"slant", V::kNumber},
    {"width scale", V::kNumber}, {"extra space", V::kNumber},  {"line spacing", V::kNumber},
    {"greeking limit", V::kNumber}, {"greeking mode", V::kWord}, {"renderer", V::kWord},
    {"preference", V::kWord},    {"background", V::kWord},     {"bold", V::kSwitch},
    {"italic", V::kSwitch},      {"underline", V::kSwitch},    {"strikethrough", V::kSwitch},
    {"overline", V::kSwitch},    {"uniform spacing", V::kSwitch}, {"layout", V::kWord}};

constexpr OptionDefault kTextFontDefaults[] = {{"name", "sans serif"}, {"size", "0.03 sru"}};

constexpr OptionSpec kCallbackPoints[] = {
    {"draw segment", V::kText},          {"draw segment tree", V::kText},   {"draw window", V::kText},
    {"draw window frame", V::kText},     {"draw geometry", V::kText},       {"draw text", V::kText},
    {"draw 3d text", V::kText},          {"draw dc polyline", V::kText},    {"draw 3d polyline", V::kText},
    {"draw dc polygon", V::kText},       {"draw 3d polygon", V::kText},     {"draw 3d marker", V::kText},
    {"draw dc marker", V::kText},        {"draw 3d geometry", V::kText},    {"draw 3d shell", V::kText},
    {"draw 3d mesh", V::kText},          {"draw 3d image", V::kText},       {"draw dc image", V::kText},
    {"draw dc face", V::kText},          {"draw dc edge", V::kText},        {"draw dc line", V::kText},
    {"select", V::kText}};

// Options of geometry items; only lights take one so far.
constexpr OptionSpec kGeometryOptions[] = {{"camera relative", V::kSwitch}};

constexpr OptionFamily kFamilies[] = {
    {AttributeKind::kVisibility, "visibility", TypeOptions<V::kSwitch>::kOptions, V::kSwitch, kTypeGroups,
     "everything", kVisibilityDefaults},
    {AttributeKind::kSelectability, "selectability", TypeOptions<V::kSelectActions>::kOptions, V::kSwitch,
     kTypeGroups, "everything", kSelectabilityDefaults},
    {AttributeKind::kHeuristics, "heuristics", kHeuristics, V::kSwitch, {}, {}, kHeuristicsDefaults},
    {AttributeKind::kRenderingOptions, "rendering options", kRenderingOptions, V::kSwitch, kRenderingAliases, {}, {}},
    {AttributeKind::kDriverOptions, "driver options", kDriverOptions, V::kSwitch, {}, {}, kDriverDefaults},
    {AttributeKind::kTextFont, "text font", kTextFont, V::kSwitch, {}, {}, kTextFontDefaults},
    {AttributeKind::kConditions, "conditions", {}, V::kSwitch, {}, {}, {}},
    {AttributeKind::kCallbacks, "callback", kCallbackPoints, V::kText, {}, {}, {}},
    {AttributeKind::kGeometryOptions, "geometry options", kGeometryOptions, V::kSwitch, {}, {}, {}},
};

}  // namespace

const OptionFamily* FamilyOf(AttributeKind kind) {
  for (const OptionFamily& family : kFamilies) {
    if (family.kind == kind) return &family;
  }
  return nullptr;
}

}  // namespace graphics
