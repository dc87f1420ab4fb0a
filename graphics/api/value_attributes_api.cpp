// The single-value attributes of the current segment: weights, sizes,
// patterns, marker symbol, handedness, text alignment, path and spacing,
// window, window frame and pattern.
#include <string>

#include "api/arguments.h"
#include "api/local_value_calls.h"
#include "api/net_path.h"
#include "attributes/value_rules.h"
#include "hc/hc.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::SetLocal;
using api::ShowLocal;
using api::UnSetLocal;
using api::WriteString;

namespace {

// The text argument of a set call, which must not be null.
template <typename Parse>
auto Checked(const char* text, Parse parse) -> decltype(parse(std::string_view())) {
  auto required = api::Require(text, "value");
  if (!required.ok()) return required.error();
  return parse(text);
}

void WriteMeasure(float* out, const Measure& measure) { api::Write(out, measure.value); }

}  // namespace

extern "C" void HC_Set_Line_Weight(double weight) {
  SetLocal<LineWeight>(__func__, [&] { return PlainMeasure(weight, "a line weight"); });
}
extern "C" void HC_Set_Variable_Line_Weight(char const* weight) {
  SetLocal<LineWeight>(__func__, [&] { return Checked(weight, ParseMeasure); });
}
extern "C" void HC_Show_Line_Weight(float* weight) {
  ShowLocal<LineWeight>(__func__, [&](const Measure& m) { WriteMeasure(weight, m); });
}
extern "C" void HC_UnSet_Line_Weight(void) { UnSetLocal<LineWeight>(__func__); }

extern "C" void HC_Set_Edge_Weight(double weight) {
  SetLocal<EdgeWeight>(__func__, [&] { return PlainMeasure(weight, "an edge weight"); });
}
extern "C" void HC_Set_Variable_Edge_Weight(char const* weight) {
  SetLocal<EdgeWeight>(__func__, [&] { return Checked(weight, ParseMeasure); });
}
extern "C" void HC_Show_Edge_Weight(float* weight) {
  ShowLocal<EdgeWeight>(__func__, [&](const Measure& m) { WriteMeasure(weight, m); });
}
extern "C" void HC_UnSet_Edge_Weight(void) { UnSetLocal<EdgeWeight>(__func__); }

extern "C" void HC_Set_Marker_Size(double size) {
  SetLocal<MarkerSize>(__func__, [&] { return PlainMeasure(size, "a marker size"); });
}
extern "C" void HC_Set_Variable_Marker_Size(char const* size) {
  SetLocal<MarkerSize>(__func__, [&] { return Checked(size, ParseMeasure); });
}
extern "C" void HC_Show_Marker_Size(float* size) {
  ShowLocal<MarkerSize>(__func__, [&](const Measure& m) { WriteMeasure(size, m); });
}
extern "C" void HC_UnSet_Marker_Size(void) { UnSetLocal<MarkerSize>(__func__); }

extern "C" void HC_Set_Line_Pattern(char const* pattern) {
  SetLocal<LinePattern>(__func__, [&] { return Checked(pattern, ParseLinePattern); });
}
extern "C" void HC_Show_Line_Pattern(char* pattern) {
  ShowLocal<LinePattern>(__func__, [&](const std::string& p) { WriteString(pattern, p); });
}
extern "C" void HC_UnSet_Line_Pattern(void) { UnSetLocal<LinePattern>(__func__); }

extern "C" void HC_Set_Edge_Pattern(char const* pattern) {
  SetLocal<EdgePattern>(__func__, [&] { return Checked(pattern, ParseLinePattern); });
}
extern "C" void HC_Show_Edge_Pattern(char* pattern) {
  ShowLocal<EdgePattern>(__func__, [&](const std::string& p) { WriteString(pattern, p); });
}
extern "C" void HC_UnSet_Edge_Pattern(void) { UnSetLocal<EdgePattern>(__func__); }

extern "C" void HC_Set_Marker_Symbol(char const* symbol) {
  SetLocal<MarkerSymbol>(__func__, [&] { return Checked(symbol, ParseMarkerSymbol); });
}
extern "C" void HC_Show_Marker_Symbol(char* symbol) {
  ShowLocal<MarkerSymbol>(__func__, [&](const std::string& s) { WriteString(symbol, s); });
}

extern "C" void HC_Set_Handedness(char const* value) {
  SetLocal<Handedness>(__func__, [&] { return Checked(value, ParseHandedness); });
}
extern "C" void HC_Show_Handedness(char* value) {
  ShowLocal<Handedness>(__func__, [&](const std::string& h) { WriteString(value, h); });
}

extern "C" void HC_Set_Text_Alignment(char const* locater) {
  SetLocal<TextAlignment>(__func__, [&] { return Checked(locater, ParseTextAlignment); });
}
extern "C" void HC_Show_Text_Alignment(char* locater) {
  ShowLocal<TextAlignment>(__func__, [&](const std::string& a) { WriteString(locater, a); });
}
extern "C" void HC_UnSet_Text_Alignment(void) { UnSetLocal<TextAlignment>(__func__); }

// Net alignment never complains: without a setting on the path it is the
// default, centred.
extern "C" void HC_PShow_Net_Text_Alignment(int count, long long const* keys, char* alignment) {
  api::Run(api::Access::kRead, __func__, [&](Session& session) -> Status {
    auto path = api::NetPath(session, count, keys);
    if (!path.ok()) return path.error();
    const TextAlignment* net = path.value().NetLocal<TextAlignment>();
    WriteString(alignment, net ? net->value : "*");
    return Done{};
  });
}

extern "C" void HC_Set_Text_Path(double x, double y, double z) {
  SetLocal<TextPath>(__func__, [&]() -> Result<Point> {
    auto path = api::ToPoint(x, y, z, "the text path");
    if (path.ok() && path.value() == Point{}) return Error(errc::kOutOfRange, "the text path cannot be zero");
    return path;
  });
}
extern "C" void HC_Show_Text_Path(float* x, float* y, float* z) {
  ShowLocal<TextPath>(__func__, [&](const Point& p) { api::WritePoint(x, y, z, p); });
}

extern "C" void HC_Set_Text_Spacing(double spacing) {
  SetLocal<TextSpacing>(__func__, [&]() -> Result<float> {
    const auto value = static_cast<float>(spacing);
    if (!std::isfinite(value)) return Error(errc::kOutOfRange, "text spacing must be finite");
    return value;
  });
}
extern "C" void HC_Show_Text_Spacing(float* spacing) {
  ShowLocal<TextSpacing>(__func__, [&](float s) { api::Write(spacing, s); });
}

extern "C" void HC_Set_Window(double l, double r, double b, double t) {
  SetLocal<Window>(__func__, [&]() -> Result<WindowExtent> {
    const WindowExtent extent{static_cast<float>(l), static_cast<float>(r), static_cast<float>(b),
                              static_cast<float>(t)};
    const bool finite = std::isfinite(extent.left) && std::isfinite(extent.right) && std::isfinite(extent.bottom) &&
                        std::isfinite(extent.top);
    if (!finite || extent.left >= extent.right || extent.bottom >= extent.top) {
      return Error(errc::kOutOfRange, "a window needs finite sides with left < right and bottom < top");
    }
    return extent;
  });
}
extern "C" bool HC_Show_Window(float* left, float* right, float* bottom, float* top) {
  return ShowLocal<Window>(__func__, [&](const WindowExtent& w) {
    api::Write(left, w.left);
    api::Write(right, w.right);
    api::Write(bottom, w.bottom);
    api::Write(top, w.top);
  });
}
extern "C" void HC_UnSet_Window(void) { UnSetLocal<Window>(__func__); }

extern "C" void HC_Set_Window_Frame(char const* flag) {
  SetLocal<WindowFrame>(__func__, [&] { return Checked(flag, ParseWindowFrame); });
}
extern "C" void HC_Show_Window_Frame(char* flag) {
  ShowLocal<WindowFrame>(__func__, [&](const std::string& f) { WriteString(flag, f); });
}

extern "C" void HC_Set_Window_Pattern(char const* pattern) {
  SetLocal<WindowPattern>(__func__, [&] { return Checked(pattern, ParseWindowPattern); });
}
extern "C" void HC_Show_Window_Pattern(char* pattern) {
  ShowLocal<WindowPattern>(__func__, [&](const std::string& p) { WriteString(pattern, p); });
}
extern "C" void HC_UnSet_Window_Pattern(void) { UnSetLocal<WindowPattern>(__func__); }
