#include "api/option_list_calls.h"

#include <string>

#include "api/arguments.h"
#include "api/call.h"
#include "api/net_path.h"
#include "attributes/option_family.h"

namespace graphics::api {

namespace {

const OptionFamily& Family(AttributeKind kind) { return *FamilyOf(kind); }

const OptionSettings* LocalOptions(Session& session, AttributeKind kind) {
  const Segment* segment = session.SegmentToRead();
  return segment ? segment->attributes().FindOptions(kind) : nullptr;
}

}  // namespace

void SetOptions(const char* routine, AttributeKind kind, const char* list) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    auto required = Require(list, "option list");
    if (!required.ok()) return required.error();
    // Checked before anything is touched, so a bad list leaves no trace.
    OptionSettings trial;
    auto checked = trial.Merge(Family(kind), list);
    if (!checked.ok()) return checked.error();
    Segment* segment = session.SegmentToChange();
    if (segment == nullptr || trial.empty()) return Done{};
    OptionSettings merged = segment->attributes().FindOptions(kind) ? *segment->attributes().FindOptions(kind)
                                                                      : OptionSettings();
    auto applied = merged.Merge(Family(kind), list);
    if (!applied.ok()) return applied.error();
    static_cast<OptionSettings&>(segment->MutableAttributes().FindOrAddOptions(kind)) = std::move(merged);
    return Done{};
  });
}

void ShowOptions(const char* routine, AttributeKind kind, char* list) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    if (session.open_stack().top_is_dead()) {
      WriteString(list, "");
      return Done{};
    }
    const OptionSettings* local = LocalOptions(session, kind);
    if (local == nullptr) {
      return Error(errc::kNotSet, "no " + std::string(Family(kind).title) + " options are set here");
    }
    WriteString(list, local->Format(Family(kind)));
    return Done{};
  });
}

void ShowOneOption(const char* routine, AttributeKind kind, const char* name, char* value) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    auto required = Require(name, "option name");
    if (!required.ok()) return required.error();
    const OptionSettings* local = LocalOptions(session, kind);
    auto found = (local ? *local : OptionSettings()).FindOne(Family(kind), name);
    if (!found.ok()) return found.error();
    WriteString(value, found.value().value_or(""));
    return Done{};
  });
}

void UnSetOptions(const char* routine, AttributeKind kind) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    Segment* segment = session.SegmentToChange();
    if (segment != nullptr && segment->attributes().Has(kind)) segment->MutableAttributes().Remove(kind);
    return Done{};
  });
}

void UnSetOneOption(const char* routine, AttributeKind kind, const char* name) {
  Run(Access::kWrite, routine, [&](Session& session) -> Status {
    auto required = Require(name, "option name");
    if (!required.ok()) return required.error();
    Segment* segment = session.SegmentToChange();
    const OptionSettings* local = segment ? segment->attributes().FindOptions(kind) : nullptr;
    OptionSettings changed = local ? *local : OptionSettings();
    auto removed = changed.Remove(Family(kind), name);
    if (!removed.ok()) return removed.error();
    if (local == nullptr || changed == *local) return Done{};
    if (changed.empty()) {
      segment->MutableAttributes().Remove(kind);
    } else {
      segment->MutableAttributes().FindOrAddOptions(kind) = std::move(changed);
    }
    return Done{};
  });
}

void ShowNetOptions(const char* routine, AttributeKind kind, int count, const long long* keys, char* list) {
  Run(Access::kRead, routine, [&](Session& session) -> Status {
    auto path = NetPath(session, count, keys);
    if (!path.ok()) return path.error();
    WriteString(list, path.value().NetOptions(Family(kind)).Format(Family(kind)));
    return Done{};
  });
}

bool ShowOneNetOption(const char* routine, AttributeKind kind, int count, const long long* keys, const char* name,
                      char* value) {
  return Run(Access::kRead, routine, false, [&](Session& session) -> Result<bool> {
    auto required = Require(name, "option name");
    if (!required.ok()) return required.error();
    auto names = ResolveOptionName(Family(kind), name);
    if (!names.ok()) return names.error();
    auto path = NetPath(session, count, keys);
    if (!path.ok()) return path.error();
    const NetOption net = path.value().NetOptionValue(Family(kind), names.value().front());
    const std::string_view shown = net.value;
    const auto body = SubListBody(shown);
    WriteString(value, body ? *body : shown);
    return net.set;
  });
}

}  // namespace graphics::api
