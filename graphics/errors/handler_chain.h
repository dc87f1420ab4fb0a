#pragma once
// The installed error handlers. Every report goes to all of them, newest
// first. The chain has its own small lock and hands out copies, so handlers
// run with no engine lock held and may define or undefine handlers, or call
// any other engine function, while they run.
#include <mutex>
#include <vector>

#include "hc/hc.h"

namespace graphics {

class HandlerChain {
 public:
  explicit HandlerChain(HC_Error_Handler initial) : handlers_{initial} {}

  // Defining a handler already installed moves it to the front instead of
  // installing it twice, so one undefine always removes it.
  void Define(HC_Error_Handler handler);
  // Removing a handler that is not installed does nothing.
  void Undefine(HC_Error_Handler handler);
  // The handlers, newest first.
  std::vector<HC_Error_Handler> Snapshot() const;

 private:
  mutable std::mutex mutex_;
  std::vector<HC_Error_Handler> handlers_;  // oldest first
};

// The process's chain; it starts with HC_Report_Error, the default handler.
HandlerChain& ErrorHandlers();

}  // namespace graphics
