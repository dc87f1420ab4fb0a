// The colours of the current segment or open geometry; colour maps and colour map, their net values along key
// paths, and colour conversion.
#include <algorithm>
#include <string>

#include "api/arguments.h"
#include "api/attribute_target.h"
#include "api/call.h"
#include "api/net_path.h"
#include "attributes/color.h"
#include "attributes/textures.h"
#include "hc/hc.h"
#include "strings/text.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;
using api::Write;
using api::WriteString;

namespace {

TextureLookup TexturesSeenFrom(const Segment* segment) {
  return [segment](std::string_view name) { return TextureVisible(segment, name); };
}

const ColorSettings* LocalColors(Session& session) {
  const AttributeStore* store = api::StoreToRead(session);
  return store ? store->Find<ColorSettings>() : nullptr;
}

// Applies `change(ColorSettings&, const Segment*)` to a copy of the local
// colours and keeps it only when it succeeds.
template <typename Change>
void ChangeColors(const char* routine, Change&& change) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    const api::AttributeTarget target = api::TargetToChange(session);
    const ColorSettings* local = target.store ? target.store->Find<ColorSettings>() : nullptr;
    ColorSettings changed = local ? *local : ColorSettings();
    Status status = change(changed, target.segment);
    if (!status.ok() || target.store == nullptr) return status;
    if (changed.empty()) {
      target.store->Remove(ColorSettings::kKind);
    } else {
      target.store->Set(std::move(changed));
    }
    return Done{};
  });
}

Result<ColorTriple> ToRgbArguments(const char* space, ColorTriple values) {
  auto required = api::Require(space, "colour space");
  if (!required.ok()) return required.error();
  const auto which = FindColorSpace(space);
  if (!which) return Error(errc::kUnknownOption, "unrecognised colour space '" + std::string(space) + "'");
  const auto rgb = ToRgb(*which, values);
  if (!rgb) return Error(errc::kOutOfRange, "colour values out of range for " + std::string(space));
  return *rgb;
}

void WriteRgb(char* space, float* a, float* b, float* c, const ColorTriple& rgb) {
  WriteString(space, "RGB");
  Write(a, rgb[0]);
  Write(b, rgb[1]);
  Write(c, rgb[2]);
}

// The value of (target, channel) in force along the path, and whether a
// segment on it set it.
struct NetColor {
  const ColorValue* value = nullptr;
};

NetColor NetColorOf(const AttributePath& path, const std::string& target, const std::string& channel) {
  NetColor net;
  path.WalkHeard(AttributeKind::kColor, target, [&](const AttributeStore& store) {
    const auto* local = store.Find<ColorSettings>();
    if (const ColorValue* value = local ? local->Find(target, channel) : nullptr) net.value = value;
  });
  return net;
}

ColorTriple MapEntry(const AttributePath& path, int index) {
  const ColorMap* map = path.NetLocal<ColorMap>();
  const ColorMap fallback;
  const auto& entries = (map ? map : &fallback)->entries;
  if (index < 0 || static_cast<size_t>(index) >= entries.size()) return {0, 0, 0};
  return entries[static_cast<size_t>(index)];
}

Result<std::pair<std::string, std::string>> TargetAndChannel(const char* type, const char* channel) {
  auto required = api::Require(type, "colour type");
  if (!required.ok()) return required.error();
  auto targets = ColorTargets(type);
  if (!targets.ok()) return targets.error();
  std::string which = "diffuse";
  if (channel != nullptr) {
    const auto known = ColorChannel(channel);
    if (!known) return Error(errc::kUnknownOption, "unrecognised colour channel '" + std::string(channel) + "'");
    which = *known;
  }
  return std::make_pair(targets.value().front(), which);
}

// One channel's parts: the colour, the texture name ("" if none) and the
// options ("ignore color" without a colour part, "FIndex" for a map index).
void WriteExplicit(const ColorValue* value, const std::string& target, float* rgb, char* texture, char* options) {
  const ColorTriple fallback = DefaultColor(target);
  std::string texture_name;
  std::string option_words;
  const float* components = fallback.data();
  float index[3] = {0, 0, 0};
  if (value != nullptr) {
    switch (value->kind) {
      case ColorValue::Kind::kRgb:
        components = value->rgb.data();
        break;
      case ColorValue::Kind::kTexture:
        texture_name = value->text;
        option_words = "ignore color";
        components = nullptr;
        break;
      case ColorValue::Kind::kIndex:
        index[0] = value->number;
        components = index;
        option_words = "FIndex";
        break;
      case ColorValue::Kind::kNumber:
        index[0] = index[1] = index[2] = value->number;
        components = index;
        break;
    }
  }
  if (rgb != nullptr && components != nullptr) std::copy(components, components + 3, rgb);
  WriteString(texture, texture_name);
  WriteString(options, option_words);
}

}  // namespace

extern "C" void HC_Set_Color(char const* spec) {
  ChangeColors(__func__, [&](ColorSettings& colors, const Segment* segment) -> Status {
    auto required = api::Require(spec, "colour");
    if (!required.ok()) return required.error();
    return colors.Merge(spec, TexturesSeenFrom(segment));
  });
}

extern "C" void HC_Set_Color_By_Value(char const* types, char const* space, double a, double b, double c) {
  ChangeColors(__func__, [&](ColorSettings& colors, const Segment*) -> Status {
    auto required = api::Require(types, "colour types");
    if (!required.ok()) return required.error();
    auto rgb = ToRgbArguments(space, {static_cast<float>(a), static_cast<float>(b), static_cast<float>(c)});
    if (!rgb.ok()) return rgb.error();
    auto items = ParseOptionList(types);
    if (!items.ok()) return items.error();
    for (const OptionItem& item : items.value()) {
      auto targets = ColorTargets(item.name);
      if (!targets.ok()) return targets.error();
      for (const std::string& target : targets.value()) colors.Put(target, "diffuse", RgbColor(rgb.value()));
    }
    return Done{};
  });
}

extern "C" void HC_Set_Color_By_Index(char const* types, int index) {
  ChangeColors(__func__, [&](ColorSettings& colors, const Segment*) -> Status {
    auto required = api::Require(types, "colour types");
    if (!required.ok()) return required.error();
    if (index < 0) return Error(errc::kOutOfRange, "a colour-map index cannot be negative");
    auto items = ParseOptionList(types);
    if (!items.ok()) return items.error();
    ColorValue value;
    value.kind = ColorValue::Kind::kIndex;
    value.number = static_cast<float>(index);
    value.text = "(index=" + std::to_string(index) + ")";
    for (const OptionItem& item : items.value()) {
      auto targets = ColorTargets(item.name);
      if (!targets.ok()) return targets.error();
      for (const std::string& target : targets.value()) colors.Put(target, "diffuse", value);
    }
    return Done{};
  });
}

extern "C" void HC_Show_Color(char* spec) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    if (session.open_stack().top_is_dead()) return Done{};
    const ColorSettings* local = LocalColors(session);
    if (local == nullptr) return Error(errc::kNotSet, "no colour is set here");
    WriteString(spec, local->Format());
    return Done{};
  });
}

extern "C" void HC_Show_One_Color(char const* type, char* color) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto required = api::Require(type, "colour type");
    if (!required.ok()) return required.error();
    const ColorSettings* local = LocalColors(session);
    auto found = (local ? *local : ColorSettings()).FindOne(type);
    if (!found.ok()) return found.error();
    WriteString(color, found.value().value_or(""));
    return Done{};
  });
}

// The first coloured target in canonical order, with every target of the
// same diffuse colour; a texture or map index there is an error.
extern "C" void HC_Show_Color_By_Value(char* types, char* space, float* a, float* b, float* c) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    const ColorSettings* local = LocalColors(session);
    const ColorSettings::Entry* first = nullptr;
    if (local != nullptr) {
      for (const auto& entry : local->entries()) {
        if (entry.channel == "diffuse") {
          first = &entry;
          break;
        }
      }
    }
    if (first == nullptr) return Error(errc::kNotSet, "no colour is set here");
    if (first->value.kind != ColorValue::Kind::kRgb) {
      return Error(errc::kNotSet, "the colour of " + first->target + " is not a colour value");
    }
    std::string list;
    for (const auto& entry : local->entries()) {
      if (entry.channel == "diffuse" && entry.value.kind == ColorValue::Kind::kRgb &&
          entry.value.rgb == first->value.rgb) {
        list += (list.empty() ? "" : ",") + entry.target;
      }
    }
    WriteString(types, list);
    WriteRgb(space, a, b, c, first->value.rgb);
    return Done{};
  });
}

// Unset, a texture or a map index: outputs untouched, silently.
extern "C" void HC_Show_One_Color_By_Value(char const* type, char* space, float* a, float* b, float* c) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto which = TargetAndChannel(type, nullptr);
    if (!which.ok()) return which.error();
    const ColorSettings* local = LocalColors(session);
    const ColorValue* value = local ? local->Find(which.value().first, "diffuse") : nullptr;
    if (value != nullptr && value->kind == ColorValue::Kind::kRgb) WriteRgb(space, a, b, c, value->rgb);
    return Done{};
  });
}

extern "C" bool HC_PShow_One_Net_Color_By_Value(int count, long long const* keys, char const* type, char* space,
                                                float* a, float* b, float* c) {
  return Run(Access::kRead, __func__, false, [&](Session& session) -> Result<bool> {
    auto which = TargetAndChannel(type, nullptr);
    if (!which.ok()) return which.error();
    auto path = api::NetPath(session, count, keys);
    if (!path.ok()) return path.error();
    const NetColor net = NetColorOf(path.value(), which.value().first, "diffuse");
    ColorTriple rgb = DefaultColor(which.value().first);
    if (net.value != nullptr && net.value->kind == ColorValue::Kind::kRgb) rgb = net.value->rgb;
    if (net.value != nullptr && net.value->kind == ColorValue::Kind::kIndex) {
      rgb = MapEntry(path.value(), static_cast<int>(net.value->number));
    }
    WriteRgb(space, a, b, c, rgb);
    return net.value != nullptr;
  });
}

extern "C" void HC_Show_Explicit_Color(char const* type, char const* channel, float* rgb, char* texture,
                                       char* options) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto which = TargetAndChannel(type, channel);
    if (!which.ok()) return which.error();
    const ColorSettings* local = LocalColors(session);
    WriteExplicit(local ? local->Find(which.value().first, which.value().second) : nullptr, which.value().first, rgb,
                  texture, options);
    return Done{};
  });
}

extern "C" bool HC_PShow_Net_Explicit_Color(int count, long long const* keys, char const* type, char const* channel,
                                            float* rgb, char* texture, char* options) {
  return Run(Access::kRead, __func__, false, [&](Session& session) -> Result<bool> {
    auto which = TargetAndChannel(type, channel);
    if (!which.ok()) return which.error();
    auto path = api::NetPath(session, count, keys);
    if (!path.ok()) return path.error();
    const NetColor net = NetColorOf(path.value(), which.value().first, which.value().second);
    WriteExplicit(net.value, which.value().first, rgb, texture, options);
    return net.value != nullptr;
  });
}

extern "C" void HC_UnSet_Color(void) {
  ChangeColors(__func__, [&](ColorSettings& colors, const Segment*) -> Status {
    colors = ColorSettings();
    return Done{};
  });
}

extern "C" void HC_UnSet_One_Color(char const* which) {
  ChangeColors(__func__, [&](ColorSettings& colors, const Segment*) -> Status {
    auto required = api::Require(which, "colour type");
    if (!required.ok()) return required.error();
    return colors.Remove(which);
  });
}

extern "C" void HC_Set_Color_Map_By_Value(char const* space, int count, float const* values) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = api::Require(values, "colour values");
    if (!required.ok()) return required.error();
    if (count < 0) return Error(errc::kOutOfRange, "a colour map cannot have a negative count");
    ColorMap map;
    map.entries.clear();
    const float* floats = values;
    for (int i = 0; i < count; ++i) {
      auto rgb = ToRgbArguments(space, {floats[3 * i], floats[3 * i + 1], floats[3 * i + 2]});
      if (!rgb.ok()) return rgb.error();
      map.entries.push_back(rgb.value());
    }
    if (Segment* segment = session.SegmentToChange()) segment->MutableAttributes().Set(std::move(map));
    return Done{};
  });
}

// Without a local map the net one is copied first; growing fills black.
extern "C" void HC_Modify_Color_Map_By_Value(int offset, char const* space, int count, float const* values) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = api::Require(values, "colour values");
    if (!required.ok()) return required.error();
    if (count < 0 || offset < 0) return Error(errc::kOutOfRange, "colour map offset and count cannot be negative");
    Segment* segment = session.SegmentToChange();
    if (segment == nullptr) return Done{};
    const ColorMap* net = AttributePath::Of(*segment).NetLocal<ColorMap>();
    ColorMap map = net ? *net : ColorMap();
    const float* floats = values;
    if (map.entries.size() < static_cast<size_t>(offset + count)) {
      map.entries.resize(static_cast<size_t>(offset + count), ColorTriple{0, 0, 0});
    }
    for (int i = 0; i < count; ++i) {
      auto rgb = ToRgbArguments(space, {floats[3 * i], floats[3 * i + 1], floats[3 * i + 2]});
      if (!rgb.ok()) return rgb.error();
      map.entries[static_cast<size_t>(offset + i)] = rgb.value();
    }
    segment->MutableAttributes().Set(std::move(map));
    return Done{};
  });
}

extern "C" void HC_Show_Color_Map_Count(int* count) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    const Segment* segment = session.SegmentToRead();
    const ColorMap* local = segment ? segment->attributes().Find<ColorMap>() : nullptr;
    if (local == nullptr) return Error(errc::kNotSet, "no colour map is set here");
    Write(count, static_cast<int>(local->entries.size()));
    return Done{};
  });
}

extern "C" void HC_Show_Color_Map_By_Value(char* space, int* count, float* values) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    const Segment* segment = session.SegmentToRead();
    const ColorMap* local = segment ? segment->attributes().Find<ColorMap>() : nullptr;
    if (local == nullptr) return Error(errc::kNotSet, "no colour map is set here");
    WriteString(space, "RGB");
    Write(count, static_cast<int>(local->entries.size()));
    if (float* out = values) {
      for (const ColorTriple& rgb : local->entries) out = std::copy(rgb.begin(), rgb.end(), out);
    }
    return Done{};
  });
}

// An unknown space is an error; values out of range only answer false.
extern "C" bool HC_Compute_Color_By_Value(char const* in_space, void const* in_value, char const* out_space,
                                          void* out_value) {
  return Run(Access::kRead, __func__, false, [&](Session&) -> Result<bool> {
    for (const void* p : {static_cast<const void*>(in_space), in_value, static_cast<const void*>(out_space),
                          static_cast<const void*>(out_value)}) {
      auto required = api::Require(p, "colour argument");
      if (!required.ok()) return required.error();
    }
    const auto from = FindColorSpace(in_space);
    const auto to = FindColorSpace(out_space);
    if (!from || !to) return Error(errc::kUnknownOption, "unrecognised colour space");
    const auto* in = static_cast<const float*>(in_value);
    const auto rgb = ToRgb(*from, {in[0], in[1], in[2]});
    if (!rgb) return false;
    const ColorTriple out = FromRgb(*to, *rgb);
    std::copy(out.begin(), out.end(), static_cast<float*>(out_value));
    return true;
  });
}

// A colour name or primitive in `out_space`. An unknown space is an error;
// a text that is no colour only answers false.
extern "C" bool HC_Compute_Color(char const* name, char const* out_space, void* out_value) {
  return Run(Access::kRead, __func__, false, [&](Session&) -> Result<bool> {
    for (const void* p :
         {static_cast<const void*>(name), static_cast<const void*>(out_space), static_cast<const void*>(out_value)}) {
      auto required = api::Require(p, "colour argument");
      if (!required.ok()) return required.error();
    }
    const auto to = FindColorSpace(out_space);
    if (!to) return Error(errc::kUnknownOption, "unrecognised colour space '" + std::string(out_space) + "'");
    auto color = ParseColor(name, nullptr);
    if (!color.ok()) return false;
    const ColorTriple out = FromRgb(*to, color.value().rgb);
    std::copy(out.begin(), out.end(), static_cast<float*>(out_value));
    return true;
  });
}
