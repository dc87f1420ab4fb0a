#include "errors/handler_chain.h"

#include <algorithm>

namespace graphics {

void HandlerChain::Define(HC_Error_Handler handler) {
  std::lock_guard lock(mutex_);
  std::erase(handlers_, handler);
  handlers_.push_back(handler);
}

void HandlerChain::Undefine(HC_Error_Handler handler) {
  std::lock_guard lock(mutex_);
  std::erase(handlers_, handler);
}

std::vector<HC_Error_Handler> HandlerChain::Snapshot() const {
  std::lock_guard lock(mutex_);
  return std::vector<HC_Error_Handler>(handlers_.rbegin(), handlers_.rend());
}

HandlerChain& ErrorHandlers() {
  static HandlerChain chain(&HC_Report_Error);
  return chain;
}

}  // namespace graphics
