// Feeds arbitrary text to every parser of option strings: the generic list
// grammar, each option family, colours, texture definitions and the values
// of single-value attributes. Each must answer with a value or an error,
// never crash, hang or read out of bounds.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "attributes/color.h"
#include "attributes/option_family.h"
#include "attributes/textures.h"
#include "attributes/value_rules.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace graphics;
  // Option strings arrive through the C interface, so they end at the
  // first NUL.
  std::string_view text(reinterpret_cast<const char*>(data), size);
  text = text.substr(0, text.find('\0'));
  static_cast<void>(ParseOptionList(text));
  for (AttributeKind kind : {AttributeKind::kVisibility, AttributeKind::kSelectability, AttributeKind::kHeuristics,
                             AttributeKind::kRenderingOptions, AttributeKind::kDriverOptions, AttributeKind::kTextFont,
                             AttributeKind::kConditions, AttributeKind::kCallbacks, AttributeKind::kGeometryOptions}) {
    OptionSettings settings;
    if (settings.Merge(*FamilyOf(kind), text).ok()) {
      // What is shown must read back and show the same. (The stored forms
      // may differ where two spellings mean one thing: "(color,)" is shown
      // as "color".)
      const std::string shown = settings.Format(*FamilyOf(kind));
      OptionSettings again;
      if (!again.Merge(*FamilyOf(kind), shown).ok() || again.Format(*FamilyOf(kind)) != shown) __builtin_trap();
    }
    static_cast<void>(settings.Remove(*FamilyOf(kind), text));
  }
  ColorSettings colors;
  static_cast<void>(colors.Merge(text, [](std::string_view name) { return name == "tex"; }));
  static_cast<void>(colors.Format());
  static_cast<void>(ParseTextureDefinition(text));
  static_cast<void>(ParseMeasure(text));
  static_cast<void>(ParseTextAlignment(text));
  static_cast<void>(ParseWindowFrame(text));
  return 0;
}
