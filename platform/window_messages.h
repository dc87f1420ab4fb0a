#pragma once
// Message windows: queues that any thread may post to under an opaque
// handle, standing in for posting window messages. A handle is a name, never
// a pointer to memory, so posting to a destroyed window fails safely.
#include <cstdint>
#include <optional>

namespace platform {

using WindowHandle = void*;

struct WindowMessage {
  uint32_t message;
  uintptr_t wParam;
  intptr_t lParam;
};

// A new, empty message window. Never answers null.
WindowHandle CreateMessageWindow();

// Forgets the window and drops its unread messages. Unknown handles are ignored.
void DestroyMessageWindow(WindowHandle window);

// Queues a message for `window`. False, and the message is lost, when the
// window does not exist (null, never created or destroyed).
bool PostWindowMessage(WindowHandle window, uint32_t message, uintptr_t wParam, intptr_t lParam);

// The oldest unread message of `window`; nothing when the queue is empty or
// the window does not exist.
std::optional<WindowMessage> TakeWindowMessage(WindowHandle window);

}  // namespace platform
