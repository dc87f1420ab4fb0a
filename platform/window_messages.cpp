#include "platform/window_messages.h"

#include <deque>
#include <mutex>
#include <unordered_map>

namespace platform {
namespace {

struct WindowRegistry {
  std::mutex mutex;
  uintptr_t lastHandle = 0;
  std::unordered_map<uintptr_t, std::deque<WindowMessage>> queues;
};

WindowRegistry& Registry() {
  static WindowRegistry registry;
  return registry;
}

uintptr_t HandleValue(WindowHandle window) { return reinterpret_cast<uintptr_t>(window); }

}  // namespace

WindowHandle CreateMessageWindow() {
  WindowRegistry& registry = Registry();
  std::lock_guard<std::mutex> lock(registry.mutex);
  const uintptr_t handle = ++registry.lastHandle;
  registry.queues.emplace(handle, std::deque<WindowMessage>());
  return reinterpret_cast<WindowHandle>(handle);
}

void DestroyMessageWindow(WindowHandle window) {
  WindowRegistry& registry = Registry();
  std::lock_guard<std::mutex> lock(registry.mutex);
  registry.queues.erase(HandleValue(window));
}

bool PostWindowMessage(WindowHandle window, uint32_t message, uintptr_t wParam, intptr_t lParam) {
  WindowRegistry& registry = Registry();
  std::lock_guard<std::mutex> lock(registry.mutex);
  auto found = registry.queues.find(HandleValue(window));
  if (found == registry.queues.end()) return false;
  found->second.push_back(WindowMessage{message, wParam, lParam});
  return true;
}

std::optional<WindowMessage> TakeWindowMessage(WindowHandle window) {
  WindowRegistry& registry = Registry();
  std::lock_guard<std::mutex> lock(registry.mutex);
  auto found = registry.queues.find(HandleValue(window));
  if (found == registry.queues.end() || found->second.empty()) return std::nullopt;
  WindowMessage next = found->second.front();
  found->second.pop_front();
  return next;
}

}  // namespace platform
