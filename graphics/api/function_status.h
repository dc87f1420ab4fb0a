#pragma once
// Which C functions the engine implements, found by looking at the linked
// library itself rather than at a list kept by hand.
#include <string>
#include <string_view>
#include <vector>

namespace graphics {

struct FunctionState {
  std::string_view name;
  bool implemented;
};

// Every HC_ and HIC_ function of the interface, in the order of the .def rows.
std::vector<FunctionState> FunctionStatus();

// The status as the markdown that graphics/README.md carries between its
// function-status markers: an "Implemented" and a "Not available yet" list.
std::string FunctionStatusMarkdown();

}  // namespace graphics
