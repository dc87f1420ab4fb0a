// Pointer-sized values of the program under integer indices, and the one
// user value, on the current segment.
#include <map>

#include "api/arguments.h"
#include "api/attribute_target.h"
#include "api/call.h"
#include "api/net_path.h"
#include "attributes/user_data.h"
#include "hc/hc.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Run;
using api::Write;

namespace {

const UserIndices* LocalIndices(Session& session) {
  const AttributeStore* store = api::StoreToRead(session);
  return store ? store->Find<UserIndices>() : nullptr;
}

// Every index set along the path, each once, the lowest setter winning.
Result<std::map<long, void*>> NetIndices(Session& session, int count, const long long* keys) {
  auto path = api::NetPath(session, count, keys);
  if (!path.ok()) return path.error();
  std::map<long, void*> net;
  path.value().WalkHeard(AttributeKind::kUserOptions, "", [&](const AttributeStore& store) {
    if (const auto* local = store.Find<UserIndices>()) {
      for (const auto& [index, value] : local->values) net[index] = value;
    }
  });
  return net;
}

void WritePairs(const std::map<long, void*>& pairs, int* count, long* indices, void** values) {
  Write(count, static_cast<int>(pairs.size()));
  for (const auto& [index, value] : pairs) {
    if (indices != nullptr) *indices++ = index;
    if (values != nullptr) *values++ = value;
  }
}

}  // namespace

extern "C" void HC_Set_User_Index(long index, void* value) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    if (AttributeStore* store = api::TargetToChange(session).store) store->FindOrAdd<UserIndices>().values[index] = value;
    return Done{};
  });
}

// Removing an index that is not set does nothing; the last one removes the
// attribute.
extern "C" void HC_UnSet_One_User_Index(long index) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    AttributeStore* store = api::TargetToChange(session).store;
    UserIndices* local = store ? &store->FindOrAdd<UserIndices>() : nullptr;
    if (local == nullptr) return Done{};
    local->values.erase(index);
    if (local->values.empty()) store->Remove(UserIndices::kKind);
    return Done{};
  });
}

// `value` points to a void* that receives the stored pointer.
extern "C" bool HC_Show_One_User_Index(long index, void* value) {
  return Run(Access::kRead, __func__, false, [&](Session& session) -> Result<bool> {
    const UserIndices* local = LocalIndices(session);
    const auto found = local ? local->values.find(index) : std::map<long, void*>::const_iterator();
    if (local == nullptr || found == local->values.end()) return false;
    Write(static_cast<void**>(value), found->second);
    return true;
  });
}

extern "C" void HC_Show_User_Index_Count(int* count) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    const UserIndices* local = LocalIndices(session);
    Write(count, local ? static_cast<int>(local->values.size()) : 0);
    return Done{};
  });
}

extern "C" void HC_Show_User_Indices(int* count, long* indices, void** values) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    const UserIndices* local = LocalIndices(session);
    WritePairs(local ? local->values : std::map<long, void*>(), count, indices, values);
    return Done{};
  });
}

extern "C" bool HC_PShow_One_Net_User_Index(int count, long long const* keys, long index, void** value) {
  return Run(Access::kRead, __func__, false, [&](Session& session) -> Result<bool> {
    auto net = NetIndices(session, count, keys);
    if (!net.ok()) return net.error();
    const auto found = net.value().find(index);
    if (found == net.value().end()) return false;
    Write(value, found->second);
    return true;
  });
}

extern "C" void HC_PShow_Net_User_Index_Count(int count, long long const* keys, int* n) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto net = NetIndices(session, count, keys);
    if (!net.ok()) return net.error();
    Write(n, static_cast<int>(net.value().size()));
    return Done{};
  });
}

extern "C" void HC_PShow_Net_User_Indices(int count, long long const* keys, int* n, long* indices, void** values) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto net = NetIndices(session, count, keys);
    if (!net.ok()) return net.error();
    WritePairs(net.value(), n, indices, values);
    return Done{};
  });
}

extern "C" void HC_Set_User_Value(intptr_t data) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    if (AttributeStore* store = api::TargetToChange(session).store) store->Set(UserValue{data});
    return Done{};
  });
}

// Nothing set is reported and the output left alone.
extern "C" void HC_Show_User_Value(intptr_t* data) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    const AttributeStore* store = api::StoreToRead(session);
    const UserValue* local = store ? store->Find<UserValue>() : nullptr;
    if (local == nullptr) return Error(errc::kNotSet, "no user value is set here");
    Write(data, local->value);
    return Done{};
  });
}
