#include "attributes/priorities.h"

namespace graphics {

std::map<long long, int>& Priorities() {
  static std::map<long long, int> priorities;
  return priorities;
}

}  // namespace graphics
