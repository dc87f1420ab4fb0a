#include "api/function_status.h"

#include <iterator>

#include "api/unavailable.h"

namespace graphics {
namespace {

using AnyFunction = void (*)();

struct FunctionAddresses {
  std::string_view name;
  AnyFunction exported;
  AnyFunction stand_in;
};

// The addresses are read at run time through this table: a function whose
// exported name still resolves to its stand-in is not implemented.
FunctionAddresses const kFunctions[] = {
#define HC_FUNCTION(result, name, parameters, arguments) \
  {#name, reinterpret_cast<AnyFunction>(&name), reinterpret_cast<AnyFunction>(&sw_unavailable_##name)},
#include "hc/functions.def"
#include "hc/immediate_functions.def"
#undef HC_FUNCTION
};

void AppendList(std::string& out, std::string_view title, std::vector<FunctionState> const& all,
                bool implemented) {
  std::string items;
  int count = 0;
  for (FunctionState const& function : all) {
    if (function.implemented == implemented) {
      items.append("- `").append(function.name).append("`\n");
      ++count;
    }
  }
  out.append("### ").append(title).append(" (").append(std::to_string(count)).append(")\n\n");
  out.append(count == 0 ? "None.\n" : items);
}

}  // namespace

std::vector<FunctionState> FunctionStatus() {
  std::vector<FunctionState> status;
  status.reserve(std::size(kFunctions));
  for (FunctionAddresses const& function : kFunctions) {
    status.push_back({function.name, function.exported != function.stand_in});
  }
  return status;
}

std::string FunctionStatusMarkdown() {
  std::vector<FunctionState> const all = FunctionStatus();
  std::string out;
  AppendList(out, "Implemented", all, true);
  out.append("\n");
  AppendList(out, "Not available yet", all, false);
  return out;
}

}  // namespace graphics
