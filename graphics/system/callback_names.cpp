#include "system/callback_names.h"

#include <map>
#include <mutex>
#include <string>

#include "strings/text.h"

namespace graphics::callback_names {

namespace {

std::mutex mutex;

std::map<std::string, HC_Callback, std::less<>>& Table() {
  static std::map<std::string, HC_Callback, std::less<>> table;
  return table;
}

Error Unknown(std::string_view name) {
  return Error(errc::kBadName, "no callback is defined under the name '" + std::string(name) + "'");
}

}  // namespace

Status Define(std::string_view name, HC_Callback function) {
  const std::string key = NormalizeWord(name);
  if (key.empty()) return Error(errc::kBadName, "a callback name cannot be blank");
  if (function == nullptr) return Error(errc::kNullArgument, "null callback function");
  std::lock_guard lock(mutex);
  Table()[key] = function;
  return Done{};
}

Status UnDefine(std::string_view name) {
  std::lock_guard lock(mutex);
  if (Table().erase(NormalizeWord(name)) == 0) return Unknown(name);
  return Done{};
}

Result<HC_Callback> Find(std::string_view name) {
  std::lock_guard lock(mutex);
  const auto found = Table().find(NormalizeWord(name));
  if (found == Table().end()) return Unknown(name);
  return found->second;
}

void Clear() { Table().clear(); }

}  // namespace graphics::callback_names
