// The program's own options on the current segment.
#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "attributes/user_options.h"
#include "hc/hc.h"

using graphics::Done;
using graphics::Error;
using graphics::NormalizeOptionName;
using graphics::Segment;
using graphics::Session;
using graphics::Status;
using graphics::UserOptions;
using graphics::api::Access;
using graphics::api::Require;
using graphics::api::Run;
using graphics::api::Write;
using graphics::api::WriteString;
using graphics::api::WrittenLength;

namespace {

// The current segment's options: null under a dead frame or when none are set.
const UserOptions* CurrentOptions(Session& session) {
  const Segment* segment = session.SegmentToRead();
  return segment ? segment->attributes().Find<UserOptions>() : nullptr;
}

// One option's value; "" when it is not set, which is not an error.
std::string OneOption(Session& session, const char* which) {
  const UserOptions* options = CurrentOptions(session);
  const std::string* value = options ? options->Find(NormalizeOptionName(which)) : nullptr;
  return value ? *value : std::string();
}

}  // namespace

extern "C" void HC_Set_User_Options(char const* list) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = Require(list, "option list");
    if (!required.ok()) return required.error();
    auto items = graphics::ParseOptionList(list);
    if (!items.ok()) return items.error();
    Segment* segment = session.SegmentToChange();
    if (segment == nullptr || items.value().empty()) return Done{};
    segment->MutableAttributes().FindOrAdd<UserOptions>().Merge(items.value());
    return Done{};
  });
}

// With no options set there is nothing to show: an error, as for every
// attribute; under a dead frame the answer is empty instead.
extern "C" void HC_Show_User_Options(char* list) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    if (session.open_stack().top_is_dead()) {
      WriteString(list, "");
      return Done{};
    }
    const UserOptions* options = CurrentOptions(session);
    if (options == nullptr) return Error(graphics::errc::kNotSet, "no user options are set here");
    WriteString(list, options->Format());
    return Done{};
  });
}

extern "C" void HC_Show_User_Options_Length(int* length) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    const UserOptions* options = CurrentOptions(session);
    Write(length, options ? WrittenLength(options->Format()) : 0);
    return Done{};
  });
}

extern "C" void HC_Show_One_User_Option(char const* which, char* value) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto required = Require(which, "option name");
    if (!required.ok()) return required.error();
    WriteString(value, OneOption(session, which));
    return Done{};
  });
}

extern "C" void HC_Show_One_User_Option_Length(char const* which, int* length) {
  Run(Access::kRead, __func__, [&](Session& session) -> Status {
    auto required = Require(which, "option name");
    if (!required.ok()) return required.error();
    Write(length, WrittenLength(OneOption(session, which)));
    return Done{};
  });
}

// Removing an option that is not set does nothing. The last option taking
// its leave removes the attribute, so the segment no longer has user options.
extern "C" void HC_UnSet_One_User_Option(char const* which) {
  Run(Access::kWrite, __func__, [&](Session& session) -> Status {
    auto required = Require(which, "option name");
    if (!required.ok()) return required.error();
    Segment* segment = session.SegmentToChange();
    const UserOptions* options = segment ? segment->attributes().Find<UserOptions>() : nullptr;
    if (options == nullptr) return Done{};
    auto& attributes = segment->MutableAttributes();
    UserOptions& changed = attributes.FindOrAdd<UserOptions>();
    changed.Remove(NormalizeOptionName(which));
    if (changed.empty()) attributes.Remove(UserOptions::kKind);
    return Done{};
  });
}
