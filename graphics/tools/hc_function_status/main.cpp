// Prints which of the engine's C functions are implemented, as markdown.
// scripts/update-graphics-readme copies the output into graphics/README.md.
#include <iostream>

#include "api/function_status.h"

int main() {
  std::cout << graphics::FunctionStatusMarkdown();
  return 0;
}
