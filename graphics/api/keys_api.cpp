// Questions about a key itself, and renumbering.
#include <string>
#include <string_view>

#include "api/arguments.h"
#include "api/call.h"
#include "hc/hc.h"
#include "strings/text.h"

using graphics::Done;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::Run;
using graphics::api::WriteString;

extern "C" void HC_Show_Key_Type(long long key, char* type) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto item = session.database().FindItem(key);
    WriteString(type, item.ok() ? item.value()->TypeWord() : "");
    if (!item.ok()) return item.error();
    return Done{};
  });
}

// "valid" for a library key in force, "local" or "global" for a key the
// program gave; "invalid", without a report, for anything else (deleted
// items and keys replaced by a renumber included).
extern "C" void HC_Show_Key_Status(long long key, char* status) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    const graphics::Entity* item = session.database().Find(key);
    const graphics::KeyScope scope = item ? item->key_scope() : graphics::KeyScope::kLibrary;
    WriteString(status, item == nullptr                          ? "invalid"
                        : scope == graphics::KeyScope::kLibrary ? "valid"
                        : scope == graphics::KeyScope::kLocal   ? "local"
                                                                : "global");
    return Done{};
  });
}

// Scope "local" or "global", any case, abbreviated as far as one letter.
// On failure the old key is returned and stays in force.
extern "C" long long HC_Renumber_Key(long long oldkey, long long newkey, char const* scope) {
  long long in_force = oldkey;
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = graphics::api::Require(scope, "scope");
    if (!required.ok()) return required;
    const std::string word = graphics::NormalizeWord(scope);
    const bool local = !word.empty() && std::string_view("local").starts_with(word);
    const bool global = !word.empty() && std::string_view("global").starts_with(word);
    if (!local && !global) return graphics::Error(graphics::errc::kUnknownOption, "unrecognised scope '" + word + "'");
    auto item = session.database().FindItem(oldkey);
    if (!item.ok()) return item.error();
    auto renumbered = session.database().Renumber(*item.value(), newkey,
                                                  local ? graphics::KeyScope::kLocal : graphics::KeyScope::kGlobal);
    if (!renumbered.ok()) return renumbered.error();
    in_force = renumbered.value();
    return Done{};
  });
  return in_force;
}
