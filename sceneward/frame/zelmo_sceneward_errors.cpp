// The one road by which a graphics failure reaches anybody: the engine calls
// Sceneward_Report_Error, which tells the host.
#include <algorithm>

#include "hc/hc.h"
#include "sceneward/foundation/event.h"
#include "sceneward/foundation/zstring.h"
#include "sceneward/frame/thread_registry.h"
#include "sceneward/frame/zelmo_sceneward.h"

namespace {

// Errors of this category (the engine running out of memory) reach the
// application at once, as an event, before their text is built.
constexpr int kUrgentCategory = 3;
constexpr uint32_t kGraphicsErrorEventType = 251;
// The message code under which error texts go to the host's message sink.
constexpr int kErrorMessageCode = 114;

class GraphicsErrorEvent : public Event {
 public:
  GraphicsErrorEvent() : Event(&kGraphicsErrorEventType, 0) {}

 private:
  uint32_t mDetail = 0;  // part of the record the host reads; always 0 here
};

// Two reports that the engine makes in normal operation and that nobody
// needs to see.
bool IsHarmless(int category, int specific) {
  return (category == 9 && specific == 411) || (category == 58 && specific == 256);
}

}  // namespace

// The engine's own reporter leaves the handler list: from now on it runs only
// when the popup is enabled and the handler calls it. Installing the handler
// therefore switches the popup off until the host asks for it again.
void ZelmoSceneward::SetErrorHandler() {
  mErrorPopupEnabled = false;
  ::HC_Define_Error_Handler(Sceneward_Report_Error);
  ::HC_UnDefine_Error_Handler(::HC_Report_Error);
}

void ZelmoSceneward::SetErrorPopupEnabled(bool enabled) { mErrorPopupEnabled = enabled; }

bool ZelmoSceneward::IsErrorPopupEnabled() { return mErrorPopupEnabled; }

void ZelmoSceneward::HC_Report_Error(int category, int specific, int severity, int msgc,
                                     char const* const* msgv, int stackc,
                                     char const* const* stackv) {
  Sceneward_Report_Error(category, specific, severity, msgc, msgv, stackc, stackv);
}

// The text names the first routine and the first message once per round, as
// many rounds as the longer list has entries: the host shows one line per
// report, and the full lists reach only the engine's own reporter.
void ZelmoSceneward::Sceneward_Report_Error(int category, int specific, int severity, int msgc,
                                            char const* const* msgv, int stackc,
                                            char const* const* stackv) {
  if (IsHarmless(category, specific)) return;

  if (category == kUrgentCategory) {
    GraphicsErrorEvent event;
    // A host that can run out of memory must have its registry in place.
    CurrentEventTarget()->HandleEvent(&event);
  }

  ZString text("Hoops Error: ");
  const int rounds = std::max(msgc, stackc);
  for (int i = 0; i < rounds; ++i) {
    if (i < stackc) {
      text += ZString(stackv[0]);
      text += ZString(" - ");
    }
    if (i < msgc) text += ZString(msgv[0]);
    if (i < rounds - 1) text += ZString(",\n");
  }

  // The sink is looked up afresh for the delivery: the registry is the host's
  // and may have changed.
  if (CurrentMessageSink() != nullptr) {
    CurrentMessageSink()->ReportMessage(kErrorMessageCode, text);
  }

  if (mErrorPopupEnabled) {
    ::HC_Report_Error(category, specific, severity, msgc, msgv, stackc, stackv);
  }
}
