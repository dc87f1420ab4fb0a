// Questions about a key itself.
#include "api/arguments.h"
#include "api/call.h"
#include "hc/hc.h"

using graphics::Done;
using graphics::Session;
using graphics::Status;
using graphics::api::Access;
using graphics::api::Run;
using graphics::api::WriteString;

extern "C" void HC_Show_Key_Type(long long key, char* type) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto item = session.database().FindItem(key);
    WriteString(type, item.ok() ? item.value()->TypeWord() : "");
    if (!item.ok()) return item.error();
    return Done{};
  });
}

// Keys cannot be renumbered yet, so a live key is always "valid"; anything
// else, deleted keys included, is "invalid", without a report.
extern "C" void HC_Show_Key_Status(long long key, char* status) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    WriteString(status, session.database().Find(key) != nullptr ? "valid" : "invalid");
    return Done{};
  });
}
