#include "sceneward/scene/attributes/zdb_at_color.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>

#include "sceneward/frame/thread_registry.h"

namespace {

// Ends a key path: what lies beyond, the owners included, is left out.
constexpr long long kCutPath = -1;
// 1/255 as the float that the colour's channels are scaled with.
constexpr float kChannelToProportion = 0.003921569f;
// Size of each text buffer of an explicit colour query.
constexpr std::size_t kExplicitTextSize = 4096;

// The graphics library's word for each channel. Filled at load and only
// read afterwards, so every thread may use it.
const std::unordered_map<int, char const*> kChannelNames = {
    {ZDbAtColor::kTransmission, "transmission"},
    {ZDbAtColor::kDiffuseColor, "diffuse color"},
    {ZDbAtColor::kSpecular, "specular"},
};

// Compares the way the query's answer has always been judged: an unordered
// compare (a NaN) counts as equal.
bool EqualOrUnordered(float value, float expected) {
  return std::isnan(value) || value == expected;
}

// Red and blue of -1 mark a channel that the library left unset; the green
// test is deliberately not the same.
bool MarksAbsentChannel(float const* rgb) {
  return EqualOrUnordered(rgb[0], -1.0f) && EqualOrUnordered(rgb[2], -1.0f) &&
         !EqualOrUnordered(rgb[1], 1.0f);
}

}  // namespace

ZDbAtColor ZDbEntity::Color() const { return ZDbAtColor(*this); }

ZDbAtColor::ZDbAtColor(ZDbEntity const& entity)
    : ZDbEntAttribute(kAttributeColor, entity, "color") {}

void ZDbAtColor::Set(ZString const& spec) { SetNonEmpty(&ZelmoSceneward::HC_Set_Color, spec); }

void ZDbAtColor::SetOne(ZString const& name, ZString const& value) {
  SetAnyText(&ZelmoSceneward::HC_Set_Color, name + ZString("=") + value);
}

void ZDbAtColor::SetOne(ZString const& name, ZColor const& color) {
  if (!HasKey()) return;
  auto proportion = [](int channel) {
    return static_cast<double>(static_cast<float>(channel) * kChannelToProportion);
  };
  OpenSegment();
  CurrentManager()->HC_Set_Color_By_Value(name.GetAsMBCS(), "RGB", proportion(color.GetRed()),
                                          proportion(color.GetGreen()),
                                          proportion(color.GetBlue()));
  CloseSegment();
}

void ZDbAtColor::UnSet() { UnSetLocal(&ZelmoSceneward::HC_UnSet_Color); }

void ZDbAtColor::UnSetOne(ZString const& name) {
  UnSetLocal(&ZelmoSceneward::HC_UnSet_One_Color, name);
}

ZString ZDbAtColor::Get() const { return ShowLocal(&ZelmoSceneward::HC_Show_Color); }

ZString ZDbAtColor::GetOne(ZString const& name) const {
  return ShowLocal(&ZelmoSceneward::HC_Show_One_Color, name);
}

void ZDbAtColor::GetByValue(ZString& name, ZColor& color) const {
  if (!IsSetLocally()) return;
  ZString space;
  float red = 0, green = 0, blue = 0;
  OpenSegment();
  CurrentManager()->HC_Show_Color_By_Value(name, space, &red, &green, &blue);
  CloseSegment();
  // The values are taken as red, green and blue whatever space they are in.
  color.SetColorProp(red, green, blue, 1.0f);
}

ZColor ZDbAtColor::GetOneByValue(ZString const& name) const {
  float red = 0, green = 0, blue = 0;
  if (IsSetLocally()) {
    ZString space;
    OpenSegment();
    CurrentManager()->HC_Show_One_Color_By_Value(name.GetAsMBCS(), space, &red, &green, &blue);
    CloseSegment();
  }
  ZColor color;
  color.SetColorProp(red, green, blue, 1.0f);
  return color;
}

ZColor ZDbAtColor::GetOneNetByValue(ZString const& name, bool withAlpha,
                                    ZColor const& fallback) const {
  return GetOneNetByValue(name, false, withAlpha, fallback);
}

ZColor ZDbAtColor::GetOneNetByValue(ZString const& name, bool walkUp, bool withAlpha,
                                    ZColor const& fallback) const {
  if (!IsAttributeSet(walkUp, ZString())) return fallback;
  // Without the walk, the closing -1 cuts the path at this entity so that
  // what its owners hold is left out.
  std::vector<long long> keys;
  if (!walkUp) keys = {GetKey(), kCutPath};
  return CommonGetOneNetByValue(name, keys, withAlpha, fallback);
}

ZColor ZDbAtColor::GetOneNetByValue(ZString const& name, std::vector<ZDbEntity> const& path,
                                    bool withAlpha, ZColor const& fallback) const {
  if (!HasKey()) return fallback;
  std::vector<long long> keys;
  for (ZDbEntity const& entity : path) {
    ColorInfo info;
    if (ZDbAtColor(entity).FindSpecific(name, kDiffuseColor, info)) keys.push_back(entity.GetID());
  }
  if (keys.empty()) return fallback;
  return CommonGetOneNetByValue(name, keys, withAlpha, fallback);
}

bool ZDbAtColor::FindSpecific(ZString const& name, Type type, ColorInfo& info) const {
  if (!IsSetLocally()) return false;
  // The key path says where to look, so no segment is opened.
  return GetColorInfo({GetKey()}, name, type, info);
}

bool ZDbAtColor::GetColorInfo(std::vector<long long> keys, ZString const& name, Type type,
                              ColorInfo& info) const {
  auto channel = kChannelNames.find(type);
  if (channel == kChannelNames.end()) return false;
  std::array<char, kExplicitTextSize> texture{};
  std::array<char, kExplicitTextSize> options{};
  float rgb[4];
  ZColor::InvalidColor.GetAsFloatArray(rgb);
  CurrentManager()->HC_PShow_Net_Explicit_Color(static_cast<int>(keys.size()), keys.data(),
                                                name.GetAsMBCS(), channel->second, rgb,
                                                texture.data(), options.data());
  const bool ignored = ZString(options.data()).FindNoCase(ZString("ignore color")) != -1;
  if (ignored || MarksAbsentChannel(rgb)) return false;
  std::copy_n(rgb, 4, info.f);
  return true;
}

ZColor ZDbAtColor::CommonGetOneNetByValue(ZString const& name, std::vector<long long> const& keys,
                                          bool withAlpha, ZColor const& fallback) const {
  if (!HasKey()) return fallback;
  ZColor result = fallback;
  float working[4];
  fallback.GetAsFloatArray(working);
  OpenSegment();
  ColorInfo info;
  // A diffuse colour replaces all four values: its fourth is a NaN, so the
  // fallback's alpha is lost on purpose and becomes 1 below.
  if (GetColorInfo(keys, name, kDiffuseColor, info)) std::copy_n(info.f, 4, working);
  if (withAlpha && GetColorInfo(keys, name, kTransmission, info)) working[3] = 1.0f - info.f[0];
  CloseSegment();
  result.SetColorProp(working[0], working[1], working[2], working[3]);
  return result;
}
