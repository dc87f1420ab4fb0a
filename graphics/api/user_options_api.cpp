// The program's own options on the current segment, in 8-bit text and in
// 16-bit ("unicode") text. The two stores never affect each other; both go
// through the one option grammar, the 16-bit text carried as UTF-8.
#include <algorithm>
#include <string>

#include "api/arguments.h"
#include "api/attribute_target.h"
#include "api/call.h"
#include "api/net_path.h"
#include "attributes/user_data.h"
#include "hc/hc.h"
#include "system/system_settings.h"
#include "text/utf16.h"

using namespace graphics;  // NOLINT: this file only forwards to the engine
using api::Access;
using api::Require;
using api::Run;
using api::Write;
using api::WriteString;
using api::WrittenLength;

namespace {

// The current segment's or open geometry's options: null under a dead
// frame or when none are set.
template <typename T>
const T* CurrentOptions(Session& session) {
  const AttributeStore* store = api::StoreToRead(session);
  return store ? store->Find<T>() : nullptr;
}

// One option's value; "" when it is not set, which is not an error.
template <typename T>
std::string OneOption(Session& session, std::string_view which) {
  const T* options = CurrentOptions<T>(session);
  const std::string* value = options ? options->Find(NormalizeOptionName(which)) : nullptr;
  return value ? *value : std::string();
}

template <typename T>
void SetOptions(const char* routine, const void* list, std::string (*text)(const void*)) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    auto required = Require(list, "option list");
    if (!required.ok()) return required.error();
    auto items = ParseOptionList(text(list));
    if (!items.ok()) return items.error();
    AttributeStore* store = api::TargetToChange(session).store;
    if (store == nullptr || items.value().empty()) return Done{};
    store->FindOrAdd<T>().Merge(items.value());
    return Done{};
  });
}

// With no options set there is nothing to show: an error, as for every
// attribute; under a dead frame the answer is empty instead.
template <typename T, typename Out>
void ShowOptions(const char* routine, Out&& write) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    if (session.open_stack().top_is_dead()) {
      write(std::string());
      return Done{};
    }
    const T* options = CurrentOptions<T>(session);
    if (options == nullptr) return Error(errc::kNotSet, "no " + std::string(AttributeName(T::kKind)) + " are set here");
    write(options->Format());
    return Done{};
  });
}

// Runs `use(session, name)` with the option name, which must not be null.
template <typename Use>
void WithName(Access access, const char* routine, const void* which, std::string (*text)(const void*), Use&& use) {
  Run(access, routine, [&](Session& session) -> Status {
    auto required = Require(which, "option name");
    if (!required.ok()) return required.error();
    use(session, text(which));
    return Done{};
  });
}

// Removing an option that is not set does nothing. The last option taking
// its leave removes the attribute, so the segment no longer has the kind.
template <typename T>
void UnSetOne(const char* routine, const void* which, std::string (*text)(const void*)) {
  WithName(Access::kWrite, routine, which, text, [&](Session& session, const std::string& name) {
    AttributeStore* attributes = api::TargetToChange(session).store;
    if (attributes == nullptr || attributes->Find<T>() == nullptr) return;
    T& changed = attributes->FindOrAdd<T>();
    changed.Remove(NormalizeOptionName(name));
    if (changed.empty()) attributes->Remove(T::kKind);
  });
}

// The net value along the path; false and "" when no segment sets it.
template <typename T, typename Out>
bool NetOne(const char* routine, int count, const long long* keys, const void* which,
            std::string (*text)(const void*), Out&& write) {
  return Run(Access::kRead, routine, false, [&](Session& session) -> Result<bool> {
    auto required = Require(which, "option name");
    if (!required.ok()) return required.error();
    auto path = api::NetPath(session, count, keys);
    if (!path.ok()) return path.error();
    const std::string* value = path.value().template NetUserOption<T>(NormalizeOptionName(text(which)));
    write(value ? *value : std::string());
    return value != nullptr;
  });
}

std::string Narrow(const void* text) { return static_cast<const char*>(text); }
std::string FromUnits(const void* text) {
  return Utf16UnitsToUtf8(reinterpret_cast<const char16_t*>(static_cast<const unsigned short*>(text)));
}

// 16-bit text as the interface writes it: at most "C string length" units.
std::u16string Units(const std::string& stored) {
  std::u16string units = Utf8ToUtf16Units(stored);
  units.resize(std::min(units.size(), system_settings::CStringLength()));
  return units;
}

void WriteUnits(unsigned short* out, const std::string& stored) {
  if (out == nullptr) return;
  const std::u16string units = Units(stored);
  std::copy(units.begin(), units.end(), out);
  out[units.size()] = 0;
}

int UnitLength(const std::string& stored) { return static_cast<int>(Units(stored).size()); }

}  // namespace

extern "C" void HC_Set_User_Options(char const* list) { SetOptions<UserOptions>(__func__, list, Narrow); }

extern "C" void HC_Show_User_Options(char* list) {
  ShowOptions<UserOptions>(__func__, [&](const std::string& text) { WriteString(list, text); });
}

extern "C" void HC_Show_User_Options_Length(int* length) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    const UserOptions* options = CurrentOptions<UserOptions>(session);
    Write(length, options ? WrittenLength(options->Format()) : 0);
    return Done{};
  });
}

extern "C" void HC_Show_One_User_Option(char const* which, char* value) {
  WithName(Access::kRead, __func__, which, Narrow, [&](Session& session, const std::string& name) {
    WriteString(value, OneOption<UserOptions>(session, name));
  });
}

extern "C" void HC_Show_One_User_Option_Length(char const* which, int* length) {
  WithName(Access::kRead, __func__, which, Narrow, [&](Session& session, const std::string& name) {
    Write(length, WrittenLength(OneOption<UserOptions>(session, name)));
  });
}

extern "C" void HC_UnSet_One_User_Option(char const* which) { UnSetOne<UserOptions>(__func__, which, Narrow); }

extern "C" bool HC_PShow_One_Net_User_Option(int count, long long const* keys, char const* which, char* value) {
  return NetOne<UserOptions>(__func__, count, keys, which, Narrow,
                             [&](const std::string& text) { WriteString(value, text); });
}

extern "C" bool HC_PShow_One_Net_User_Opt_Len(int count, long long const* keys, char const* which, int* length) {
  return NetOne<UserOptions>(__func__, count, keys, which, Narrow,
                             [&](const std::string& text) { Write(length, WrittenLength(text)); });
}

extern "C" void HC_Set_Unicode_Options(unsigned short const* list) {
  SetOptions<UnicodeOptions>(__func__, list, FromUnits);
}

extern "C" void HC_Show_Unicode_Options(unsigned short* list) {
  ShowOptions<UnicodeOptions>(__func__, [&](const std::string& text) { WriteUnits(list, text); });
}

extern "C" void HC_Show_Unicode_Options_Length(int* length) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    const UnicodeOptions* options = CurrentOptions<UnicodeOptions>(session);
    Write(length, options ? UnitLength(options->Format()) : 0);
    return Done{};
  });
}

extern "C" void HC_Show_One_Unicode_Option(unsigned short const* which, unsigned short* value) {
  WithName(Access::kRead, __func__, which, FromUnits, [&](Session& session, const std::string& name) {
    WriteUnits(value, OneOption<UnicodeOptions>(session, name));
  });
}

extern "C" void HC_Show_One_Uni_Option_Length(unsigned short const* which, int* length) {
  WithName(Access::kRead, __func__, which, FromUnits, [&](Session& session, const std::string& name) {
    Write(length, UnitLength(OneOption<UnicodeOptions>(session, name)));
  });
}

extern "C" void HC_UnSet_One_Unicode_Option(unsigned short const* which) {
  UnSetOne<UnicodeOptions>(__func__, which, FromUnits);
}

extern "C" bool HC_PShow_One_Net_Unicode_Opt(int count, long long const* keys, unsigned short const* which,
                                             unsigned short* value) {
  return NetOne<UnicodeOptions>(__func__, count, keys, which, FromUnits,
                                [&](const std::string& text) { WriteUnits(value, text); });
}

extern "C" bool HC_PShow_One_Net_Uni_Opt_Len(int count, long long const* keys, unsigned short const* which,
                                             int* length) {
  return NetOne<UnicodeOptions>(__func__, count, keys, which, FromUnits,
                                [&](const std::string& text) { Write(length, UnitLength(text)); });
}
