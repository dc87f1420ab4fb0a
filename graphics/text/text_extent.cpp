#include "text/text_extent.h"

#include "attributes/camera.h"
#include "attributes/value_rules.h"

namespace graphics {

namespace {

constexpr double kDefaultWidthPixels = 1024;
constexpr double kDefaultHeightPixels = 768;
constexpr double kPixelsPerPoint = 96.0 / 72.0;

struct NetFont {
  FontChoice choice;
  Measure size;
  double line_spacing = 1;
  double spacing = 1;
};

Result<NetFont> FontOf(const AttributePath& path) {
  const OptionFamily& family = *FamilyOf(AttributeKind::kTextFont);
  NetFont font;
  const NetOption name = path.NetOptionValue(family, "name");
  const bool bold = path.NetOptionValue(family, "bold").value == "on";
  const bool italic = path.NetOptionValue(family, "italic").value == "on";
  font.choice = ChooseFont(name.value, bold, italic);
  auto size = ParseMeasure(path.NetOptionValue(family, "size").value);
  if (!size.ok()) return size.error();
  font.size = size.value();
  if (auto line_spacing = ParseNumber(path.NetOptionValue(family, "line spacing").value)) {
    font.line_spacing = *line_spacing;
  }
  if (const auto* spacing = path.NetLocal<TextSpacing>()) font.spacing = spacing->value;
  return font;
}

}  // namespace

Result<TextExtent> ComputeTextExtent(const AttributePath& path, std::u32string_view text) {
  auto font = FontOf(path);
  if (!font.ok()) return font.error();
  auto metrics = FontMetrics::For(font.value().choice);
  if (!metrics.ok()) return metrics.error();

  double width_pixels = kDefaultWidthPixels;
  double height_pixels = kDefaultHeightPixels;
  path.Walk([&](const Segment& segment) {
    if (const auto* window = segment.attributes().Find<Window>()) {
      width_pixels *= (window->value.right - window->value.left) / 2;
      height_pixels *= (window->value.top - window->value.bottom) / 2;
    }
  });

  const Measure& size = font.value().size;
  double size_pixels = size.value * kPixelsPerPoint;  // a bare number is in points
  if (size.unit == "sru") {
    // Screen-relative: a fraction of the outer window, whatever the windows
    // inside it.
    size_pixels = size.value * kDefaultHeightPixels;
  } else if (size.unit == "pixels") {
    size_pixels = size.value;
  } else if (size.unit == "oru" || size.unit == "wru" || size.unit == "wsu") {
    // Object and world sizes go through the camera's field at the target.
    const Camera* camera = path.NetLocal<Camera>();
    size_pixels = size.value / (camera ? camera->state() : Camera().state()).height * height_pixels;
  }
  const TextSize ems = metrics.value()->Measure(text, font.value().spacing, font.value().line_spacing);
  return TextExtent{static_cast<float>(ems.width * size_pixels / width_pixels),
                    static_cast<float>(ems.height * size_pixels / height_pixels)};
}

Result<TextOutline> ComputeTextOutline(const AttributePath& path, std::u32string_view text) {
  auto font = FontOf(path);
  if (!font.ok()) return font.error();
  auto metrics = FontMetrics::For(font.value().choice);
  if (!metrics.ok()) return metrics.error();
  return metrics.value()->Outline(text, font.value().spacing);
}

std::u32string Latin1Characters(std::string_view text) {
  std::u32string characters;
  for (char c : text) characters += static_cast<unsigned char>(c);
  return characters;
}

}  // namespace graphics
