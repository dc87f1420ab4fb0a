#pragma once
// The host's notify window: the message queue that threads post their
// completion notices to. The library sees only its opaque handle.
#include <optional>

#include "platform/window_messages.h"

namespace host {

class NotifyWindow {
 public:
  NotifyWindow() : handle_(platform::CreateMessageWindow()) {}
  ~NotifyWindow() { platform::DestroyMessageWindow(handle_); }
  NotifyWindow(const NotifyWindow&) = delete;
  NotifyWindow& operator=(const NotifyWindow&) = delete;

  platform::WindowHandle Handle() const { return handle_; }

  // The oldest message posted to the window and not yet read, if any.
  std::optional<platform::WindowMessage> NextMessage() { return platform::TakeWindowMessage(handle_); }

 private:
  platform::WindowHandle handle_;
};

}  // namespace host
