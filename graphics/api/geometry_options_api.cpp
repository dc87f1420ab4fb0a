// Options of one geometry item, by key: "camera relative" on lights keeps
// the light at a fixed place relative to the camera.
#include "api/arguments.h"
#include "api/call.h"
#include "api/geometry_arguments.h"
#include "attributes/value_attributes.h"
#include "hc/hc.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;

namespace {

constexpr std::initializer_list<GeometryType> kLights = {GeometryType::kDistantLight, GeometryType::kLocalLight,
                                                        GeometryType::kSpotLight};

const OptionFamily& Family() { return *FamilyOf(AttributeKind::kGeometryOptions); }

}  // namespace

// Every option so far belongs to lights: on other geometry the key is
// refused, and the list changes nothing unless every item is good.
extern "C" void HC_Set_Geometry_Options(long long key, char const* list) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = api::Require(list, "option list");
    if (!required.ok()) return required;
    auto light = api::FindGeometryOf(session, key, kLights, "light");
    if (!light.ok()) return light.error();
    AttributeStore& store = light.value()->MutableAttributes();
    const GeometryOptions* local = store.Find<GeometryOptions>();
    GeometryOptions changed = local ? *local : GeometryOptions();
    auto merged = changed.Merge(Family(), list);
    if (!merged.ok()) return merged;
    if (!changed.empty()) store.Set(std::move(changed));
    return Done{};
  });
}

// An item without options writes "" silently: every item has the defaults.
extern "C" void HC_Show_Geometry_Options(long long key, char* list) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto light = api::FindGeometryOf(session, key, kLights, "light");
    if (!light.ok()) return light.error();
    const GeometryOptions* local = light.value()->attributes().Find<GeometryOptions>();
    api::WriteString(list, local ? local->Format(Family()) : "");
    return Done{};
  });
}
